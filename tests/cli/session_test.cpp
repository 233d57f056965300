// A run as a whole: start-up, answers to dialogs and message boxes, the lines printed
// for them, the end of the program, and the exit statuses.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

TEST(DriverSession, WholeRunsPrintWhatTheyShowAndEndWithStatus0) {
    TempDir empty;
    struct Case {
        const char* name;
        std::string script, options;
        bool onStdin;
        std::string out;
        const char* errHas = "";
    };
    const Case cases[] = {
        {"exit answered no, then yes",
         "answer msgbox no\nclick Exit\nprint Skin_Rows\n"
         "answer msgbox yes\nclick Exit\nprint Skin_Rows\n",
         "", false,
         "msgbox \"Exit Tavrin?\" style=4 -> no\nSkin_Rows=0\n"
         "msgbox \"Exit Tavrin?\" style=4 -> yes\nend\n"},
        {"the start form's quit", "click frmSplash.SSCommand2\nprint Skin_Rows\n", "", false,
         "end\n"},
        {"no palette file", "print Pal_Path\n", "--app-dir " + shellQuote(empty.path().string()),
         false,
         "msgbox \"Path/File not found, or not a valid file.\" style=0 -> ok\n"
         "Pal_Path=\"" +
             empty.path().string() + "/Quake2.PAL\"\n"},
        {"trace, on standard input", "# note\nprint Skin_Rows\n  bounds Skin_Grid\n", "--trace",
         true, "> print Skin_Rows\nSkin_Rows=0\n>   bounds Skin_Grid\nSkin_Grid=unallocated\n"},
        // The window drops an editor error that no procedure trapped, and goes on.
        {"editor errors", "print Skin_Grid 57\nprint Pal_Table 901\nprint Skin_Rows\n", "", false,
         "Skin_Rows=0\n", "line 2: editor error 9"},
    };
    for (const Case& c : cases) {
        DriverRun r = runDriver(c.script, c.options, c.onStdin);
        EXPECT_EQ(r.status, 0) << c.name << ": " << r.err;
        EXPECT_EQ(r.out, c.out) << c.name;
        EXPECT_NE(r.err.find(c.errHas), std::string::npos) << c.name << ": " << r.err;
    }
}

TEST(DriverSession, AYesNoBoxOrDialogWithoutAnAnswerStopsWithStatus3) {
    DriverRun box = runDriver("print Skin_Rows\nclick Exit\nprint Skin_Rows\n");
    EXPECT_EQ(box.status, 3);
    EXPECT_EQ(box.out, "Skin_Rows=0\n");
    EXPECT_NE(box.err.find("line 2:"), std::string::npos) << box.err;
    EXPECT_NE(box.err.find("Exit Tavrin?"), std::string::npos) << box.err;

    DriverRun dialog = runDriver("click pcxIm\n");
    EXPECT_EQ(dialog.status, 3);
    EXPECT_NE(dialog.err.find("open dialog"), std::string::npos) << dialog.err;
}

TEST(DriverSession, AnswersOfOneKindAreUsedInOrderAndDialogsArePrinted) {
    // The failure's OK box comes before the Yes/No box of the second open: it would
    // take a msgbox answer queued before the first click.
    DriverRun r = runDriver("answer open cancel\nanswer open \"cancel\"\n"
                            "click tbToolBar.Open\nanswer msgbox no\nclick pcxIm\n");
    EXPECT_EQ(r.status, 0) << r.err;
    const std::string shown = "dialog open \"Load Quake 2 PCX Skin Image\" -> cancel\n"
                              "msgbox \"There was a problem loading the file. Check the filename "
                              "and/or format.\" style=0 -> ok\n"
                              "dialog open \"Load Quake 2 PCX Skin Image\" -> cancel\n"
                              "msgbox \"Import Palette From Skin?\" style=4 -> no\n";
    EXPECT_EQ(r.out.substr(0, shown.size()), shown);
}

TEST(DriverSession, ResizeReportsTheSizeAndRunsTheFormsResize) {
    DriverRun r = runDriver("print SSPanel15.Top\nresize 9000 7000\nprint frmMain.Width\n"
                            "print frmMain.Height\nprint SSPanel15.Top\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.out.find("frmMain.Width=9000\nfrmMain.Height=7005\n"), std::string::npos) << r.out;
    std::size_t before = r.out.find("SSPanel15.Top="), after = r.out.rfind("SSPanel15.Top=");
    EXPECT_NE(r.out.substr(before, r.out.find('\n', before) - before),
              r.out.substr(after, r.out.find('\n', after) - after));
}

} // namespace
} // namespace tavrin::test
