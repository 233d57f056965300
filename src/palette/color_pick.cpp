// Choosing the current colour from the palette picture or, with the eye-dropper, from
// the canvas. Both end the same way (snapped to the palette, marker moved, numbers
// shown); the palette's right button doubles as the colour mask switch.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"

#include <string>

namespace tavrin {

namespace {

// One direction along the palette's row: past the current colour to the first pixel
// that differs (with the marker in place, the marker's edge), then the first colour
// after that edge, then the next colour after that one. -1 marks the end of the row.
void walkRow(const PictureBox& palette, double x, double y, int step, int32_t current,
             int32_t& first, int32_t& second) {
    int32_t edge = palette.Point(x, y);
    while (edge == current) {
        x += step;
        edge = palette.Point(x, y);
    }
    first = edge;
    while (first == edge && first != -1) {
        x += step;
        first = palette.Point(x, y);
    }
    if (first == -1) first = edge;
    second = first;
    while (second == first && second != -1) {
        x += step;
        second = palette.Point(x, y);
    }
    if (second == -1) second = first;
}

} // namespace

// The Dark and Light brushes paint their edges in these colours; we work them out at
// every pick on the palette so that those edges are the cell's real neighbours.
void FrmMain::Get_Next_Color() {
    try {
        const double x = vb::CLng(Pal_X);
        const double y = Pal_Y;
        walkRow(Picture2, x, y, +1, Cur_Color, Next_Color_1, Next_Color_2);
        walkRow(Picture2, x, y, -1, Cur_Color, Prior_Color_1, Prior_Color_2);
    } catch (const vb::Error&) {
    }
}

// The marker is an XOR outline, so drawing it again where it stands erases it: the old
// one is redrawn first. Meant: record 0 never matches, so its cell is never marked; a
// click there marks the nearest other colour's cell.
void FrmMain::markPickedColor() {
    Picture2.DrawMode = platform::kXorPen;
    for (int n = 1; n <= 256; ++n) {
        const PalRecord& record = Pal_Table(n);
        if (Color_Index != record.Index) continue;
        if (Pick_Colored == 1)
            Picture2.Line(Pick_X, Pick_Y, Pick_X + 10, Pick_Y + 10, 0xFFFFFF, platform::kBoxKind);
        Pick_Colored = 1;
        Pick_X = record.Cell_X;
        Pick_Y = record.Cell_Y;
        Text1.Text = std::to_string(record.Red);
        Text2.Text = std::to_string(record.Green);
        Text3.Text = std::to_string(record.Blue);
        Picture2.Line(Pick_X, Pick_Y, Pick_X + 10, Pick_Y + 10, 0xFFFFFF, platform::kBoxKind);
        break;
    }
    Picture2.DrawMode = platform::kCopyPen;
}

// Off the canvas Point gives -1, which matches no record: the match hands back the
// colour it found last.
void FrmMain::eyeDropperPick(float X, float Y) {
    Check_Color = Picture7.Point(X, Y);
    Temp_Color_Check();
    Cur_Color = Check_Color;
    RGB_Color();
    markPickedColor();
    Picture15.BackColor = Cur_Color;
}

// Any button picks; the right one then flips the mask, so turning the mask off changes
// the current colour too. Meant.
void FrmMain::Picture2_MouseDown(int16_t Button, int16_t, float X, float Y) {
    try {
        Pal_X = X;
        Pal_Y = Y;
        Cur_Color = Picture2.Point(X, Y);
        Check_Color = Cur_Color;
        Temp_Color_Check();
        Cur_Color = Check_Color;
        Picture15.BackColor = Cur_Color;
        RGB_Color();
        markPickedColor();
        Get_Next_Color();
        if (Button != 2) return;
        SSPanel4.Visible = true;
        if (Mask_State == 0) {
            Label2.Caption = "Mask On";
            Picture24.BackColor = Cur_Color;
            Picture24.Refresh();
            Text6.Text = "On";
            Mask_Color = Cur_Color;
            Mask_State = 1;
        } else if (Mask_State == 1) {
            // Picture24 keeps the colour that was protected.
            Label2.Caption = "Mask Off";
            Text6.Text = "Off";
            Mask_Color = 0.1;
            Mask_State = 0;
        }
    } catch (const vb::Error&) {
    }
}

// The mask flag shows only while a button is down on the palette.
void FrmMain::Picture2_MouseUp(int16_t, int16_t, float, float) { SSPanel4.Visible = false; }

} // namespace tavrin
