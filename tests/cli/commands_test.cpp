// What the user's commands reach, and what `print`, `bounds` and `dump` show of the editor.
#include "cli/driver_run.h"
#include "shell/frm_splash.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

TEST(DriverCommands, PointerMovesAndKeysReachTheTextBoxes) {
    // Text5 and Text4 show the pointer's column and row; nothing handles their keys.
    DriverRun r =
        runDriver("mouse move 0 0 3 4\nprint Text5.Text\nprint Text4.Text\n"
                  "type Text5 \"ab\"\nkey Text5 67\nkey Text5 8\nkey Text5 8\nkey Text5 13\n"
                  "print Text5.Text\ntype Text5 \"\"\nkey Text5 8\nprint Text5.Text\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Text5.Text=\"3\"\nText4.Text=\"4\"\nText5.Text=\"a\"\nText5.Text=\"\"\n");
}

TEST(DriverCommands, ClickCallAndThePropertiesOfEitherForm) {
    DriverRun r = runDriver("print SSPanel1.Visible\ncall SSCommand8_Click\n"
                            "print frmMain.SSPanel1.Visible\nprint PALE.Checked\n"
                            "click PALE\nprint SSPanel1.Visible\n"
                            "print frmSplash.List1.ListCount\nprint StatusBar1.Panels(1).Text\n"
                            "print frmMain.WindowState\nanswer msgbox no\ncall Form_Unload\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "SSPanel1.Visible=True\nfrmMain.SSPanel1.Visible=False\nPALE.Checked=False\n"
                     "SSPanel1.Visible=True\nfrmSplash.List1.ListCount=" +
                         std::to_string(releaseNotes().size()) +
                         "\n"
                         "StatusBar1.Panels(1).Text=\"Ready...\"\nfrmMain.WindowState=2\n"
                         "msgbox \"Exit Tavrin?\" style=4 -> no\n");
}

// Palette record 5, as a record, as the colour Point gives in its cell (55..65, 0..10)
// and as the pixel of the dump there.
TEST(DriverCommands, RecordsBoundsPointAndDumpAfterStart) {
    TempDir dir;
    std::string ppm = dir.file("palette.ppm");
    DriverRun r =
        runDriver("print Pal_Table 5\nbounds Pal_Table\nbounds Skin_Grid\nbounds Work_Buf\n"
                  "print Picture2.Point 58 3\nprint Picture2.Point -1 0.5\n"
                  "dump picture Picture2 " +
                  scriptQuote(ppm) + "\n");
    EXPECT_EQ(r.status, 0) << r.err;
    Bytes pal = gamePalette();
    EXPECT_EQ(r.out, "Pal_Table(5)=Red=" + std::to_string(pal[15]) +
                         " Green=" + std::to_string(pal[16]) + " Blue=" + std::to_string(pal[17]) +
                         " Index=5 Cell_X=55 Cell_Y=0\n"
                         "Pal_Table=0..900\nSkin_Grid=unallocated\nWork_Buf=0..2,0..1500,0..1500\n"
                         "Picture2.Point(58,3)=" +
                         std::to_string(packed(pal[15], pal[16], pal[17])) +
                         "\nPicture2.Point(-1,0.5)=-1\ndump picture 176 176\n");
    Bytes file = readFile(ppm);
    const std::string header = "P6\n176 176\n255\n";
    ASSERT_EQ(file.size(), header.size() + 176 * 176 * 3);
    EXPECT_EQ(std::string(file.begin(), file.begin() + static_cast<long>(header.size())), header);
    std::size_t at = header.size() + (3 * 176 + 58) * 3;
    EXPECT_EQ((Bytes{file[at], file[at + 1], file[at + 2]}), (Bytes{pal[15], pal[16], pal[17]}));
}

// A whole scenario as a user would run it: open a skin, pick a colour from the palette,
// zoom in, paint, save; the saved bytes are what the rules make of the dumped grid.
TEST(DriverCommands, OpenPickZoomPaintAndSave) {
    TempDir dir;
    const std::string& skin = kTestSkin;
    const std::string grid = dir.file("grid");
    // Green, cell 208 of the palette; one zoom step in at the canvas's middle; the pencil.
    DriverRun r = runDriver(kOpenTestSkin +
                            "palette down 1 0 5 148\npalette up 1 0 5 148\n"
                            "click SSCommand19\nmouse down 1 0 100 80\nmouse up 1 0 100 80\n"
                            "click SSCommand4\nmouse down 1 0 40 40\nmouse move 1 0 60 40\n"
                            "mouse up 1 0 60 40\n"
                            "dump grid " +
                            scriptQuote(grid) +
                            "\n"
                            "answer save " +
                            scriptQuote(dir.file("p.pcx")) + "\nclick SKas\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "dialog open \"Load Quake 2 PCX Skin Image\" -> " + skin +
                         "\n"
                         "msgbox \"Import Palette From Skin?\" style=4 -> no\ndump grid 33601\n"
                         "dialog save \"Save Skin PCX as Filename:\" -> " +
                         dir.file("p.pcx") + "\n");
    // At zoom 2 the canvas pixels (40, 40) and (60, 40) are the skin's (20, 20) and (30, 20).
    const Bytes cells = readFile(grid), source = readFile(skin), pal = gamePalette();
    EXPECT_EQ(cells[2 * 4020], 208);
    EXPECT_EQ(cells[2 * 4030], 208);
    // The header, W x (Ymax + 4) pixels with 0xC1 before values of 192 and above, the
    // game's palette, no marker.
    Bytes expected(source.begin(), source.begin() + 128);
    const int w = source[8] + 256 * source[9] + 1, h = source[10] + 256 * source[11] + 4;
    for (std::size_t i = 0; i < static_cast<std::size_t>(2 * w * h); i += 2) {
        if ((cells[i] | cells[i + 1] << 8) >= 192) expected.push_back(0xC1);
        expected.push_back(cells[i]);
    }
    expected.insert(expected.end(), pal.begin(), pal.end());
    EXPECT_EQ(readFile(dir.file("p.PCX")), expected);
}

} // namespace
} // namespace tavrin::test
