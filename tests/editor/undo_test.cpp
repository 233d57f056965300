// One level of undo as the user meets it: after a stroke, after a zoom click or a pan
// press, and right after a load.
#include "tools/canvas_fixture.h"

namespace tavrin::test {
namespace {

using Undo = CanvasTest;

TEST_F(Undo, StrokeIsUndoneWholeAndTwiceEqualsOnce) {
    frm.pEdit_Click();
    pick(200);
    down(10, 10);
    move(14, 10);
    for (int i = 0; i < 2; ++i) {
        frm.Undo_Click();
        EXPECT_EQ(grid(14, 10), skinIndex(14, 10));
        EXPECT_EQ(frm.picture1.Point(10, 10), colourOf(skinIndex(10, 10)));
        EXPECT_EQ(frm.Picture7.Point(14, 10), colourOf(skinIndex(14, 10)));
    }
}

TEST_F(Undo, ZoomClickReplacesTheSnapshotAndAPanPressKeepsOnlyTheGrid) {
    frm.pEdit_Click();
    pick(200);
    down(10, 10);
    frm.mZoom_Click();
    down(10, 10);
    frm.Undo_Click();
    EXPECT_EQ(grid(10, 10), 200);
    EXPECT_EQ(frm.picture1.Point(10, 10), colourOf(200));

    frm.pEdit_Click();
    down(30, 30);
    down(20, 20, 1, 1);
    frm.Undo_Click(); // the picture of the last full snapshot over a grid that keeps the paint
    EXPECT_EQ(frm.picture1.Point(15, 15), colourOf(skinIndex(15, 15)));
    EXPECT_EQ(grid(15, 15), 200);
}

TEST_F(Undo, RightAfterALoadItGivesZerosAndThePictureOfBeforeTheLoad) {
    frm.Undo_Click();
    EXPECT_EQ(grid(3, 3), 0);
    EXPECT_EQ(frm.picture1.Point(3, 3), 0); // no press yet: nothing was kept
}

} // namespace
} // namespace tavrin::test
