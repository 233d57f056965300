// The shape and filter commands as their menu items, popup items and buttons reach them,
// and the one-way colour modes.
#include "support/test_support.h"

namespace tavrin::test {
namespace {

using ShapeSelect = EditorTest;

TEST_F(ShapeSelect, EachCommandSetsItsWordsAndItsStatusText) {
    struct Case {
        const char* control;
        const char* tool;
        const char* filter; // nullptr: left as it was
        const char* panel;  // nullptr: left as it was
        int fill;           // -1: left as it was
        int gradient;       // 1 on, 0 off, -1 left as it was
    };
    const Case cases[] = {
        {"mRect", "Box", "", nullptr, 0, -1},
        {"SSCommand28", "Box", "", "Rectangle", 0, -1},
        {"Grf", "Box", "", "Gradient Fill", 1, 1},
        {"mFrect", "Box", "", nullptr, 1, -1},
        {"SSCommand29", "Box", "", "Rectangle Fill", 1, 0},
        {"SSCommand17", "Box", "", "Gradient Fill", 1, 1},
        {"mLine", "Line", nullptr, "Line Tool", -1, -1},
        {"Sharpen", "Box", "Sharp", nullptr, -1, -1},
        {"shPop", "Box", "Sharp", nullptr, -1, -1},
        {"SSCommand40", "Box", "Sharp", nullptr, -1, -1},
        {"SSCommand37", "Box", "Light", nullptr, -1, -1},
        {"Blur", "Box", "BlurA", nullptr, -1, -1},
        {"blPop", "Box", "BlurA", nullptr, -1, -1},
        {"SSCommand41", "Box", "BlurA", nullptr, -1, -1},
        {"Emboss", "Box", "Emboss", nullptr, -1, -1},
        {"emPop", "Box", "Emboss", nullptr, -1, -1},
        {"SSCommand38", "Box", "Emboss", nullptr, -1, -1},
        {"Tint", "Box", "Tint", nullptr, -1, -1},
        {"tiPop", "Box", "Tint", nullptr, -1, -1},
        {"SSCommand36", "Box", "Tint", nullptr, -1, -1},
    };
    frm.Form_Load();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.control);
        platform::Control* control = frm.find(c.control);
        ASSERT_TRUE(control && control->Click);
        // Each setting starts opposite to what the command gives it.
        frm.Filter_Mode = "before";
        frm.SSPanel3.Caption = "before";
        const bool fill = c.fill != 1;
        const int16_t gradient = c.gradient == 1 ? 0 : -1;
        frm.Fill_Rect = fill;
        frm.Gradient_On = gradient;
        frm.SSPanel2.Visible = true;
        control->Click();
        EXPECT_EQ(frm.Tool_Mode, c.tool);
        EXPECT_EQ(frm.Filter_Mode, c.filter ? c.filter : "before");
        EXPECT_EQ(frm.SSPanel3.Caption.get(), c.panel ? c.panel : "before");
        EXPECT_EQ(frm.Fill_Rect, c.fill < 0 ? fill : c.fill == 1);
        EXPECT_EQ(frm.Gradient_On, c.gradient < 0 ? gradient : c.gradient == 1 ? -1 : 0);
        // The shapes close the paint brush's kinds; the filters and the line leave them.
        const bool rectangle = c.filter && std::string(c.filter).empty();
        EXPECT_EQ(frm.SSPanel2.Visible.get(), !rectangle);
    }
    // The tool bar's line button only promises the tool.
    const Variant tool = frm.Tool_Mode;
    frm.SSCommand18.Click();
    EXPECT_EQ(host.messages().back().text, "Almost! I promise it'll be in 035");
    EXPECT_EQ(frm.Tool_Mode, tool.str());
}

// 256 colours at start; high colour once chosen, and no way back.
TEST_F(ShapeSelect, TheColourModesGoOneWayOnly) {
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
