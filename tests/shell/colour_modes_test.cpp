// The colour modes: 256 colours at start; high colour once chosen, and no way back.
#include "support/test_support.h"

namespace tavrin::test {
namespace {

using ColourModes = EditorTest;

TEST_F(ColourModes, TheColourModesGoOneWayOnly) {
    frm.Form_Load();
    frm.Cl256.Click();
    EXPECT_EQ(host.messages().back().text,
              "Note...you will now be unable to go BACK to 256 color.");
    EXPECT_EQ(frm.Palette_Mode, 1);
    EXPECT_TRUE(frm.Cl256.Checked);
    const std::size_t shown = host.messages().size();
    frm.CLhigh.Click();
    EXPECT_EQ(host.messages().size(), shown);
    EXPECT_EQ(frm.Palette_Mode, 0);
    EXPECT_TRUE(frm.CLhigh.Checked);
    EXPECT_FALSE(frm.Cl256.Checked);
    frm.Cl256.Click();
    EXPECT_EQ(host.messages().back().text, "Can't go back to 256.");
    EXPECT_EQ(frm.Palette_Mode, 0);
    EXPECT_FALSE(frm.Cl256.Checked);
}

} // namespace
} // namespace tavrin::test
