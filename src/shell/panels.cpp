// Showing and hiding the floating bars from the View menu and their close buttons.
#include "editor/frm_main.h"

namespace tavrin {

namespace {

// The menu item's check mark decides, not whether the panel shows: a bar closed by its
// own button leaves the mark standing, so the item's next use only clears the mark.
void toggleFromMenu(platform::MenuItem& item, platform::Control& panel) {
    if (!item.Checked) {
        panel.Visible = true;
        item.Checked = true;
    } else {
        panel.Visible = false;
        item.Checked = false;
    }
}

} // namespace

void FrmMain::PALE_Click() { toggleFromMenu(PALE, SSPanel1); }
void FrmMain::ActualPixels_Click() { toggleFromMenu(ActualPixels, SSPanel11); }
void FrmMain::ToolBar_Click() { toggleFromMenu(ToolBar, SSPanel13); }
void FrmMain::fil_Click() { toggleFromMenu(fil, SSPanel15); }
void FrmMain::Mask_Click() { toggleFromMenu(Mask, SSPanel7); }

void FrmMain::SSCommand8_Click() {
    SSPanel1.Visible = false;
    PALE.Checked = false;
}

void FrmMain::SSCommand9_Click() {
    SSPanel7.Visible = false;
    Mask.Checked = false;
}

void FrmMain::SSCommand27_Click() { SSPanel13.Visible = false; }
void FrmMain::SSCommand42_Click() { SSPanel15.Visible = false; }
void FrmMain::SSCommand11_Click() { SSPanel11.Visible = false; }

} // namespace tavrin
