// Start and end of a run: Form_Load's defaults, the missing palette, the exit question.
#include "support/test_support.h"

namespace tavrin::test {
namespace {

using Lifecycle = EditorTest;

TEST_F(Lifecycle, FormLoadSetsTheDefaultsReadsThePaletteAndPreparesTheHeader) {
    installGamePalette();
    frm.Cur_Color = 0x123456; // Form_Load takes it from Picture3 instead
    frm.Form_Load();

    EXPECT_TRUE(host.messages().empty());
    EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), "Ready...");
    EXPECT_EQ(frm.WindowState, 2);
    EXPECT_EQ(frm.Pal_Path.str(), (dir.path() / "Quake2.PAL").string());
    EXPECT_EQ(frm.Band_Old_X, -1);
    EXPECT_EQ(frm.Band_Old_Y, -1);
    EXPECT_EQ(frm.Brush_Size, 3);
    EXPECT_EQ(frm.Brush_Radius, 2);
    EXPECT_EQ(frm.Pan_Step, 500);
    EXPECT_EQ(frm.Scale_X, 1);
    EXPECT_EQ(frm.Scale_Y, 1);
    EXPECT_EQ(frm.Image_Missing, 1);
    EXPECT_EQ(frm.Mask_Color, 0.1);
    EXPECT_EQ(frm.Zoom_Factor, 1);
    EXPECT_EQ(frm.Palette_Mode, 1);
    EXPECT_EQ(frm.Tint_Value, 5);
    EXPECT_EQ(frm.Wire_Color, 15);
    EXPECT_EQ(frm.Cur_Color, frm.Picture3.BackColor.get());
    EXPECT_EQ(frm.Cur_Color, 0);
    EXPECT_EQ(frm.Text1.Text.get(), "0");
    EXPECT_EQ(frm.Text2.Text.get(), "0");
    EXPECT_EQ(frm.Text3.Text.get(), "0");
    EXPECT_EQ(frm.Picture7.Width, frm.picture1.Width);
    EXPECT_EQ(frm.Picture7.Height, frm.picture1.Height);
    EXPECT_EQ(host.doEventsCount(), 1);

    // Still unset: no skin, no tool, until the first load.
    EXPECT_TRUE(frm.Tool_Mode.isEmpty());
    EXPECT_FALSE(frm.Skin_Grid.allocated());
    EXPECT_FALSE(frm.Picture7.Visible);
    EXPECT_FALSE(frm.picture1.Visible);

    Bytes game = gamePalette();
    EXPECT_EQ(frm.Pal_Table(255).Blue, game[767]);
    EXPECT_EQ(frm.Pal_Table(1).Red, game[3]);
    EXPECT_EQ(frm.PCX_Header(1), 10);
    EXPECT_EQ(frm.PCX_Header(67), 0x1C);
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

TEST_F(Lifecycle, ExitAndClosingAskTheSameQuestionAndNoLeavesEverythingAsItWas) {
    installGamePalette();
    frm.Form_Load();
    const std::string before = controlSnapshot(frm);

    host.answerMsgBox(platform::kMsgNo);
    frm.Exit_Click();
    int16_t cancel = 0;
    host.answerMsgBox(platform::kMsgNo);
    frm.Form_Unload(cancel);
    EXPECT_EQ(cancel, 1);
    EXPECT_FALSE(host.ended());
    EXPECT_EQ(controlSnapshot(frm), before);
    ASSERT_EQ(host.messages().size(), 2u);
    for (const auto& m : host.messages()) {
        EXPECT_EQ(m.text, "Exit Tavrin?");
        EXPECT_EQ(m.style, platform::kStyleYesNo);
    }

    host.answerMsgBox(platform::kMsgYes);
    EXPECT_THROW(frm.Exit_Click(), vb::EndProgram);
    EXPECT_TRUE(host.ended());

    platform::ScriptedHost other(dir.path().string());
    FrmMain second(other);
    other.answerMsgBox(platform::kMsgYes);
    cancel = 0;
    EXPECT_THROW(second.Form_Unload(cancel), vb::EndProgram);
    EXPECT_TRUE(other.ended());
    EXPECT_EQ(other.messages().size(), 1u); // no second question, nothing saved
}

} // namespace
} // namespace tavrin::test
