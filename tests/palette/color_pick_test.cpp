// Picking from the palette: the numbers, the XOR marker, the neighbour colours of the
// shaded brushes, the right button's mask, and the tint value slider.
#include "tools/canvas_fixture.h"

namespace tavrin::test {
namespace {

using ColorPick = CanvasTest;

TEST_F(ColorPick, PaletteClickSetsTheColourAndMovesOneMarker) {
    pick(40);
    const PalRecord& r = frm.Pal_Table(40);
    EXPECT_EQ(frm.Cur_Color, colourOf(40));
    EXPECT_EQ(frm.Picture15.BackColor.get(), colourOf(40));
    EXPECT_EQ(frm.Text1.Text.get(), std::to_string(r.Red));
    EXPECT_EQ(frm.Picture2.Point(r.Cell_X + 10, r.Cell_Y + 4), colourOf(40) ^ 0xFFFFFF);
    EXPECT_EQ(frm.Picture2.Point(r.Cell_X + 5, r.Cell_Y + 5), colourOf(40));
    pick(41);
    pick(41); // the same colour twice: still one marker
    const PalRecord& s = frm.Pal_Table(41);
    EXPECT_EQ(frm.Picture2.Point(r.Cell_X, r.Cell_Y), colourOf(40));
    EXPECT_EQ(frm.Picture2.Point(s.Cell_X, s.Cell_Y), colourOf(41) ^ 0xFFFFFF);

    pick(0); // record 0 takes no part: the game's palette repeats black at 127
    EXPECT_EQ(frm.Color_Index, 127);
    EXPECT_EQ(frm.Pick_Y, frm.Pal_Table(127).Cell_Y);
}

TEST_F(ColorPick, EveryPickFindsTheCellsNeighboursAlongItsRow) {
    pick(40);
    EXPECT_EQ((std::vector<int32_t>{frm.Prior_Color_2, frm.Prior_Color_1, frm.Next_Color_1,
                                    frm.Next_Color_2}),
              (std::vector<int32_t>{colourOf(38), colourOf(39), colourOf(41), colourOf(42)}));
    pick(47); // the row's last cell: past it lies only the marker's edge
    EXPECT_EQ(frm.Next_Color_1, colourOf(47) ^ 0xFFFFFF);
}

TEST_F(ColorPick, RightButtonFlipsTheMaskWhileThePanelShowsDuringThePress) {
    frm.Picture2_MouseDown(2, 0, 27, 49); // record 66
    EXPECT_TRUE(frm.SSPanel4.Visible);
    EXPECT_EQ(frm.Label2.Caption.get() + "/" + frm.Text6.Text.get(), "Mask On/On");
    EXPECT_EQ(frm.Mask_Color, colourOf(66));
    frm.Picture2_MouseUp(2, 0, 27, 49);
    EXPECT_FALSE(frm.SSPanel4.Visible);
    pick(70, 2); // turning it off picks the clicked colour too
    EXPECT_EQ(frm.Label2.Caption.get() + "/" + frm.Text6.Text.get(), "Mask Off/Off");
    EXPECT_EQ(frm.Mask_Color, 0.1);
    EXPECT_EQ(frm.Cur_Color, colourOf(70));
    EXPECT_EQ(frm.Picture24.BackColor.get(), colourOf(66));
}

TEST_F(ColorPick, TintSliderSetsTheDivisorAndShowsItsSample) {
    EXPECT_EQ(frm.Picture13.Point(20, 40), frm.Picture8.Point(20, 40));
    for (int value : {4, 0}) { // 0 is no position: nothing changes
        frm.Slider1.Value = value;
        frm.Slider1.Change();
        EXPECT_EQ(frm.Tint_Value, 2);
        EXPECT_EQ(frm.Picture13.Point(20, 40), frm.Picture9.Point(20, 40));
    }
    // The strongest tint gives the lightest sample.
    EXPECT_GT(frm.Picture12.Point(20, 10) & 0xFF, frm.Picture9.Point(20, 10) & 0xFF);
}

} // namespace
} // namespace tavrin::test
