#include "editor/frm_main.h"

#include "palette/color_match.h"

namespace tavrin {

FrmMain::FrmMain(platform::Host& host)
    : Form("frmMain"), host_(host), matchCache_(std::make_shared<MatchCache>()) {
    Caption = "Tavrin - 256 Color Pixel Editor - Version Beta - Build 033";
    buildCommandSurface();
}

} // namespace tavrin
