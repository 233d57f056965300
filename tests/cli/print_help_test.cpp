// Printing as the headless host records it, the preview and its clicks, and the Help
// menu's messages.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrin::test {
namespace {

const std::string kDate = "11-23-2026"; // the scripted host's today

// One page as the driver reports it: the form, its two labels and the picture at its
// place, 198 x 161 pixels for the test skin.
std::string page(const std::string& line1, int pictureTop = 1965, int pictureLeft = 45) {
    return "printed frmPrint 9420 7185\nprinted frmPrint.Label1 60 60 9240 270 \"" + line1 +
           "\"\nprinted frmPrint.Label2 60 285 9240 270 \"Skin Dimensions = Width: 200 Height: "
           "163\"\nprinted frmPrint.picture1 " +
           std::to_string(pictureLeft) + " " + std::to_string(pictureTop) + " 2970 2415\n";
}

TEST(Printing, RepeatedPrintsBuildOnTheFirstLineAndThePreviewsClickStartsAfresh) {
    const std::string first = kTestSkin + " Printed By Tavrin on " + kDate;
    const std::string second = kTestSkin + " " + first + " on " + kDate;
    struct Case {
        const char* name;
        std::string script, out;
    };
    const Case cases[] = {
        // After the first print the picture is centred: later pages show it there.
        {"menu, then the tool bar's button", kOpenTestSkin + "click p\nclick tbToolBar.Print\n",
         page(first) + page(second, 2385)},
        {"a click on a label or the picture keeps the form",
         kOpenTestSkin + "click pP\nclick frmPrint.Label1\nclick frmPrint.picture1\nclick p\n",
         page(second, 2385, 3225)},
        {"a click on the form unloads it", kOpenTestSkin + "click pP\nclick frmPrint\nclick p\n",
         page(first)},
        // The preview puts the skin in the middle of the maximised form.
        {"the preview after a print",
         kOpenTestSkin +
             "click p\nclick pP\nprint frmPrint.picture1.Left\nprint frmPrint.picture1.Top\n",
         page(first) + "frmPrint.picture1.Left=3225\nfrmPrint.picture1.Top=2385\n"},
        {"nothing loaded: the line starts with a blank", "click p\n",
         "printed frmPrint 9420 7185\nprinted frmPrint.Label1 60 60 9240 270 \" Printed By "
         "Tavrin on " +
             kDate +
             "\"\nprinted frmPrint.Label2 60 285 9240 270 \"Skin Dimensions = Width:  Height: "
             "\"\nprinted frmPrint.picture1 45 1965 4005 2445\n"}, // picture1 as designed
    };
    for (const Case& c : cases) {
        const DriverRun r = runDriver(c.script);
        ASSERT_EQ(r.status, 0) << c.name << ": " << r.err;
        EXPECT_EQ(r.out.substr(r.out.find("printed")), c.out) << c.name;
    }
}

TEST(HelpMenu, MessagesAndThePrinterSetUp) {
    struct Case {
        std::string script, out;
    };
    const Case cases[] = {
        {"click H\n",
         "msgbox \"Not Yet. Feel free to write some helpful documentation and send it to me. "
         "Entries must be in MS Word format. You will get FULL credit for any portion I use.\" "
         "style=0 -> ok\n"},
        {"click About\n",
         "msgbox \"Limited Feature BETA Version Build 034 of Tavrin.\" style=0 -> ok\n"},
        // The set-up asks nothing of its own and leaves what it finds; Cancel ends it.
        {"answer printer cancel\nclick psss\nprint CommonDialog1.Flags\n",
         "dialog printer \"\" -> cancel\nCommonDialog1.Flags=64\n"},
    };
    for (const Case& c : cases) {
        const DriverRun r = runDriver(c.script);
        ASSERT_EQ(r.status, 0) << c.script << ": " << r.err;
        EXPECT_EQ(r.out, c.out);
    }
}

} // namespace
} // namespace tavrin::test
