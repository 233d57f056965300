#include "editor/frm_main.h"

namespace tavrin {

FrmMain::FrmMain(platform::Host& host) : host_(host) {
    Caption = "Tavrin - 256 Color Pixel Editor - Version Beta - Build 033";
    // The window the editor was designed in, until a view reports its real size.
    Width = 1024 * 15;
    Height = 768 * 15;
    buildCommandSurface();
}

} // namespace tavrin
