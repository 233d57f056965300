// Choosing a tool: a command sets the tool word and names the tool in SSPanel3. The
// menu items and the tool buttons differ in places (which texts they write, whether they
// close the brush kinds panel SSPanel2); each does what its own row says.
#include "editor/frm_main.h"

namespace tavrin {

void FrmMain::pEdit_Click() {
    Tool_Mode = "Draw";
    SSPanel3.Caption = "Drawing Tool";
    SSPanel2.Visible = false;
}

void FrmMain::SSCommand4_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "Draw";
    SSPanel3.Caption = "Drawing Tool";
}

void FrmMain::mZoom_Click() {
    Tool_Mode = "Zoom";
    SSPanel3.Caption = "Zoom";
}

void FrmMain::SSCommand19_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "Zoom";
    SSPanel3.Caption = "Zoom";
}

void FrmMain::Eye_Click() {
    Tool_Mode = "Extract";
    SSPanel3.Caption = "Eye Dropper Tool";
}

void FrmMain::SSCommand14_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "Extract";
    SSPanel3.Caption = "Eye Dropper Tool";
}

// The popup's "Paintbrush": the solid brush, without the kinds panel.
void FrmMain::Solid_Paint_Select() {
    Tool_Mode = "dPaint";
    Paint_Shade = 0;
    SSPanel3.Caption = "Paint-Brush";
}

// Only opens the brush kinds beside the tool bar: until a kind is chosen the previous
// tool goes on working while the panel says "Painting Tool". Meant.
void FrmMain::SSCommand12_Click() {
    SSPanel3.Caption = "Painting Tool";
    SSPanel2.Left = SSPanel13.Left + 800;
    SSPanel2.Top = SSPanel13.Top + 200;
    SSPanel2.Visible = true;
}

// The kinds of the paint brush. Each closes the panel and leaves SSPanel3 as it was.
void FrmMain::SSCommand30_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "dPaint";
    Paint_Shade = 0;
}

void FrmMain::SSCommand31_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "dPaint";
    Paint_Shade = 1;
}

void FrmMain::SSCommand32_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "lPaint";
    Paint_Shade = 1;
}

// The soft brushes. The menu items leave the brush kinds panel open, but for the tint
// brush's, and name the tools in their own words.
void FrmMain::AirBrush_Click() {
    Tool_Mode = "Air";
    SSPanel3.Caption = "Air Brush";
}

void FrmMain::SSCommand13_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "Air";
    SSPanel3.Caption = "Airbrush Tool";
}

void FrmMain::BlurBrush_Click() {
    Tool_Mode = "Blur";
    SSPanel3.Caption = "Blurring Brush Tool";
}

void FrmMain::SSCommand16_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "Blur";
    SSPanel3.Caption = "Blurring Brush Tool";
}

// Neither way to the tint brush names it: SSPanel3 keeps the last tool's name. Meant.
void FrmMain::tnnt_Click() {
    Tool_Mode = "dTtint";
    SSPanel2.Visible = false;
}

void FrmMain::SSCommand33_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "dTtint";
}

// The colour replace has no menu item: a click with it lists the clicked colour's pixels.
void FrmMain::SSCommand15_Click() {
    SSPanel2.Visible = false;
    Tool_Mode = "Mask";
    SSPanel3.Caption = "Color Mask";
}

// Offered in the Tools menu, though it still says it is for the next version: the fill
// paints a cross, not an area.
void FrmMain::mFill_Click() {
    host_.MsgBox("NEXT BETA!", platform::kStyleOk);
    Tool_Mode = "Fill";
    SSPanel3.Caption = "Fill Area";
}

} // namespace tavrin
