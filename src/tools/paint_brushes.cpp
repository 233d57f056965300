// The pencil ("Draw"), the paint brush ("dPaint", "lPaint") and the brush size pair.
// The canvas frame hands them the skin pixel and the snapped colour; every pixel is
// written to the picture and then to the grid, which keeps the two in step.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"

namespace tavrin {

// The array's bound is the only check the frame knows: a position outside it raises and
// ends the event. A column left or right of the skin still lands inside the array, in a
// neighbouring row; that cell is left alone rather than painted from the wrong side.
void FrmMain::storeSkinPixel(double x, double y, const Variant& index) {
    int16_t& cell = Skin_Grid(y * Skin_Width.num() + x);
    if (x < 0 || x >= Skin_Width.num() || y < 0 || y >= Skin_Height.num()) return;
    cell = vb::CInt(index);
}

void FrmMain::storeSkinPixel(double x, double y) { storeSkinPixel(x, y, Color_Index); }

// The mask is tested against the canvas pixel under the pointer; an off mask (0.1)
// never matches.
void FrmMain::pencilAt(float X, float Y) {
    if (Mask_Color != Picture7.Point(X, Y)) {
        picture1.PSet(Cur_X, Cur_Y, Paint_Color);
        storeSkinPixel(Cur_X, Cur_Y);
    }
}

// Nine pixels round Cur_X, Cur_Y whatever the brush size. The centre's mask test reads
// the canvas, the ring's reads picture1. Beyond picture1's right edge Point gives -1,
// which passes the test: the two grid columns that picture1 lacks take the index
// though nothing shows. Meant.
void FrmMain::paintBrushAt(float X, float Y) {
    int32_t side = Paint_Color, corner = Paint_Color;
    if (Paint_Shade == 1) {
        const bool dark = Tool_Mode == "dPaint";
        side = dark ? Next_Color_1 : Prior_Color_1;
        corner = dark ? Next_Color_2 : Prior_Color_2;
    }
    const double x = Cur_X, y = Cur_Y;
    if (Mask_Color != Picture7.Point(X, Y)) {
        picture1.PSet(x, y, Paint_Color);
        storeSkinPixel(x, y);
    }
    struct Neighbour {
        int dx, dy;
        bool corner;
    };
    // Sides first, then corners. The grid takes the centre's index for all nine: a Dark
    // or Light stroke is saved as a solid block, its edge colours live on the picture only.
    static constexpr Neighbour ring[] = {{1, 0, false},  {-1, 0, false}, {0, 1, false},
                                         {0, -1, false}, {-1, -1, true}, {-1, 1, true},
                                         {1, -1, true},  {1, 1, true}};
    for (const Neighbour& n : ring) {
        const double px = x + n.dx, py = y + n.dy;
        if (Mask_Color != picture1.Point(px, py)) {
            picture1.PSet(px, py, n.corner ? corner : side);
            storeSkinPixel(px, py);
        }
    }
}

void FrmMain::setBrushSize(bool ninePixels) {
    Brush_Size = ninePixels ? 3 : 1;
    Brush_Radius = ninePixels ? 2 : 1;
    p9.Checked = ninePixels;
    Pop9.Checked = ninePixels;
    p1.Checked = !ninePixels;
    Pop1.Checked = !ninePixels;
}

// Meant: each item decides from its own mark, so choosing the size already in force
// switches to the other size.
void FrmMain::p1_Click() { setBrushSize(p1.Checked); }

void FrmMain::p9_Click() { setBrushSize(!p9.Checked); }

} // namespace tavrin
