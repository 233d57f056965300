// What `print`, `bounds` and `dump` show of the editor after start and after commands.
#include "cli/driver_run.h"
#include "shell/frm_splash.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

TEST(DriverInspection, FieldsRecordsAndBoundsAfterStart) {
    DriverRun r = runDriver("print Pal_Table 5\nbounds Pal_Table\n"
                            "bounds Skin_Grid\nbounds Work_Buf\nprint Work_Buf 2 1500 1500\n"
                            "print PCX_Header 2\nprint Mask_Color\nprint Tool_Mode\nprint Fill_Rect\n");
    EXPECT_EQ(r.status, 0) << r.err;
    Bytes pal = gamePalette();
    auto color = [&](int record) {
        return "Red=" + std::to_string(pal[record * 3]) + " Green=" + std::to_string(pal[record * 3 + 1]) +
               " Blue=" + std::to_string(pal[record * 3 + 2]);
    };
    EXPECT_EQ(r.out, "Pal_Table(5)=" + color(5) + " Index=5 Cell_X=55 Cell_Y=0\n"
                     "Pal_Table=0..900\nSkin_Grid=unallocated\n"
                     "Work_Buf=0..2,0..1500,0..1500\nWork_Buf(2,1500,1500)=0\n"
                     "PCX_Header(2)=5\nMask_Color=0.1\nTool_Mode=Empty\nFill_Rect=False\n");
}

TEST(DriverInspection, ControlPropertiesOfEitherForm) {
    DriverRun r = runDriver("print frmSplash.List1.ListCount\nprint StatusBar1.Panels(1).Text\n"
                            "print SSPanel1.Visible\nclick PALE\nprint SSPanel1.Visible\n"
                            "print PALE.Checked\nprint frmMain.WindowState\n"
                            "print frmMain.SSPanel1.Visible\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "frmSplash.List1.ListCount=" + std::to_string(releaseNotes().size()) + "\n"
                     "StatusBar1.Panels(1).Text=\"Ready...\"\n"
                     "SSPanel1.Visible=True\nSSPanel1.Visible=False\nPALE.Checked=False\n"
                     "frmMain.WindowState=2\nfrmMain.SSPanel1.Visible=False\n");
}

TEST(DriverInspection, PointAndDumpPictureShowThePalettePicture) {
    TempDir dir;
    std::string ppm = dir.file("palette.ppm");
    DriverRun r = runDriver("print Picture2.Point 58 3\nprint Picture2.Point -1 0.5\n"
                            "dump picture Picture2 " + scriptQuote(ppm) + "\n");
    EXPECT_EQ(r.status, 0) << r.err;
    Bytes pal = gamePalette();
    int32_t cell5 = packed(pal[15], pal[16], pal[17]); // record 5 fills (55..65, 0..10)
    EXPECT_EQ(r.out, "Picture2.Point(58,3)=" + std::to_string(cell5) +
                         "\nPicture2.Point(-1,0.5)=-1\ndump picture 176 176\n");
    Bytes file = readFile(ppm);
    const std::string header = "P6\n176 176\n255\n";
    ASSERT_EQ(file.size(), header.size() + 176 * 176 * 3);
    EXPECT_EQ(std::string(file.begin(), file.begin() + static_cast<long>(header.size())), header);
    std::size_t at = header.size() + (3 * 176 + 58) * 3;
    EXPECT_EQ((Bytes{file[at], file[at + 1], file[at + 2]}), (Bytes{pal[15], pal[16], pal[17]}));
}

} // namespace
} // namespace tavrin::test
