// The brushes that mix rather than lay a colour, the fill's cross, the whole-skin lighten,
// Diffuse and the colour replace, driven on a small skin. A grey ramp palette (record i is
// grey i) makes every matched mean its own index, so the worked numbers read straight off
// the grid.
#include "tools/canvas_fixture.h"

#include <set>
#include <utility>

namespace tavrin::test {
namespace {

constexpr int kCx = 15, kCy = 12; // far from the canvas's edges

class SoftBrushes : public CanvasTest {
protected:
    void greyRamp() {
        Bytes pal;
        for (int i = 0; i < 256; ++i)
            pal.insert(pal.end(), 3, static_cast<uint8_t>(i));
        loadPalette(pal);
    }
    // Every cell of the grid index v, and its pixel on picture1 the matching grey.
    void flat(int v) {
        for (int i = 0; i < kW * kH; ++i)
            frm.Skin_Grid(i) = static_cast<int16_t>(v);
        for (int y = 0; y < kPicH; ++y)
            for (int x = 0; x < kPicW; ++x)
                frm.picture1.PSet(x, y, packed(v, v, v));
    }
    static constexpr int32_t kMarker = packed(1, 2, 3); // no grey: marks an untouched pixel
    void markPicture() {
        for (int y = 0; y < kPicH; ++y)
            for (int x = 0; x < kPicW; ++x)
                frm.picture1.PSet(x, y, kMarker);
    }
    std::set<std::pair<int, int>> touched() {
        std::set<std::pair<int, int>> s;
        for (int y = 0; y < kPicH; ++y)
            for (int x = 0; x < kPicW; ++x)
                if (frm.picture1.Point(x, y) != kMarker) s.insert({x, y});
        return s;
    }
};

// A dab of grey 180 on black: each pixel takes the share of painted cells round it, the
// centre is then set pure. Worked by hand from the ring (eight cells) and the cross (four).
TEST_F(SoftBrushes, AirbrushDabMixesThePaintedCellsAndSetsTheCentrePure) {
    struct Case {
        const char* name;
        bool nine;
        int expected[5][5]; // rows -2..2, columns -2..2; -1: untouched
    };
    const Case cases[] = {
        {"9 Pixels",
         true,
         {{20, 40, 60, 40, 20},
          {40, 60, 100, 60, 40},
          {60, 100, 180, 100, 60},
          {40, 60, 100, 60, 40},
          {20, 40, 60, 40, 20}}},
        {"1 Pixels",
         false,
         {{-1, -1, -1, -1, -1},
          {-1, 40, 60, 40, -1},
          {-1, 60, 180, 60, -1},
          {-1, 40, 60, 40, -1},
          {-1, -1, -1, -1, -1}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        greyRamp();
        flat(0);
        if (!c.nine) frm.p1_Click();
        pick(180);
        frm.AirBrush_Click();
        down(kCx, kCy);
        for (int dy = -2; dy <= 2; ++dy)
            for (int dx = -2; dx <= 2; ++dx) {
                const int want = c.expected[dy + 2][dx + 2] < 0 ? 0 : c.expected[dy + 2][dx + 2];
                EXPECT_EQ(grid(kCx + dx, kCy + dy), want) << dx << "," << dy;
                EXPECT_EQ(frm.picture1.Point(kCx + dx, kCy + dy), packed(want, want, want));
            }
        // Nothing random: the same dab on the same cells gives the same pixels; and a
        // dab over its own colour changes nothing.
        flat(180);
        move(kCx, kCy);
        for (int dy = -2; dy <= 2; ++dy)
            for (int dx = -2; dx <= 2; ++dx)
                EXPECT_EQ(grid(kCx + dx, kCy + dy), 180);
        if (!c.nine) frm.p9_Click();
    }
}

TEST_F(SoftBrushes, TheMaskStopsADabOnlyWhenItsColourIsUnderThePointer) {
    greyRamp();
    flat(0);
    frm.Skin_Grid(kCy * kW + kCx) = 90;
    frm.picture1.PSet(kCx, kCy, packed(90, 90, 90));
    frm.ri_Click();
    pick(90, 2); // mask grey 90
    pick(180);
    frm.SSCommand13_Click();
    down(kCx, kCy);
    EXPECT_EQ(grid(kCx + 1, kCy), 0);
    move(kCx + 1, kCy); // beside it: the masked pixel is smoothed all the same
    EXPECT_NE(grid(kCx, kCy), 90);
    EXPECT_EQ(grid(kCx + 1, kCy), 180);
}

// How many pixels each brush works out: the blur brush's square is 2 x reach + 1 wide,
// the tint brush's the brush's own size.
TEST_F(SoftBrushes, BlurAndTintBrushSquares) {
    struct Case {
        const char* name;
        void (FrmMain::*tool)();
        bool nine;
        int side;
    };
    const Case cases[] = {
        {"blur at 9", &FrmMain::SSCommand16_Click, true, 5},
        {"blur at 1", &FrmMain::BlurBrush_Click, false, 3},
        {"tint at 9", &FrmMain::SSCommand33_Click, true, 3},
        {"tint at 1", &FrmMain::tnnt_Click, false, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        if (!c.nine) frm.p1_Click();
        (frm.*c.tool)();
        markPicture();
        down(kCx, kCy);
        std::set<std::pair<int, int>> want;
        const int r = c.side / 2;
        for (int dy = -r; dy <= r; ++dy)
            for (int dx = -r; dx <= r; ++dx)
                want.insert({kCx + dx, kCy + dy});
        EXPECT_EQ(touched(), want);
        if (!c.nine) frm.p9_Click();
    }
    // The wide tint leaves the pointer's position one higher until the next move.
    frm.SSCommand33_Click();
    down(kCx, kCy);
    EXPECT_EQ(frm.Cur_X, kCx + 1);
    EXPECT_EQ(frm.Cur_Y, kCy + 1);
}

// A cross of four runs from the seed, each to the first other colour or the edge.
TEST_F(SoftBrushes, FillPaintsTheCrossNotTheArea) {
    struct Case {
        const char* name;
        int seedX, seedY;
        int fill; // grey index picked
        int painted;
    };
    // A grey 60 field with a one-pixel grey 90 post at (20, 12).
    const Case cases[] = {
        {"stopped by the post on the right", 15, 12, 200, kPicH + 5 + 15 - 1},
        {"runs to the edges", 10, 20, 200, kPicH + kPicW - 1},
        {"the seed already has the fill colour", 10, 20, 60, kPicH + kPicW - 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        greyRamp();
        flat(60);
        frm.picture1.PSet(20, 12, packed(90, 90, 90));
        pick(c.fill);
        frm.mFill_Click();
        down(c.seedX, c.seedY);
        int n = 0;
        for (int y = 0; y < kPicH; ++y)
            for (int x = 0; x < kPicW; ++x) {
                const bool inCross = x == c.seedX || y == c.seedY;
                const bool isFill = frm.picture1.Point(x, y) == packed(c.fill, c.fill, c.fill) &&
                                    grid(x, y) == c.fill;
                if (isFill && c.fill != 60) ++n;
                if (!inCross && !(x == 20 && y == 12)) {
                    EXPECT_EQ(frm.picture1.Point(x, y), packed(60, 60, 60)) << x << "," << y;
                }
            }
        if (c.fill != 60) {
            EXPECT_EQ(n, c.painted);
        }
        EXPECT_EQ(frm.picture1.Point(20, 12), packed(90, 90, 90));
    }
}

TEST_F(SoftBrushes, LightenImageLightensAllButTheBorderAndKeepsTheTool) {
    greyRamp();
    flat(100);
    frm.picture1.PSet(37, 30, packed(7, 7, 7));
    frm.pEdit_Click();
    frm.Lightt_Click();
    EXPECT_EQ(frm.Tool_Mode, "Draw");
    EXPECT_EQ(frm.Cur_Color, packed(7, 7, 7)); // the last pixel read
    EXPECT_EQ(frm.picture1.Point(0, 5), packed(100, 100, 100));
    EXPECT_EQ(frm.picture1.Point(5, 0), packed(100, 100, 100));
    EXPECT_EQ(frm.picture1.Point(5, 5), packed(113, 113, 113));
    EXPECT_EQ(grid(5, 5), 113);
    frm.Lightt_Click();
    EXPECT_EQ(grid(5, 5), 126);
}

// Diffuse over a flat field leaves it as it was two pixels inside the box, however the
// offsets fall.
TEST_F(SoftBrushes, DiffuseOfAFlatFieldKeepsItsInside) {
    greyRamp();
    flat(77);
    frm.Diffuse_Click();
    down(5, 5);
    move(30, 25);
    frm.Picture7_MouseUp(1, 0, 30, 25);
    for (int y = 7; y <= 22; ++y)
        for (int x = 7; x <= 27; ++x)
            EXPECT_EQ(grid(x, y), 77) << x << "," << y;
}

} // namespace
} // namespace tavrin::test
