// Choosing a shape or an area filter. Every filter and every rectangle rides on "Box":
// the filter word decides what a finished box drag does, and the rectangles clear it.
// The menu items and the buttons differ in places (the status text, whether the
// gradient is switched off); each does what its own row says.
#include "editor/frm_main.h"

namespace tavrin {

namespace {
constexpr int16_t kTrue = -1;
} // namespace

// The rectangles close the paint brush's kinds and clear the filter word.
void FrmMain::chooseRectangle(bool filled) {
    SSPanel2.Visible = false;
    Tool_Mode = "Box";
    Filter_Mode = "";
    Fill_Rect = filled;
}

void FrmMain::mRect_Click() { chooseRectangle(false); }

void FrmMain::SSCommand28_Click() {
    chooseRectangle(false);
    SSPanel3.Caption = "Rectangle";
}

// Leaves the gradient as it was: after "&Gradient Rectangle Fill" this item fills in
// stripes too. Meant; the tool button switches it off.
void FrmMain::mFrect_Click() { chooseRectangle(true); }

void FrmMain::SSCommand29_Click() {
    mFrect_Click();
    Gradient_On = 0;
    SSPanel3.Caption = "Rectangle Fill";
}

void FrmMain::Grf_Click() {
    mFrect_Click();
    Gradient_On = kTrue;
    SSPanel3.Caption = "Gradient Fill";
}

// The button whose tip says "Smudge" chooses the gradient.
void FrmMain::SSCommand17_Click() { Grf_Click(); }

void FrmMain::mLine_Click() {
    Tool_Mode = "Line";
    SSPanel3.Caption = "Line Tool";
}

// The tool bar's line button only promises the tool; the hidden menu item chooses it.
void FrmMain::SSCommand18_Click() {
    host_.MsgBox("Almost! I promise it'll be in 035", platform::kStyleOk);
}

// "&Dark" and "&Light" do the same: either one flips the setting.
void FrmMain::gd_Click() {
    if (gl.Checked) {
        Gradient_Dark = kTrue;
        gd.Checked = true;
        gl.Checked = false;
    } else if (gd.Checked) {
        Gradient_Dark = 0;
        gl.Checked = true;
        gd.Checked = false;
    }
}

void FrmMain::gl_Click() { gd_Click(); }

// The filters set the two words and nothing else; the status text stays.
void FrmMain::chooseFilter(const char* word) {
    Tool_Mode = "Box";
    Filter_Mode = word;
}

void FrmMain::Sharpen_Click() { chooseFilter("Sharp"); }
void FrmMain::SSCommand40_Click() { Sharpen_Click(); }
// Lighten over a box has only its button: the menu's "&Lighten Image" lightens it all.
void FrmMain::SSCommand37_Click() { chooseFilter("Light"); }
void FrmMain::Blur_Click() { chooseFilter("BlurA"); }
void FrmMain::SSCommand41_Click() { chooseFilter("BlurA"); }
void FrmMain::Emboss_Click() { chooseFilter("Emboss"); }
void FrmMain::SSCommand38_Click() { chooseFilter("Emboss"); }
void FrmMain::Tint_Click() { chooseFilter("Tint"); }
void FrmMain::SSCommand36_Click() { chooseFilter("Tint"); }
void FrmMain::Diffuse_Click() { chooseFilter("Diffuse"); }
void FrmMain::SSCommand43_Click() { chooseFilter("Diffuse"); }

} // namespace tavrin
