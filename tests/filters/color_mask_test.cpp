// The colour replace driven on a small skin: a click lists every pixel of the clicked
// colour, the panel fits the skin but never shrinks below its design size, and the two
// buttons paint the listed pixels, as often as the user likes.
#include "tools/canvas_fixture.h"

#include <algorithm>

namespace tavrin::test {
namespace {

using ColorMask = CanvasTest;

TEST_F(ColorMask, AClickListsTheColoursPixelsAndTheButtonsPaintThem) {
    // Record 33 given record 32's colour: pixels of either index are listed together.
    Bytes pal = gamePalette();
    std::copy_n(pal.begin() + 3 * 32, 3, pal.begin() + 3 * 33);
    loadPalette(pal);
    for (int y = 0; y < kH; ++y)
        for (int x = 0; x < kPicW; ++x)
            frm.picture1.PSet(x, y, colourOf(grid(x, y)));
    const int32_t listed = colourOf(32);
    int expected = 0;
    for (int y = 0; y < kPicH; ++y)
        for (int x = 0; x < kPicW; ++x)
            expected += frm.picture1.Point(x, y) == listed ? 1 : 0;
    ASSERT_GT(expected, 0);

    frm.SSCommand15_Click();
    down(8, 8); // x + y = 16: index 32
    EXPECT_EQ(frm.Mask_Count, expected);
    EXPECT_EQ(frm.Cur_Color, listed);
    EXPECT_TRUE(frm.SSPanel7.Visible);
    EXPECT_TRUE(frm.Mask.Checked);
    EXPECT_FALSE(frm.SSPanel6.Visible);
    EXPECT_GE(frm.ProgressBar1.Value, frm.ProgressBar1.Max); // past it at the end: no failure
    EXPECT_EQ(frm.SSPanel7.Width, 4095);                     // a small skin: the design size
    EXPECT_EQ(frm.SSPanel7.Height, 4095);
    EXPECT_EQ(frm.Picture26.Point(8, 8), listed);
    EXPECT_EQ(frm.Picture26.Point(9, 8), listed); // index 33, the same colour
    EXPECT_EQ(frm.Picture26.Point(10, 8), 0);

    pick(200);
    move(20, 20);
    frm.SSCommand6_Click();
    for (int y = 0; y < kH; ++y)
        for (int x = 0; x < kPicW; ++x) {
            const bool inList = (x + y) % 8 <= 1 && y < kPicH;
            EXPECT_EQ(grid(x, y), inList ? 200 : skinIndex(x, y)) << x << "," << y;
        }
    EXPECT_EQ(frm.picture1.Point(9, 8), colourOf(200));
    // The list stays: the original colour comes back, matched to one record.
    frm.SSCommand5_Click();
    EXPECT_EQ(frm.picture1.Point(9, 8), listed);
    EXPECT_EQ(grid(9, 8), grid(8, 8));
    EXPECT_EQ(frm.Mask_Count, expected);

    // A second click replaces the list and clears the preview.
    down(10, 8);
    EXPECT_EQ(frm.Picture26.Point(8, 8), 0);
    EXPECT_EQ(frm.Picture26.Point(10, 8), colourOf(34));
}

} // namespace
} // namespace tavrin::test
