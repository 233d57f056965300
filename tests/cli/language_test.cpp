// How the driver reads a script: tokens, quotes, numbers, comments, the values each kind
// of field takes and prints, and the exit status of a line it can't read.
#include "cli/driver_run.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

TEST(ScriptLanguage, TokensCommentsAndValuesAsTheyAreWritten) {
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
        // A dynamic value keeps the kind it was written in; fractions print in their
        // shortest exact form.
        {"set Tool_Mode \"5\"\nprint Tool_Mode\nset Tool_Mode True\nprint Tool_Mode\n"
         "set Tool_Mode Empty\nprint Tool_Mode\nset Tool_Mode 0.30000000000000004\nprint "
         "Tool_Mode\n"
         "set Tool_Mode 70000\nprint Tool_Mode\n",
         "Tool_Mode=\"5\"\nTool_Mode=True\nTool_Mode=Empty\nTool_Mode=0.30000000000000004\n"
         "Tool_Mode=70000\n"},
        // 32-bit, boolean, byte, and elements of arrays.
        {"set Near_Color 2147483647\nprint Near_Color\n"
         "print Fill_Rect\nset Fill_Rect True\nprint Fill_Rect\n"
         "set Work_Buf 1 2 3 -9\nprint Work_Buf 1 2 3\nprint Work_Buf 1 2 4\n"
         "set PCX_Header 128 255\nprint PCX_Header 128\n",
         "Near_Color=2147483647\nFill_Rect=False\nFill_Rect=True\n"
         "Work_Buf(1,2,3)=-9\nWork_Buf(1,2,4)=0\nPCX_Header(128)=255\n"},
    };
    for (const Case& c : cases) {
        DriverRun r = runDriver(c.script);
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, c.out) << c.script;
    }
}

TEST(ScriptLanguage, BadLinesAndUnknownNamesStopWithStatus2AndTheirLineNumber) {
    const char* bad[] = {
        // quotes: not closed, an unknown escape, one inside a token, no blank after one
        "print \"Skin_Rows",
        "set File_Name \"a\\nb\"",
        "set File_Name ab\"c\"",
        "set File_Name \"ab\"c",
        // values out of a field's range, at either end and in hex
        "set Skin_Rows 32768",
        "set Brush_Size -32769",
        "set PCX_Header 1 256",
        "set Near_Color 2147483648",
        "set Cur_Color 0x100000000",
        "key Text5 256",
        // a fraction in a whole-number field, words and forms that are no value
        "set Skin_Rows 1.5",
        "set Scale_X Zoom",
        "set Tool_Mode 1e3",
        "set Fill_Rect true",
        // no such command, a missing argument, an index on a single value or none on an array
        "frobnicate",
        "print",
        "print Skin_Rows 3",
        "print Skin_Grid",
        "answer msgbox maybe",
        "mouse hover 1 0 3 4",
        "palette move 1 0 3 4",
        "mouse down 1 0 3",
        // names that are no field, procedure, control or property of that kind
        "print No_Such_Field",
        "bounds Skin_Rows",
        "set Pal_Table 5 1",
        "call No_Such_Proc",
        "call paletteChanged",
        "click NoSuchControl",
        "click tbToolBar.NoSuchKey",
        "print SSPanel1.NoSuchProperty",
        "print SSPanel1.Point 1 1",
        "type SSPanel1 \"x\"",
        "dump picture SSPanel1 /tmp/never.ppm",
        "grip NoSuchGrip 5 5",
        "drop Picture2 1 1",
    };
    for (const char* line : bad) {
        DriverRun r = runDriver(std::string("print Skin_Rows\n\n") + line + "\nprint Skin_Rows\n");
        EXPECT_EQ(r.status, 2) << line;
        EXPECT_EQ(r.out, "Skin_Rows=0\n") << line;
        EXPECT_EQ(r.err.rfind("line 3: ", 0), 0u) << line << ": " << r.err;
        EXPECT_EQ(r.err.find("not supported"), std::string::npos) << line << ": " << r.err;
    }
}

} // namespace
} // namespace tavrin::test
