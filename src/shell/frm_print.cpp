#include "shell/frm_print.h"

namespace tavrin {

FrmPrint::FrmPrint(platform::Host& host) : Form("frmPrint"), host_(host) {
    Click = [this] { Form_Click(); };
}

void FrmPrint::load() {
    Caption = "Tavrin PRINT FORM";
    BackColor = 0xFFFFFF;
    WindowState = 0;
    Width = 9420; // the client area
    Height = 7185;
    Label1.Move(60, 60, 9240, 270);
    Label1.Caption = "Printed By Tavrin";
    Label2.Move(60, 285, 9240, 270);
    Label2.Caption = "Tavrin PRINT FORM";
    picture1.Move(45, 1965, 7560, 5100);
    picture1.Picture = nullptr;
    loaded_ = true;
}

void FrmPrint::Form_Click() {
    host_.UnloadForm(*this);
    loaded_ = false;
}

} // namespace tavrin
