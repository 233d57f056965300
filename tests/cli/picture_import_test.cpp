// "&Import Image" through the driver, which reads bitmaps with a reader of its own: the
// picture goes into picture1 at the box's size and onto the canvas, and nothing else changes.
#include "cli/driver_run.h"
#include "support/bmp_writer.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

// A 24-bit picture whose pixel (x, y) is (x, y, 7).
Bytes picture(int width, int height) {
    BmpPlan plan{width, height, 24, false, false, false, {}, {}, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            plan.pixels.push_back(static_cast<uint32_t>(packed(x % 256, y, 7)));
    return writeBmp(plan);
}

std::string run(const std::string& script) {
    const DriverRun r = runDriver(script);
    EXPECT_EQ(r.status, 0) << r.err;
    return r.out;
}

// Before any skin the box is 267 x 163: a bigger picture is cut at its right and bottom, a
// smaller one leaves the rest of the box black; the canvas takes the box's size.
TEST(PictureImport, ThePictureFillsTheBoxAtTheBoxsSize) {
    const std::string probes =
        "print picture1.ScaleWidth\nprint picture1.ScaleHeight\n"
        "print Picture7.Width\nprint Picture7.Visible\nprint Picture7.Point 12 3\n"
        "print picture1.Point 266 162\nprint picture1.Point 19 9\n"
        "print picture1.Point 20 9\n";
    const std::string size =
        "picture1.ScaleWidth=267\npicture1.ScaleHeight=163\nPicture7.Width=4005\n"
        "Picture7.Visible=True\nPicture7.Point(12,3)=" +
        std::to_string(packed(12, 3, 7)) + "\n";
    for (const bool big : {true, false}) {
        TempDir dir;
        const std::string path = dir.write("p.bmp", big ? picture(300, 200) : picture(20, 10));
        EXPECT_EQ(run("answer open " + scriptQuote(path) + "\nclick OpenSkin\n" + probes),
                  "dialog open \"Load Skin Image\" -> " + path + "\n" + size +
                      "picture1.Point(266,162)=" + std::to_string(big ? packed(10, 162, 7) : 0) +
                      "\npicture1.Point(19,9)=" + std::to_string(packed(19, 9, 7)) +
                      "\npicture1.Point(20,9)=" + std::to_string(big ? packed(20, 9, 7) : 0) +
                      "\n");
    }
}

// After a skin: its grid, sizes, header and palette stay and so does a save; the tool's name,
// the status line, the "Actual Pixels" mark, the dialog's kind text and the pointer stay.
TEST(PictureImport, NoSkinIsMadeAndOnlyThePictureAndTheViewChange) {
    TempDir dir;
    const std::string state =
        "print Skin_Width\nprint Skin_Height\nprint PCX_Header 9\nprint Pal_Table 9\n"
        "print SSPanel3.Caption\nprint StatusBar1.Panels(1).Text\nprint ActualPixels.Checked\n"
        "print CommonDialog1.KindText\nprint frmMain.MousePointer\n";
    const std::string out =
        run(kOpenTestSkin + "click SSCommand4\nanswer save " + scriptQuote(dir.file("before.pcx")) +
            "\nclick SKas\nanswer open cancel\nclick wF\n" + state + "answer open " +
            scriptQuote(dir.write("p.bmp", picture(30, 20))) + "\nclick OpenSkin\n" + state +
            "print Tool_Mode\nprint picture1.Point 29 19\nanswer save " +
            scriptQuote(dir.file("after.pcx")) + "\nclick SKas\n");
    const auto first = out.find("Skin_Width="), second = out.find("Skin_Width=", first + 1);
    ASSERT_NE(second, std::string::npos) << out;
    const std::string before = out.substr(first, out.find("dialog open", first) - first);
    EXPECT_EQ(out.substr(second, before.size()), before);
    EXPECT_NE(before.find("\"Drawing Tool\"\nStatusBar1.Panels(1).Text=\"Select Image\""),
              std::string::npos);
    EXPECT_NE(
        out.find("Tool_Mode=\"Zoom\"\npicture1.Point(29,19)=" + std::to_string(packed(29, 19, 7))),
        std::string::npos);
    EXPECT_EQ(readFile(dir.file("before.PCX")), readFile(dir.file("after.PCX")));
}

// Cancel, a missing file, a text, a PNG (which the driver doesn't read) and a cut bitmap:
// the message, and both boxes hidden and empty.
TEST(PictureImport, EveryFailureShowsTheMessageAndLeavesBothBoxesHiddenAndEmpty) {
    TempDir dir;
    Bytes cut = picture(30, 20);
    cut.resize(cut.size() - 100);
    for (const std::string& answer :
         {std::string("cancel"), scriptQuote(dir.file("missing.bmp")),
          scriptQuote(dir.write("text.bmp", {'h', 'i', '\n'})),
          scriptQuote(dir.write("p.png", {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'})),
          scriptQuote(dir.write("cut.bmp", cut))}) {
        const std::string out =
            run("answer open " + scriptQuote(dir.write("good.bmp", picture(30, 20))) +
                "\nclick OpenSkin\nanswer open " + answer +
                "\nclick OpenSkin\nprint picture1.Visible\nprint Picture7.Visible\nprint "
                "picture1.Point 5 5\n");
        const std::string tail =
            "msgbox \"There was a problem loading the file. Check the filename and/or "
            "format.\" style=0 -> ok\npicture1.Visible=False\nPicture7.Visible=False\n"
            "picture1.Point(5,5)=0\n";
        ASSERT_GE(out.size(), tail.size()) << out;
        EXPECT_EQ(out.substr(out.size() - tail.size()), tail) << answer;
    }
}

} // namespace
} // namespace tavrin::test
