#include "editor/frm_main.h"

#include "palette/color_match.h"

namespace tavrin {

FrmMain::FrmMain(platform::Host& host)
    : Form("frmMain"), host_(host), matchCache_(std::make_shared<MatchCache>()) {
    Caption = "Tavrin - 256 Color Pixel Editor - Version Beta - Build 033";
    // The window the editor was designed in, until a view reports its real size.
    Width = 1024 * 15;
    Height = 768 * 15;
    buildCommandSurface();
    Resize = [this] { Form_Resize(); };
    GotFocus = [this] { Form_GotFocus(); };
    tbToolBar.ButtonClick = [this](const std::string& key) { tbToolBar_ButtonClick(key); };
}

} // namespace tavrin
