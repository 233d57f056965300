// "&Import Image" through the driver, which reads bitmaps with a reader of its own:
// the picture goes into picture1 at the box's size and onto the canvas, and nothing else.
#include "cli/driver_run.h"
#include "support/bmp_writer.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

const std::string kLoadProblem =
    "msgbox \"There was a problem loading the file. Check the filename and/or format.\" "
    "style=0 -> ok\n";

// A 24-bit picture whose pixel (x, y) is (x, y, 7).
Bytes picture(int width, int height) {
    BmpSpec spec{width, height, 24, false, false, false, {}, {}, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            spec.pixels.push_back(static_cast<uint32_t>(packed(x % 256, y % 256, 7)));
    return writeBmp(spec);
}

std::string point(const std::string& box, int x, int y) {
    return "print " + box + ".Point " + std::to_string(x) + " " + std::to_string(y) + "\n";
}
std::string shown(const std::string& box, int x, int y, int32_t colour) {
    return box + ".Point(" + std::to_string(x) + "," + std::to_string(y) +
           ")=" + std::to_string(colour) + "\n";
}

// The box is 267 x 163 before any skin: a bigger picture is cut at its right and bottom
// edges, a smaller one leaves the rest of it in the box's colour (black); the canvas takes
// the box's size and shows it.
TEST(PictureImport, ThePictureFillsTheBoxAtItsOwnSizeCutOrNot) {
    const struct {
        int width, height;
        std::string probes, expected;
    } cases[] = {
        {300, 200, point("picture1", 266, 162) + point("picture1", 267, 0),
         shown("picture1", 266, 162, packed(266 % 256, 162, 7)) + shown("picture1", 267, 0, -1)},
        {20, 10, point("picture1", 19, 9) + point("picture1", 20, 9) + point("picture1", 5, 100),
         shown("picture1", 19, 9, packed(19, 9, 7)) + shown("picture1", 20, 9, 0) +
             shown("picture1", 5, 100, 0)},
    };
    for (const auto& c : cases) {
        TempDir dir;
        const std::string path = dir.write("p.bmp", picture(c.width, c.height));
        DriverRun r = runDriver("answer open " + scriptQuote(path) +
                                "\nclick OpenSkin\nprint picture1.ScaleWidth\n"
                                "print picture1.ScaleHeight\nprint Picture7.Width\n"
                                "print picture1.Visible\nprint Picture7.Visible\n" +
                                c.probes + point("Picture7", 12, 3));
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, "dialog open \"Load Skin Image\" -> " + path +
                             "\npicture1.ScaleWidth=267\npicture1.ScaleHeight=163\n"
                             "Picture7.Width=4005\npicture1.Visible=True\nPicture7.Visible=True\n" +
                             c.expected + shown("Picture7", 12, 3, packed(12, 3, 7)));
    }
}

// After a skin: the grid, its sizes, the header and the palette stay, and so does a save;
// the tool's name, the status line, the "Actual Pixels" mark and the dialog's kind text
// stay as they were; the tool becomes the zoom.
TEST(PictureImport, NoSkinIsMadeAndNothingButThePictureAndTheViewChanges) {
    TempDir dir;
    const std::string skin = TAVRIN_TEST_DATA "/swirl-200x160.pcx";
    const std::string path = dir.write("p.bmp", picture(30, 20));
    const std::string state =
        "print Skin_Width\nprint Skin_Height\nprint PCX_Header 9\nprint Pal_Table 9\n"
        "print SSPanel3.Caption\nprint StatusBar1.Panels(1).Text\nprint ActualPixels.Checked\n"
        "print CommonDialog1.KindText\nprint frmMain.MousePointer\n";
    DriverRun r = runDriver("answer open " + scriptQuote(skin) +
                            "\nanswer msgbox no\nclick pcxIm\nclick SSCommand4\n"
                            "answer save " +
                            scriptQuote(dir.file("before.pcx")) +
                            "\nclick SKas\nanswer open cancel\nclick wF\n" + state +
                            "answer open " + scriptQuote(path) + "\nclick OpenSkin\n" + state +
                            "print Tool_Mode\n" + point("picture1", 29, 19) + "answer save " +
                            scriptQuote(dir.file("after.pcx")) + "\nclick SKas\n");
    EXPECT_EQ(r.status, 0) << r.err;
    const auto first = r.out.find("Skin_Width="), second = r.out.find("Skin_Width=", first + 1);
    ASSERT_NE(second, std::string::npos) << r.out;
    const std::string before = r.out.substr(first, r.out.find("dialog open", first) - first);
    EXPECT_EQ(r.out.substr(second, before.size()), before);
    EXPECT_NE(before.find("SSPanel3.Caption=\"Drawing Tool\"\nStatusBar1.Panels(1).Text=\"Select "
                          "Image\"\n"),
              std::string::npos)
        << before;
    EXPECT_NE(r.out.find("Tool_Mode=\"Zoom\"\n" + shown("picture1", 29, 19, packed(29, 19, 7))),
              std::string::npos)
        << r.out;
    EXPECT_EQ(readFile(dir.file("before.PCX")), readFile(dir.file("after.PCX")));
}

// Cancel, a missing file, a file of another kind and a picture the driver can't read all
// end in the message with both boxes hidden and empty.
TEST(PictureImport, EveryFailureShowsTheMessageAndLeavesBothBoxesHiddenAndEmpty) {
    TempDir dir;
    const std::string good = dir.write("good.bmp", picture(30, 20));
    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    Bytes cut = picture(30, 20);
    cut.resize(cut.size() - 100);
    for (const std::string& answer :
         {std::string("cancel"), scriptQuote(dir.file("missing.bmp")),
          scriptQuote(dir.write("text.bmp", {'h', 'i', '\n'})),
          scriptQuote(dir.write("picture.png", png)), scriptQuote(dir.write("cut.bmp", cut))}) {
        DriverRun r = runDriver("answer open " + scriptQuote(good) +
                                "\nclick OpenSkin\nanswer open " + answer +
                                "\nclick OpenSkin\nprint picture1.Visible\n"
                                "print Picture7.Visible\n" +
                                point("picture1", 5, 5));
        EXPECT_EQ(r.status, 0) << r.err;
        const std::string tail = kLoadProblem + "picture1.Visible=False\nPicture7.Visible=False\n" +
                                 shown("picture1", 5, 5, 0);
        ASSERT_GE(r.out.size(), tail.size()) << r.out;
        EXPECT_EQ(r.out.substr(r.out.size() - tail.size()), tail) << answer;
    }
}

} // namespace
} // namespace tavrin::test
