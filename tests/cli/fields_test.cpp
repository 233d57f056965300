// `set` then `print` gives back what was set, in each kind of field.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>


namespace tavrin::test {
namespace {

TEST(DriverFields, SetThenPrintGivesBackEachKindOfValue) {
    DriverRun r = runDriver(
        // dynamic values
        "set Zoom_Factor 0.1\nprint Zoom_Factor\nset Zoom_Factor 70000\nprint Zoom_Factor\n"
        "set Zoom_Factor 1e3\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.out, "Zoom_Factor=0.1\nZoom_Factor=70000\n");

    r = runDriver("set Tool_Mode \"Draw\"\nprint Tool_Mode\nset Tool_Mode \"5\"\nprint Tool_Mode\n"
                  "set Tool_Mode True\nprint Tool_Mode\nset Tool_Mode Empty\nprint Tool_Mode\n"
                  "set Tool_Mode 0.30000000000000004\nprint Tool_Mode\n"
                  // 16-bit, 32-bit, text, boolean, and elements of arrays
                  "set Brush_Size -7\nprint Brush_Size\nset Near_Color 2147483647\nprint Near_Color\n"
                  "set File_Name \"C:\\\\skins\\\\a.pcx\"\nprint File_Name\n"
                  "set Fill_Rect True\nprint Fill_Rect\n"
                  "set Work_Buf 1 2 3 -9\nprint Work_Buf 1 2 3\nprint Work_Buf 1 2 4\n"
                  "set PCX_Header 128 255\nprint PCX_Header 128\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Tool_Mode=\"Draw\"\nTool_Mode=\"5\"\nTool_Mode=True\nTool_Mode=Empty\n"
                     "Tool_Mode=0.30000000000000004\n"
                     "Brush_Size=-7\nNear_Color=2147483647\nFile_Name=\"C:\\\\skins\\\\a.pcx\"\n"
                     "Fill_Rect=True\nWork_Buf(1,2,3)=-9\nWork_Buf(1,2,4)=0\nPCX_Header(128)=255\n");
}

TEST(DriverFields, ValuesOutsideAFieldsRangeAreRefused) {
    for (const char* line : {"set PCX_Header 1 256", "set Near_Color 2147483648",
                             "set Brush_Size -32769", "set Cur_Color 0x100000000"}) {
        DriverRun r = runDriver(std::string(line) + "\n");
        EXPECT_EQ(r.status, 2) << line;
    }
}

} // namespace
} // namespace tavrin::test
