// Start and end of a run: Form_Load's defaults, the missing palette, the exit question.
#include "support/test_support.h"

namespace tavrin::test {
namespace {

using Lifecycle = EditorTest;

// Only the starting values no tool test would notice (a band at -1 was never drawn, so the
// first XOR band erases nothing); the current colour comes from Picture3, not the field.
TEST_F(Lifecycle, FormLoadSetsTheToolsStartingValues) {
    installGamePalette();
    frm.Cur_Color = 0x123456;
    frm.Form_Load();
    EXPECT_TRUE(host.messages().empty());
    std::string got;
    for (const vb::Variant& v :
         {frm.Band_Old_X, frm.Band_Old_Y, vb::Variant(frm.Brush_Size),
          vb::Variant(frm.Brush_Radius), vb::Variant(frm.Pan_Step), frm.Zoom_Factor, frm.Mask_Color,
          frm.Palette_Mode, frm.Tint_Value, frm.Wire_Color, vb::Variant(frm.Cur_Color)})
        got += v.str() + " ";
    EXPECT_EQ(got, "-1 -1 3 2 500 1 0.1 1 5 15 0 ");
    EXPECT_EQ(frm.Picture3.BackColor.get(), 0);
    EXPECT_EQ(frm.Text1.Text.get() + "," + frm.Text2.Text.get() + "," + frm.Text3.Text.get(),
              "0,0,0");
}

TEST_F(Lifecycle, WithoutThePaletteFileTheMessageShowsAndTheRestOfFormLoadRuns) {
    frm.Form_Load();
    ASSERT_EQ(host.messages().size(), 1u);
    EXPECT_EQ(host.messages()[0].text, "Path/File not found, or not a valid file.");
    EXPECT_EQ(frm.Picture2.Point(5, 5), frm.Picture2.BackColor.get()); // an empty picture
    EXPECT_EQ(frm.PCX_Header(2), 5);
    EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), "Ready...");
}

// Exit_Click asks the same; its answers are checked through the driver.
TEST_F(Lifecycle, ClosingAsksAndNoCancelsLeavingEverythingAsItWas) {
    installGamePalette();
    frm.Form_Load();
    const std::string before = controlSnapshot(frm);
    int16_t cancel = 0;
    host.answerMsgBox(platform::kMsgNo);
    frm.Form_Unload(cancel);
    EXPECT_EQ(cancel, 1);
    EXPECT_FALSE(host.ended());
    EXPECT_EQ(controlSnapshot(frm), before);
    host.answerMsgBox(platform::kMsgYes);
    EXPECT_THROW(frm.Form_Unload(cancel), vb::EndProgram);
    EXPECT_TRUE(host.ended());
    ASSERT_EQ(host.messages().size(), 2u); // one question each time, nothing saved
    EXPECT_EQ(host.messages()[1].text, "Exit Tavrin?");
    EXPECT_EQ(host.messages()[1].style, platform::kStyleYesNo);
}

} // namespace
} // namespace tavrin::test
