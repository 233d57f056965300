// How the driver reads a script: tokens, quotes, numbers, comments, and the exit
// status of a line it can't read.
#include "cli/driver_run.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

TEST(ScriptLanguage, TokensCommentsAndNumbersAsTheyAreWritten) {
    struct Case {
        const char* script;
        const char* out;
    };
    const Case cases[] = {
        // Quoted tokens keep their blanks and the two escapes.
        {"set File_Name \"a b\\\\c \\\"d\\\"\"\nprint File_Name\n"
         "set Skin_Path   bare\\path  \nprint Skin_Path\n",
         "File_Name=\"a b\\\\c \\\"d\\\"\"\nSkin_Path=\"bare\\\\path\"\n"},
        // Comments, blank lines and carriage returns are skipped.
        {"# a comment\n\n   \t\n  # indented comment\r\nprint Skin_Rows\r\n", "Skin_Rows=0\n"},
        // Numbers: decimal, signed, fractional or hexadecimal.
        {"set Cur_Color 0x00FF00\nprint Cur_Color\nset Skin_Rows -32768\nprint Skin_Rows\n"
         "set Skin_Rows 0xFFFF\nprint Skin_Rows\nset Scale_X -12.5\nprint Scale_X\n",
         "Cur_Color=65280\nSkin_Rows=-32768\nSkin_Rows=-1\nScale_X=-12.5\n"},
    };
    for (const Case& c : cases) {
        DriverRun r = runDriver(c.script);
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, c.out) << c.script;
    }
}

TEST(ScriptLanguage, LinesThatDontParseStopWithStatus2AndTheirLineNumber) {
    const char* bad[] = {
        "print \"Skin_Rows",          // quote not closed
        "set File_Name \"a\\nb\"",    // unknown escape
        "set File_Name ab\"c\"",      // quote inside a token
        "set File_Name \"ab\"c",      // no blank after the closing quote
        "set Skin_Rows 32768",        // too big for a 16-bit field
        "set Skin_Rows 1.5",          // a fraction in a whole-number field
        "set Scale_X Zoom",           // a bare word is no value
        "set Fill_Rect true",         // booleans are True and False
        "frobnicate",                 // no such command
        "print",                      // missing argument
        "print Skin_Rows 3",          // an index on a single value
        "print Skin_Grid",            // an array without its index
        "answer msgbox maybe",
    };
    for (const char* line : bad) {
        DriverRun r = runDriver(std::string("print Skin_Rows\n\n") + line + "\nprint Skin_Rows\n");
        EXPECT_EQ(r.status, 2) << line;
        EXPECT_EQ(r.out, "Skin_Rows=0\n") << line;
        EXPECT_EQ(r.err.rfind("line 3: ", 0), 0u) << line << ": " << r.err;
    }
}

TEST(ScriptLanguage, UnknownNamesStopWithStatus2) {
    const char* bad[] = {"print No_Such_Field", "bounds Skin_Rows", "set Pal_Table 5 1",
                         "call No_Such_Proc", "call paletteChanged", "click NoSuchControl",
                         "click tbToolBar.NoSuchKey", "print SSPanel1.NoSuchProperty",
                         "print SSPanel1.Point 1 1", "type SSPanel1 \"x\"", "click frmPrint",
                         "dump picture SSPanel1 /tmp/never.ppm"};
    for (const char* line : bad) {
        DriverRun r = runDriver(std::string(line) + "\n");
        EXPECT_EQ(r.status, 2) << line;
        EXPECT_EQ(r.err.rfind("line 1: ", 0), 0u) << line << ": " << r.err;
    }
}

TEST(ScriptLanguage, BarDraggingIsNotSupportedYetButIsParsedFirst) {
    for (const char* line : {"grip SSPanel8 5 5", "drop form 100 100", "drop Picture7 1.5 -2"}) {
        DriverRun r = runDriver(std::string(line) + "\n");
        EXPECT_EQ(r.status, 2) << line;
        EXPECT_NE(r.err.find("not supported yet"), std::string::npos) << r.err;
    }
    for (const char* line : {"grip NoSuchGrip 5 5", "drop Picture2 1 1", "mouse hover 1 0 3 4",
                             "palette move 1 0 3 4", "mouse down 1 0 3"}) {
        DriverRun r = runDriver(std::string(line) + "\n");
        EXPECT_EQ(r.status, 2) << line;
        EXPECT_EQ(r.err.find("not supported"), std::string::npos) << r.err;
    }
}

} // namespace
} // namespace tavrin::test
