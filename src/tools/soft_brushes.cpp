// The brushes that change what lies under them rather than lay a colour: the airbrush
// ("Air"), which paints the grid round the pointer and smooths the square over it; the
// blur brush ("Blur"), the same smoothing alone; the tint brush ("dTtint"), the Tint
// filter over the pixels under the pointer. And the fill ("Fill"), four straight runs from
// the clicked pixel. The canvas frame has converted the pointer and snapped the colour.
#include "editor/frm_main.h"
#include "filters/work_buf_kernels.h"
#include "tools/shape_geometry.h"

namespace tavrin {

namespace {

// A position one pixel on, of the same numeric kind as it was.
Variant stepped(const Variant& v, int by) {
    if (v.kind() == Variant::Kind::Single) return Variant(static_cast<float>(v.num() + by));
    if (v.kind() == Variant::Kind::Double) return Variant(v.num() + by);
    return Variant(static_cast<long long>(v.num()) + by);
}

} // namespace

// Seven by seven cells into Work_Buf, whatever the reach, then the square of the reach
// smoothed with the 3 x 3 mean and matched to the palette whatever the colour mode.
// Nothing in it ends the event: a read or write that fails is passed over.
void FrmMain::Air_Brush1() {
    try {
        const int64_t x = cornerPixel(Brush_X), y = cornerPixel(Brush_Y), r = Brush_Radius;
        workBufPasses(filters::PassPlan{filters::PassArea{x - 3, y - 3, x + 3, y + 3},
                                        filters::PassArea{x - r, y - r, x + r, y + r},
                                        filters::Kernel::Blur});
    } catch (const vb::Error&) {
        // A centre that is no number: nothing is smoothed.
    }
}

void FrmMain::BlurBr() { Air_Brush1(); }

// Only the pixel under the pointer is tested against the mask. The paint goes into the
// grid alone and reaches the picture through the smoothing; the centre is then set pure,
// with the index its colour had before the smoothing used Color_Index as its own.
void FrmMain::airBrushAt(float X, float Y) {
    if (Mask_Color == Picture7.Point(X, Y)) return;
    const double c = Cur_X, r = Cur_Y;
    struct Cell {
        int dx, dy;
    };
    // In this order: a cell outside the grid's array ends the event at that cell.
    static constexpr Cell kRing[] = {{0, -1}, {0, 1},   {-1, 1}, {1, 1},
                                     {1, -1}, {-1, -1}, {1, 0},  {-1, 0}};
    static constexpr Cell kCross[] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}};
    if (Brush_Size == 3)
        for (const Cell& n : kRing)
            storeSkinPixel(c + n.dx, r + n.dy);
    else
        for (const Cell& n : kCross)
            storeSkinPixel(c + n.dx, r + n.dy);
    const Variant paintIndex = Color_Index;
    Brush_X = Cur_X;
    Brush_Y = Cur_Y;
    Air_Brush1();
    picture1.PSet(c, r, Paint_Color);
    storeSkinPixel(c, r, paintIndex);
}

void FrmMain::blurBrushAt() {
    Brush_X = Cur_X;
    Brush_Y = Cur_Y;
    BlurBr();
}

// The wide brush tints the 3 x 3 square, the narrow one the pixel; either way Cur_X and
// Cur_Y are the square's far corner afterwards, one past the pointer's pixel until the next
// move converts it again. No mask test.
void FrmMain::tintBrushAt() {
    if (Brush_Size == 3) {
        Band_X = stepped(Cur_X, -1);
        Cur_X = stepped(Cur_X, 1);
        Band_Y = stepped(Cur_Y, -1);
        Cur_Y = stepped(Cur_Y, 1);
    } else {
        Band_X = Cur_X;
        Band_Y = Cur_Y;
    }
    Tint_Area();
}

// Down, up, right, left from the seed, each run over the pixels of the seed's colour in
// line with it: a cross, not an area. The picture takes the picked colour as it is, the
// grid the frame's match of it. The seed is painted by every run. A run ends at the
// first other colour, and at the edge of the picture, where Point gives -1: also when the
// seed itself lies off the picture.
void FrmMain::fillAt() {
    const double x = Cur_X, y = Cur_Y;
    const int32_t seed = picture1.Point(x, y);
    struct Run {
        int dx, dy;
    };
    for (const Run& run : {Run{0, 1}, Run{0, -1}, Run{1, 0}, Run{-1, 0}}) {
        int32_t at = seed;
        for (double i = 0; at == seed; ++i) {
            picture1.PSet(x + run.dx * i, y + run.dy * i, Cur_Color);
            storeSkinPixel(x + run.dx * i, y + run.dy * i);
            at = picture1.Point(x + run.dx * (i + 1), y + run.dy * (i + 1));
            if (at == -1) break;
        }
    }
}

} // namespace tavrin
