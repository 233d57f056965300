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

} // namespace tavrin
