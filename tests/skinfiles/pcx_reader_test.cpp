// Opening PCX skins: the decoder's rules, the command around it, random files, files from
// other encoders and real skins, each checked against the rules worked out byte by byte.
#include "skinfiles/pcx_test_support.h"

#include <filesystem>
#include <random>

namespace tavrin::test {
namespace {

namespace fs = std::filesystem;

struct PcxReader : EditorTest {
    void SetUp() override {
        installGamePalette();
        frm.Form_Load();
    }
    int32_t colourOf(int index) {
        const PalRecord& r = frm.Pal_Table(index);
        return packed(r.Red, r.Green, r.Blue);
    }
    // The file loads as its rules say: sizes, every grid cell, and the picture.
    void expectLoadedAsRules(const std::string& path, const std::vector<int>& unrecorded = {}) {
        const Bytes file = readFile(path);
        const ExpectedLoad e = expectedLoad(file, unrecorded);
        openSkin(host, frm, path);
        ASSERT_EQ(frm.Skin_Width, static_cast<double>(e.width)) << path;
        ASSERT_EQ(frm.Skin_Height, static_cast<double>(e.ymax + 4)) << path;
        ASSERT_EQ(frm.Skin_Grid.size(), e.grid.size()) << path;
        for (std::size_t i = 0; i < e.grid.size(); ++i)
            ASSERT_EQ(frm.Skin_Grid(static_cast<int64_t>(i)), e.grid[i]) << path << " cell " << i;
        if (!e.completed) {
            EXPECT_EQ(frm.picture1.Picture.get(), nullptr) << path;
            EXPECT_TRUE(frm.Picture7.Visible) << path; // the canvas shows all the same
            return;
        }
        ASSERT_EQ(frm.picture1.innerWidth(), e.width - 2) << path;
        ASSERT_EQ(frm.picture1.innerHeight(), e.ymax + 2) << path;
        for (int y = 0; y < e.ymax + 2; y += 7)
            for (int x = 0; x < e.width - 2; x += 3)
                ASSERT_EQ(frm.picture1.Point(x, y),
                          colourOf(e.grid[static_cast<std::size_t>(y * e.width + x)]))
                    << path << " at " << x << "," << y;
        for (int k = 0; k < 128; ++k)
            ASSERT_EQ(frm.PCX_Header(k + 1), file[static_cast<std::size_t>(k)]);
    }
};

TEST_F(PcxReader, SmallSkinLoadsWithFillerRowsAndShowsOnTheCanvas) {
    // 4 x 3 with runs that cross the ends of rows.
    std::vector<uint8_t> px = {1, 1, 1, 1, 1, 2, 3, 200, 200, 200, 200, 4};
    const std::string path = dir.write("small.pcx", encodePcx(4, 3, px, gamePalette()));
    expectLoadedAsRules(path); // 4 x 6 cells and a picture of 2 x 4, zeros behind the data
    for (std::size_t i = 0; i < px.size(); ++i)
        EXPECT_EQ(frm.Skin_Grid(static_cast<int>(i)), px[i]);
    EXPECT_EQ(frm.picture1.Point(1, 2), colourOf(200));
    EXPECT_EQ(frm.picture1.Point(0, 3), colourOf(0));
    EXPECT_EQ(frm.Picture7.Point(1, 1), frm.picture1.Point(1, 1));
    EXPECT_TRUE(frm.Picture7.Visible);
    EXPECT_EQ(frm.Tool_Mode, "Zoom");
    EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), "Ready...");
    EXPECT_EQ(frm.MousePointer, 0);
    ASSERT_EQ(host.messages().size(), 1u);
    EXPECT_EQ(host.messages()[0].text, "Import Palette From Skin?");
    // Each load flips the Actual Pixels mark while the panel stays open.
    for (const bool checked : {true, false}) {
        EXPECT_EQ(frm.ActualPixels.Checked, checked);
        EXPECT_TRUE(frm.SSPanel11.Visible);
        openSkin(host, frm, path);
    }
}

TEST_F(PcxReader, PaletteFromTheSkinWhenTheUserSaysYes) {
    Bytes pal = makeBytes(768, [](std::size_t k) { return static_cast<uint8_t>(k % 251); });
    const std::string path = dir.write("own.pcx", encodePcx(4, 2, {1, 2, 3, 4, 5, 6, 7, 8}, pal));
    openSkin(host, frm, path, true);
    EXPECT_EQ(frm.Pal_Table(1).Red, 3);
    EXPECT_EQ(frm.Pal_Table(255).Blue, static_cast<int>(767 % 251));
    EXPECT_EQ(frm.Pal_Path, path);
    EXPECT_EQ(frm.picture1.Point(0, 0), packed(3, 4, 5));
}

TEST_F(PcxReader, CancelAndHostileHeaders) {
    const std::string good =
        dir.write("g.pcx", encodePcx(4, 2, {1, 2, 3, 4, 5, 6, 7, 8}, gamePalette()));
    openSkin(host, frm, good);
    host.answerOpen(std::nullopt);
    frm.pcxIm_Click();
    EXPECT_EQ(host.messages().back().text,
              "There was a problem loading the file. Check the filename and/or format.");
    EXPECT_FALSE(frm.Picture7.Visible);
    EXPECT_EQ(frm.Skin_Grid(0), 1); // the old skin stays, and a save would write it

    // Sizes no skin can have end inside the reader, silently, without gigabytes.
    for (auto [w, h] : {std::pair{65536, 65536}, std::pair{30000, 30000}, std::pair{1, 1}}) {
        Bytes file = pcxHeader(w, h, w & 0xFFFF);
        const std::string path = dir.write("huge.pcx", file);
        const std::size_t shown = host.messages().size();
        openSkin(host, frm, path);
        EXPECT_EQ(host.messages().size(), shown + 1) << w; // only the palette question
        EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), "Ready...");
        EXPECT_EQ(frm.picture1.Picture.get(), nullptr);
    }
    // The reader left its file open: a tail read of the palette now can't open it.
    openSkin(host, frm, good, true);
    EXPECT_EQ(host.messages().back().text, "Path/File not found, or not a valid file.");
}

