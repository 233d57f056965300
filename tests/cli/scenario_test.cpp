// Whole scenarios through the driver, as a user would run them: open a skin, pick, paint,
// undo, save, and compare the saved bytes with what the rules give.
#include "cli/driver_run.h"
#include "support/test_support.h"

namespace tavrin::test {
namespace {

const std::string kSkin = TAVRIN_TEST_DATA "/swirl-200x160.pcx";

std::string openSkin(const std::string& path) {
    return "answer open " + scriptQuote(path) + "\nanswer msgbox no\nclick pcxIm\n";
}

// What a save must hold: the file's header, W x (Ymax + 4) pixels with 0xC1 before the
// values of 192 and above, the game's palette, no marker.
Bytes expectedSave(const Bytes& source, const Bytes& gridDump) {
    Bytes out(source.begin(), source.begin() + 128);
    const int w = source[8] + 256 * source[9] + 1, h = source[10] + 256 * source[11] + 4;
    for (int i = 0; i < w * h; ++i) {
        const int v = gridDump[static_cast<std::size_t>(2 * i)] | (gridDump[static_cast<std::size_t>(2 * i + 1)] << 8);
        if (v >= 192) out.push_back(0xC1);
        out.push_back(static_cast<uint8_t>(v));
    }
    Bytes pal = gamePalette();
    out.insert(out.end(), pal.begin(), pal.end());
    return out;
}

TEST(DriverScenario, OpenThenSaveWritesTheRulesBytes) {
    TempDir dir;
    DriverRun r = runDriver(openSkin(kSkin) + "dump grid " + scriptQuote(dir.file("grid")) +
                            "\nanswer save " + scriptQuote(dir.file("out.pcx")) + "\nclick SKas\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(readFile(dir.file("out.PCX")), expectedSave(readFile(kSkin), readFile(dir.file("grid"))));
}

TEST(DriverScenario, PickPaintAtZoomTwoUndoAndSave) {
    TempDir dir;
    // Green, cell 208 of the palette; the pencil; one zoom step in at the canvas's middle.
    const std::string script = openSkin(kSkin) +
                               "palette down 1 0 5 148\npalette up 1 0 5 148\n"
                               "click SSCommand19\nmouse down 1 0 100 80\nmouse up 1 0 100 80\n"
                               "print Zoom_Factor\nclick SSCommand4\n"
                               "mouse down 1 0 40 40\nmouse move 1 0 60 40\nmouse up 1 0 60 40\n"
                               "print Skin_Grid 4020\nprint Skin_Grid 4030\n"
                               "click Undo\nprint Skin_Grid 4030\n"
                               "mouse down 1 0 60 40\nmouse up 1 0 60 40\n"
                               "dump grid " + scriptQuote(dir.file("grid")) + "\n"
                               "answer save " + scriptQuote(dir.file("p.pcx")) + "\nclick SKas\n";
    DriverRun r = runDriver(script);
    ASSERT_EQ(r.status, 0) << r.err;
    // At zoom 2 the canvas pixel (40, 40) is the skin pixel (20, 20): cell 20 * 200 + 20.
    EXPECT_NE(r.out.find("Zoom_Factor=2\n"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("Skin_Grid(4020)=208\n"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("Skin_Grid(4030)=208\n"), std::string::npos) << r.out;
    // Undo takes back the whole stroke, from its press on.
    EXPECT_EQ(r.out.find("Skin_Grid(4030)=208\n"), r.out.rfind("Skin_Grid(4030)=208\n")) << r.out;
    const Bytes grid = readFile(dir.file("grid"));
    EXPECT_EQ(grid[2 * 4030], 208);
    EXPECT_EQ(readFile(dir.file("p.PCX")), expectedSave(readFile(kSkin), grid));
}

} // namespace
} // namespace tavrin::test
