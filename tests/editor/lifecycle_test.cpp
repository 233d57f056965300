// Start and end of a run: Form_Load's defaults, the missing palette, the exit question.
#include "support/test_support.h"

namespace tavrin::test {
namespace {

using Lifecycle = EditorTest;

// Only the starting values no tool test would notice; the window state, the status text,
// the palette and the scale show in the driver's start-up output.
TEST_F(Lifecycle, FormLoadSetsTheToolsStartingValues) {
    installGamePalette();
    frm.Cur_Color = 0x123456; // Form_Load takes it from Picture3 instead
    frm.Form_Load();

    EXPECT_TRUE(host.messages().empty());
    EXPECT_EQ(frm.Band_Old_X, -1);
    EXPECT_EQ(frm.Band_Old_Y, -1);
    EXPECT_EQ(frm.Brush_Size, 3);
    EXPECT_EQ(frm.Brush_Radius, 2);
    EXPECT_EQ(frm.Pan_Step, 500);
    EXPECT_EQ(frm.Zoom_Factor, 1);
    EXPECT_EQ(frm.Mask_Color, 0.1);
    EXPECT_EQ(frm.Palette_Mode, 1);
    EXPECT_EQ(frm.Tint_Value, 5);
    EXPECT_EQ(frm.Wire_Color, 15);
    EXPECT_EQ(frm.Cur_Color, frm.Picture3.BackColor.get());
    EXPECT_EQ(frm.Cur_Color, 0);
    EXPECT_EQ(frm.Text1.Text.get() + "," + frm.Text2.Text.get() + "," + frm.Text3.Text.get(),
              "0,0,0");
}

TEST_F(Lifecycle, WithoutThePaletteFileTheMessageShowsAndTheRestOfFormLoadRuns) {
    frm.Form_Load();
    ASSERT_EQ(host.messages().size(), 1u);
    EXPECT_EQ(host.messages()[0].text, "Path/File not found, or not a valid file.");
    EXPECT_EQ(frm.Pal_Table(1).Red, 0);
    EXPECT_EQ(frm.Picture2.Point(5, 5), frm.Picture2.BackColor.get()); // an empty picture
    EXPECT_EQ(frm.PCX_Header(2), 5);
    EXPECT_EQ(host.doEventsCount(), 1);
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
    ASSERT_EQ(host.messages().size(), 1u);
    EXPECT_EQ(host.messages()[0].text, "Exit Tavrin?");
    EXPECT_EQ(host.messages()[0].style, platform::kStyleYesNo);

    host.answerMsgBox(platform::kMsgYes);
    EXPECT_THROW(frm.Form_Unload(cancel), vb::EndProgram);
    EXPECT_TRUE(host.ended());
    EXPECT_EQ(host.messages().size(), 2u); // one question each time, nothing saved
}

} // namespace
} // namespace tavrin::test
