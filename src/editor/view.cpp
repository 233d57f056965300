// The canvas Picture7 shows picture1 stretched; it keeps nothing of its own, so it is
// repainted after every change and whenever the window comes back.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"

namespace tavrin {

void FrmMain::repaintCanvas() {
    Picture7.PaintPicture(picture1.Image(), 0, 0, Picture7.ScaleWidth, Picture7.ScaleHeight);
}

void FrmMain::ri_Click() {
    repaintCanvas();
    host_.DoEvents();
}

void FrmMain::frmCenter() {
    Picture7.Left = Width / 2 - Picture7.Width / 2;
    Picture7.Top = Height / 2 - Picture7.Height / 2;
    Picture7.Refresh();
    repaintCanvas();
    host_.DoEvents();
}

// Starting at 1 and counting the read that fails too makes each count the picture's size
// in pixels.
void FrmMain::Calc_Pixels() {
    try {
        for (double x = 1;; ++x) {
            int32_t c = picture1.Point(x, 1);
            Pixel_Width = vb::wrap16(Pixel_Width + 1);
            if (c == -1) break;
        }
        for (double y = 1;; ++y) {
            int32_t c = picture1.Point(1, y);
            Pixel_Height = vb::wrap16(Pixel_Height + 1);
            if (c == -1) break;
        }
    } catch (const vb::Error&) {
    }
}

void FrmMain::prepareOpenCommand(const char* pattern, const char* title, const char* kind) {
    // The old picture goes before the dialog opens, also if the user cancels.
    Picture7.Picture = nullptr;
    picture1.Picture = nullptr;
    Picture7.Visible = false;
    picture1.Visible = false;
    picture1.Refresh();
    prepareFileDialog(pattern, title, kind);
    Image_Missing = 2;
    Zoom_Factor = 1;
    Pixel_Width = 0;
    Scale_X = 1;
    Pixel_Height = 0;
    Scale_Y = 1;
}

// The dialog proposes the pattern as the file's name.
void FrmMain::prepareFileDialog(const char* pattern, const char* title, const char* kind) {
    CommonDialog1.FileName = pattern;
    CommonDialog1.Pattern = pattern;
    CommonDialog1.DialogTitle = title;
    if (kind) CommonDialog1.KindText = kind;
}

void FrmMain::askFileToOpen() {
    platform::showOpen(host_, CommonDialog1);
    File_Name = CommonDialog1.FileName;
}

void FrmMain::showLoadedPictureStart() {
    ActualPixels_Click();
    fitCanvasToPicture();
}

void FrmMain::fitCanvasToPicture() {
    Picture7.Width = picture1.Width;
    Picture7.Height = picture1.Height;
    Calc_Pixels();
}

void FrmMain::showLoadedPictureEnd(double panelExtraHeight, void (FrmMain::*betweenCenters)()) {
    Picture7.Top = picture1.Height + picture1.Top + 200;
    Picture7.Left = picture1.Left;
    Skin_Cols = static_cast<float>(picture1.ScaleWidth);
    Skin_Rows = vb::CInt(picture1.ScaleHeight);
    SSPanel11.Width = picture1.Width + 100;
    SSPanel11.Height = picture1.Height + panelExtraHeight;
    SSPanel12.Width = SSPanel11.Width - 75;
    SSCommand11.Left = SSPanel11.Width - 350;
    Picture7.Visible = true;
    picture1.Visible = true;
    SSPanel11.Visible = true;
    repaintCanvas();
    host_.DoEvents();
    frmCenter();
    if (betweenCenters)
        (this->*betweenCenters)();
    else
        Tool_Mode = "Zoom";
    frmCenter();
    Tool_Mode = "Zoom";
}

void FrmMain::Form_Resize() {
    SSPanel1.Left = Width - 3275;
    SSPanel13.Left = Width - 2405;
    SSPanel2.Left = Width - 3125;
    SSPanel15.Top = Height - 2000;
    repaintCanvas();
    host_.DoEvents();
}

void FrmMain::Form_GotFocus() { ri_Click(); }

// Panning moves the canvas control itself; nothing keeps it on the window.
void FrmMain::SSCommand21_Click() {
    SSPanel2.Visible = false;
    Pan_Step = 500;
    SSPanel3.Caption = "Zoom - Pan 500";
}

void FrmMain::SSCommand22_Click() {
    SSPanel2.Visible = false;
    Pan_Step = 5000;
    SSPanel3.Caption = "Zoom - Pan 5000";
}

void FrmMain::moveCanvas(platform::TwipsProp& edge, double twips) {
    SSPanel2.Visible = false;
    edge += twips;
    Picture7.Refresh();
    repaintCanvas();
}

void FrmMain::SSCommand23_Click() { moveCanvas(Picture7.Left, Pan_Step); }
void FrmMain::SSCommand24_Click() { moveCanvas(Picture7.Left, -Pan_Step); }
void FrmMain::SSCommand25_Click() { moveCanvas(Picture7.Top, Pan_Step); }
void FrmMain::SSCommand26_Click() { moveCanvas(Picture7.Top, -Pan_Step); }

} // namespace tavrin