TEST_F(PcxReader, RandomBytesDecodeAsTheRulesSay) {
    // Runs, literals and 192s in any order, data that ends early or late, and widths on
    // both sides of the ones whose filler rows run out: every cell of the grid, the
    // picture where it is made, and the zeros behind the last cell written; every third
    // file with some values that have no record of their own. Half the headers claim a
    // padding byte a line, which the reader must not skip: it reads one stream of runs.
    // Every seventh is wider than the grid's spare cells, so the grid ends before the rows.
    std::mt19937 rng(11);
    for (int round = 0; round < 150; ++round) {
        const bool wide = round % 7 == 3;
        const int w = wide ? 860 + static_cast<int>(rng() % 240) : 2 + static_cast<int>(rng() % 90);
        const int h = 1 + static_cast<int>(rng() % (wide ? 3 : 30));
        Bytes file = pcxHeader(w, h, w + round % 2);
        // Every fifth file has next to no data: the zeros behind it run out first if wide.
        const std::size_t dataBytes =
            rng() % static_cast<std::size_t>(round % 5 == 4 ? 40 : 2 * w * h + 8);
        // Every fourth file is mostly single pixels, in stretches of any length.
        const bool literals = round % 4 == 1;
        for (std::size_t i = 0; i < dataBytes; ++i)
            file.push_back(static_cast<uint8_t>(rng() % (literals ? 40 : 3) == 0
                                                    ? 192 + rng() % 64
                                                    : rng() % (literals ? 192 : 256)));
        file.push_back(0x0C);
        const Bytes palette = gamePalette();
        file.insert(file.end(), palette.begin(), palette.end());
        std::vector<int> unrecorded;
        for (int k = 0; round % 3 == 2 && k < 40; ++k)
            unrecorded.push_back(static_cast<int>(rng() % 256));
        for (int v : unrecorded)
            frm.Pal_Table(v).Index = 300;
        expectLoadedAsRules(dir.write("random.pcx", file), unrecorded);
        for (int v : unrecorded)
            frm.Pal_Table(v).Index = v;
    }
}

TEST_F(PcxReader, StretchesAndRunsUpToTheGridsEnd) {
    // Wider than the grid's spare cells, so the grid ends before the rows do: 62 single
    // pixels and a run of 63 over and over, until one of each no longer fits.
    Bytes file = pcxHeader(1024, 1, 1024);
    for (int group = 0; group < 60; ++group) {
        for (int i = 0; i < 62; ++i)
            file.push_back(static_cast<uint8_t>((group + i) % 192));
        file.insert(file.end(), {255, static_cast<uint8_t>(group)});
    }
    file.push_back(0x0C);
    const Bytes palette = gamePalette();
    file.insert(file.end(), palette.begin(), palette.end());
    expectLoadedAsRules(dir.write("end.pcx", file));
}

TEST_F(PcxReader, AValueWithoutARecordRepeatsThePixelBefore) {
    frm.Pal_Table(3).Index = 40; // no record of its own for 3 and 5
    frm.Pal_Table(5).Index = 41;
    frm.Pal_Table(0).Red = 200; // so that the black of the first pixels shows
    openSkin(host, frm, dir.write("norec.pcx", encodePcx(6, 1, {3, 3, 7, 5, 0, 5}, gamePalette())));
    const std::vector<int16_t> grid = {0, 0, 7, 7, 0, 0};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(frm.Skin_Grid(i), grid[static_cast<std::size_t>(i)]) << i;
    const std::vector<int32_t> shown = {0, 0, colourOf(7), colourOf(7)};
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(frm.picture1.Point(x, 0), shown[static_cast<std::size_t>(x)]) << x;
    EXPECT_EQ(frm.picture1.Point(0, 1), colourOf(0));
}

TEST_F(PcxReader, FilesFromOtherEncoders) {
    for (const char* name :
         {"odd-width-7x5.pcx", "xmin5-ymin3.pcx", "tall-4x2200.pcx", "short-600.pcx"})
        expectLoadedAsRules(std::string(TAVRIN_TEST_DATA) + "/" + name);
    // Xmin is not subtracted: 5 + 6 columns wide.
    EXPECT_EQ(expectedLoad(readFile(std::string(TAVRIN_TEST_DATA) + "/xmin5-ymin3.pcx")).width, 11);
}

TEST_F(PcxReader, RealSkins) {
    const fs::path root = fs::path(TAVRIN_REALDATA);
    if (!fs::exists(root)) GTEST_SKIP() << "no real files at " << root;
    int loaded = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        std::string ext = entry.path().extension().string();
        for (char& c : ext)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if (ext != ".pcx") continue;
        const Bytes file = readFile(entry.path().string());
        if (file.size() < 128 || file[3] != 8 || file[65] != 1) continue; // 8-bit, one plane
        expectLoadedAsRules(entry.path().string());
        ++loaded;
    }
    EXPECT_GT(loaded, 0);
}

} // namespace
} // namespace tavrin::test
