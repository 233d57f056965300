// The canvas's mouse events as a user drives them: strokes at several zooms, the press's
// edge test, the mask, strokes that leave the canvas or the skin, the popup, the
// eye-dropper, the pan, and presses before any image.
#include "tools/canvas_fixture.h"

namespace tavrin::test {
namespace {

using CanvasMouse = CanvasTest;

TEST_F(CanvasMouse, PencilStrokesAtZoomOneTwoFoldAndHalf) {
    pick(200);
    frm.pEdit_Click();
    down(10, 10);
    move(14, 12); // no line between events: (12, 11) stays
    EXPECT_EQ(grid(14, 12), 200);
    EXPECT_EQ(frm.picture1.Point(10, 10), colourOf(200));
    EXPECT_EQ(frm.Picture7.Point(14, 12), colourOf(200));
    EXPECT_EQ(grid(12, 11), skinIndex(12, 11));
    move(20, 7, 0); // without a button nothing paints
    EXPECT_EQ(grid(20, 7), skinIndex(20, 7));

    frm.mZoom_Click();
    down(10, 10);
    down(10, 10);
    EXPECT_EQ(frm.Zoom_Factor, 4);
    EXPECT_EQ(frm.Picture7.innerWidth(), 38 * 4);
    frm.pEdit_Click();
    down(43, 22); // four canvas pixels per skin pixel
    EXPECT_EQ(grid(10, 5), 200);
    EXPECT_EQ(frm.Picture7.Point(40, 20), colourOf(200));
    EXPECT_EQ(frm.Picture7.Point(39, 20), colourOf(skinIndex(9, 5)));

    frm.mZoom_Click();
    for (int i = 0; i < 3; ++i)
        down(10, 10, 2); // back to 1, then half
    EXPECT_EQ(frm.Zoom_Factor, 0.5);
    // The scale follows the canvas as it became, 19 x 16 for 38 x 31.
    EXPECT_EQ(frm.Scale_X, 0.5);
    EXPECT_FLOAT_EQ(static_cast<float>(frm.Scale_Y.num()), 16.0f / 31.0f);
    frm.pEdit_Click();
    down(5, 5);
    EXPECT_EQ(grid(10, 9), 200);
}

TEST_F(CanvasMouse, EdgeTestStopsOnlyAPressAndTheMaskStopsEachPixel) {
    pick(32, 2); // the mask protects index 32: the stripes where x + y is a multiple of 8
    pick(200);
    frm.pEdit_Click();
    frm.Skin_Grid(0) = 77;
    down(1, 10);
    EXPECT_EQ(grid(1, 10), skinIndex(1, 10));
    EXPECT_EQ(frm.Undo_Grid(0), 77); // the snapshot was taken all the same
    move(1, 10);
    EXPECT_EQ(grid(1, 10), 200);
    down(8, 8, 1, 3); // Shift with Ctrl paints, but the mask colour is under the pointer
    EXPECT_EQ(grid(8, 8), 32);

    frm.SSCommand30_Click();
    move(10, 6);
    for (int y = 5; y <= 7; ++y)
        for (int x = 9; x <= 11; ++x)
            EXPECT_EQ(grid(x, y), skinIndex(x, y) == 32 ? 32 : 200) << x << "," << y;
}

TEST_F(CanvasMouse, DarkAndLightBrushesShadeTheRingOnThePictureOnly) {
    pick(40);
    frm.SSCommand12.Click(); // the kinds panel
    frm.SSCommand31.Click();
    frm.p9.Click(); // choosing the checked size gives the other; the brush stays nine pixels
    move(10, 10);
    EXPECT_EQ(frm.picture1.Point(10, 9), colourOf(41));
    EXPECT_EQ(frm.picture1.Point(9, 9), colourOf(42));
    EXPECT_EQ(grid(9, 9), 40);
    frm.SSCommand32_Click();
    move(20, 20);
    EXPECT_EQ(frm.picture1.Point(21, 20), colourOf(39));
    EXPECT_EQ(frm.picture1.Point(21, 21), colourOf(38));
}

TEST_F(CanvasMouse, StrokesBeyondTheEdges) {
    pick(200);
    frm.SSCommand30_Click();
    move(38.4f, 10); // right of the canvas: the two hidden grid columns take the paint
    EXPECT_EQ(grid(38, 9), 200);
    EXPECT_EQ(grid(39, 11), 200);
    EXPECT_EQ(frm.picture1.Point(37, 10), colourOf(200));

    move(5, 0); // top row: the side above has a negative position and ends the event
    EXPECT_EQ(frm.picture1.Point(5, 0), colourOf(200));
    EXPECT_EQ(frm.picture1.Point(4, 1), colourOf(skinIndex(4, 1))); // corners never came
    EXPECT_EQ(frm.Picture7.Point(5, 0), colourOf(skinIndex(5, 0))); // nor the repaint

    frm.pEdit_Click();
    move(-0.5f, 3); // floored, not truncated; the cell it lands on in the row above is left
    EXPECT_EQ(frm.Text5.Text.get(), "-1");
    EXPECT_EQ(grid(kW - 1, 2), skinIndex(kW - 1, 2));
    EXPECT_EQ(frm.Picture7.Point(5, 0), colourOf(200));
}

TEST_F(CanvasMouse, RightButtonPopupEyeDropperAndShiftPan) {
    std::vector<std::string> popped;
    host.onPopup = [&](platform::MenuItem& m) { popped.push_back(m.name()); };
    frm.pEdit_Click();
    frm.Skin_Grid(0) = 77;
    down(10, 10, 2);
    EXPECT_EQ(popped, std::vector<std::string>{"Pop"});
    EXPECT_EQ(frm.Undo_Grid(0), 0); // no snapshot

    down(12, 3, 2, 1); // picks the pixel under the pointer, opens nothing
    move(13, 3, 2, 1);
    EXPECT_EQ(popped.size(), 1u);
    EXPECT_EQ(frm.Color_Index, skinIndex(13, 3));
    EXPECT_EQ(frm.Picture15.BackColor.get(), colourOf(skinIndex(13, 3)));

    const double left = frm.Picture7.Left, top = frm.Picture7.Top;
    down(10, 6, 1, 1);
    move(14, 12, 1, 1);
    move(14, 12, 1, 1); // the grabbed point is kept: the canvas moves once more
    EXPECT_EQ(frm.Picture7.Left.get(), left + 120);
    EXPECT_EQ(frm.Picture7.Top.get(), top + 180);
    EXPECT_EQ(grid(14, 12), skinIndex(14, 12));
}

// What keeps a stroke cheap at any zoom: the press shares the picture instead of copying
// it, and the canvas holds one stretched picture however many moves came.
TEST_F(CanvasMouse, AStrokeKeepsTheCanvasToOnePicture) {
    for (int i = 0; i < 3; ++i)
        down(10, 10);
    EXPECT_EQ(frm.Picture6.Picture.get(), frm.picture1.Image());
    frm.pEdit_Click();
    down(100, 100);
    for (int i = 0; i < 40; ++i) {
        move(100.0f + 2 * i, 120);
        ASSERT_EQ(frm.Picture7.displayListSize(), 1u);
    }
}

TEST(CanvasWithoutImage, PressesAndUndoDoNothingUntilAGridExists) {
    platform::ScriptedHost host;
    FrmMain frm{host};
    frm.Form_Load();
    const std::string before = controlSnapshot(frm);
    const std::size_t shown = host.messages().size();
    frm.Picture7_MouseDown(1, 0, 5, 5);
    frm.Undo_Click();
    EXPECT_EQ(controlSnapshot(frm), before);
    frm.Skin_Grid.ReDim(0, 10); // a grid with no open command behind it meets the guard
    frm.Undo_Grid.ReDim(0, 10);
    frm.Picture7_MouseDown(1, 0, 5, 5);
    ASSERT_EQ(host.messages().size(), shown + 1);
    EXPECT_EQ(host.messages().back().text, "Image not loaded.");
}

} // namespace
} // namespace tavrin::test
