// The text tool ("Text"): a click places it, Enter prints the line into the black
// preview Picture25, whose lit pixels become the offsets in Text_Pixels; "&Flip Text"
// mirrors the preview, "&Apply" stamps the offsets at the click into picture1 and the
// grid. The preview keeps only the shape: the stamp takes the colour current at Apply.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"
#include "tools/text_scan.h"

namespace tavrin {

void FrmMain::SSCommand20_Click() {
    Tool_Mode = "Text";
    SSPanel3.Caption = "Text Tool";
    SSPanel2.Visible = false;
}

// The canvas press of the tool, once the pointer is Cur_X, Cur_Y. The press has taken
// the undo snapshot already, so an undo after "&Apply" takes the stamp away.
void FrmMain::placeText() {
    Text_X = vb::CInt(Cur_X);
    Text_Y = vb::CInt(Cur_Y);
    SSPanel5.Visible = true;
}

// Text_Pixels anew, sized for the whole box as it stands, the lit pixels from entry 1 on
// and zeros behind them.
LitPixels FrmMain::scanTextPreview() {
    LitPixels lit = scanLitPixels(*Picture25.Image());
    Text_Pixels.ReDim(0, static_cast<int64_t>(Picture25.ScaleWidth * Picture25.ScaleHeight) + 1000);
    int64_t k = 1;
    for (const TextPixel& p : lit.pixels)
        Text_Pixels(k++) = p;
    return lit;
}

void FrmMain::Text7_KeyPress(int16_t& KeyAscii) {
    if (KeyAscii != 13) return;
    for (PictureBox* box : {&Picture25, &Picture16}) {
        box->Height = 1485;
        box->Width = 3495;
    }
    Picture25.Picture = nullptr;
    // The size of the last font dialog, 8 before any; the face and the styles the tool
    // bar set. Either counts from this Enter on.
    Picture25.Font.Size = CommonDialog1.FontSize;
    Picture25.ForeColor = Paint_Color;
    Picture25.CurrentX = 1;
    Picture25.CurrentY = 1;
    Picture25.Print(host_, Text7.Text);
    Picture25.Picture = Picture25.Image();
    const LitPixels lit = scanTextPreview();
    // The boxes shrink to the text, so that a flip mirrors it within its own width.
    for (PictureBox* box : {&Picture25, &Picture16}) {
        box->Width = 15.0 * lit.maxX + 100;
        box->Height = 15.0 * lit.maxY + 100;
    }
}

// "&Flip Text". The box keeps its size: flipping twice gives the text back.
void FrmMain::SSCommand2_Click() {
    Picture16.Picture = Picture25.Image();
    Picture25.Picture = nullptr;
    const double w = Picture25.ScaleWidth, h = Picture25.ScaleHeight;
    Picture25.PaintPicture(Picture16.Image(), w, 0, -w, h);
    scanTextPreview();
}

// "&Apply". Every statement is skipped alone when it fails. The walk covers the whole
// array: the zero entries behind the text all land on the clicked pixel, which is so
// always painted, also when no letter covers it. Meant. Before any Enter there is no
// array and only the repaint runs.
void FrmMain::SSCommand3_Click() {
    vb::resume([&] { Check_Color = Paint_Color; });
    vb::resume([&] { Temp_Color_Check(); });
    vb::resume([&] { Paint_Color = Check_Color; });
    vb::resume([&] {
        const int64_t last = Text_Pixels.UBound();
        for (int64_t k = 1; k <= last; ++k) {
            const TextPixel& p = Text_Pixels(k);
            const double x = p.X + Text_X, y = p.Y + Text_Y;
            picture1.PSet(x, y, Paint_Color);
            // Past the skin's edges as the brushes do: the grid takes nothing there.
            vb::resume([&] { storeSkinPixel(x, y); });
        }
    });
    vb::resume([&] { repaintCanvas(); });
}

// "&Close" and the title bar's button.
void FrmMain::SSCommand1_Click() { SSPanel5.Visible = false; }

void FrmMain::SSCommand10_Click() { SSPanel5.Visible = false; }

} // namespace tavrin
