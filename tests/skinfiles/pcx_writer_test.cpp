// Saving: the header as it stands, every pixel alone with 0xC1 before values of 192 and
// above, the current palette, no marker; the target's name and the silent failures.
#include "skinfiles/pcx_test_support.h"

#include <fstream>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tavrin::test {
namespace {

struct PcxWriter : EditorTest {
    void SetUp() override {
        installGamePalette();
        frm.Form_Load();
    }
    void openSmallSkin() {
        openSkin(host, frm, dir.write("in.pcx", encodePcx(2, 1, {5, 6}, gamePalette())));
    }
    // What a save must write for the editor as it stands.
    Bytes expectedFile() {
        Bytes out;
        for (int k = 1; k <= 128; ++k)
            out.push_back(frm.PCX_Header(k));
        const int w = static_cast<int>(frm.Skin_Width.num()),
                  h = static_cast<int>(frm.Skin_Height.num());
        for (int i = 0; i < w * h; ++i) {
            const int v = frm.Skin_Grid(i);
            if (v >= 192) out.push_back(0xC1);
            out.push_back(static_cast<uint8_t>(v));
        }
        for (int k = 0; k < 256; ++k) {
            out.push_back(static_cast<uint8_t>(frm.Pal_Table(k).Red));
            out.push_back(static_cast<uint8_t>(frm.Pal_Table(k).Green));
            out.push_back(static_cast<uint8_t>(frm.Pal_Table(k).Blue));
        }
        return out;
    }
};

TEST_F(PcxWriter, LoadThenSaveWritesHeaderGridWithEscapesAndPalette) {
    std::vector<uint8_t> px = {0, 191, 192, 255, 7, 7, 7, 7, 200, 1, 2, 3};
    Bytes source = encodePcx(4, 3, px, gamePalette());
    openSkin(host, frm, dir.write("in.pcx", source));
    host.answerSave(dir.file("out.bmp"));
    frm.SKas_Click();
    const Bytes saved = readFile(dir.file("out.PCX"));
    EXPECT_EQ(saved, expectedFile());
    EXPECT_EQ(Bytes(saved.begin(), saved.begin() + 128),
              Bytes(source.begin(), source.begin() + 128));
    EXPECT_EQ(Bytes(saved.begin() + 128, saved.begin() + 134),
              (Bytes{0, 191, 0xC1, 192, 0xC1, 255}));
    EXPECT_EQ(frm.Save_As_Flag, 0);
    EXPECT_EQ(frm.CommonDialog1.DialogTitle.get(), "Save Skin PCX as Filename:");
    EXPECT_TRUE(frm.Picture7.Visible);
    EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), "Ready...");
}

TEST_F(PcxWriter, TargetNameAndWhatStandsThereBefore) {
    openSmallSkin();
    // An older, longer file of the same name leaves nothing behind.
    dir.write("skin.PCX", Bytes(5000, 0xAA));
    host.answerSave(dir.file("skin.pcx"));
    frm.ex_Click();
    EXPECT_EQ(readFile(dir.file("skin.PCX")), expectedFile());
    // Save proposes the last name; a name without an extension loses four letters.
    EXPECT_EQ(frm.CommonDialog1.DialogTitle.get(), "Save Skin PCX ");
    host.answerSave(dir.file("abcdefgh"));
    frm.ex_Click();
    EXPECT_TRUE(std::filesystem::exists(dir.file("abcd.PCX")));
    // Cancel writes nothing and says nothing.
    const std::size_t shown = host.messages().size();
    host.answerSave(std::nullopt);
    frm.ex_Click();
    EXPECT_EQ(host.messages().size(), shown);
    EXPECT_TRUE(frm.Picture7.Visible);
    // The last four characters go, not four bytes.
    host.answerSave(dir.file("skin\xE6\x97\xA5\xE6\x9C\xAC"));
    frm.ex_Click();
    EXPECT_TRUE(std::filesystem::exists(dir.file("sk.PCX")));
}

// A save that fails keeps the file that stood there and says why on the status line,
// with no message box: the rest of the command runs as always. A pipe must not even be
// opened (it would block), and a huge old file is replaced without being read. Every reason
// a target is refused is checked on replaceFile itself.
TEST_F(PcxWriter, AFailedSaveKeepsTheOldFileAndSaysWhy) {
    namespace fs = std::filesystem;
    openSmallSkin();
    const std::string kept = dir.write("kept.PCX", Bytes{1, 2, 3});
    fs::permissions(kept, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    ASSERT_EQ(::mkfifo(dir.file("pipe.PCX").c_str(), 0644), 0);
    { std::ofstream(dir.file("big.PCX"), std::ios::binary); }
    fs::resize_file(dir.file("big.PCX"), std::uintmax_t{1} << 30); // sparse: costs no disk
    const struct {
        const char* name;
        const char* status;
    } cases[] = {
        {"kept.pcx", "Save failed: Permission denied"},
        {"pipe.pcx", "Save failed: Not a regular file"},
        {"big.pcx", "Ready..."}, // the next save that can write says so as always
    };
    const std::size_t shown = host.messages().size();
    rusage before{}, after{};
    ::getrusage(RUSAGE_SELF, &before);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        host.answerSave(dir.file(c.name));
        frm.ex_Click();
        EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), c.status);
        EXPECT_TRUE(frm.Picture7.Visible);
        EXPECT_EQ(frm.MousePointer, 0);
    }
    ::getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 64 * 1024); // kilobytes
    EXPECT_EQ(host.messages().size(), shown);
    EXPECT_EQ(readFile(kept), (Bytes{1, 2, 3}));
    EXPECT_TRUE(fs::is_fifo(dir.file("pipe.PCX")));
    EXPECT_EQ(readFile(dir.file("big.PCX")), expectedFile());
}

TEST_F(PcxWriter, NoSkinGivesHeaderAndPaletteOnly) {
    host.answerSave(dir.file("empty.pcx"));
    frm.ex_Click();
    const Bytes saved = readFile(dir.file("empty.PCX"));
    ASSERT_EQ(saved.size(), 896u);
    EXPECT_EQ(saved[8], 0x1B); // the default header's Xmax
}

TEST_F(PcxWriter, IndicesThatAreNoByteLeaveAHole) {
    openSmallSkin();
    // Any mix of bytes, escapes and holes (256 from a palette longer than 256 colours,
    // negative values from nowhere), in blocks and alone.
    std::mt19937 rng(5);
    const int16_t values[] = {-3, 0, 5, 191, 192, 255, 256, 700};
    frm.Skin_Grid.ReDim(0, 13 * 4 + 1000);
    Bytes pixels;
    for (int i = 0; i < 13 * 4; ++i) {
        const int16_t v = values[rng() % 8];
        frm.Skin_Grid(i) = v;
        if (v >= 192) pixels.push_back(0xC1);
        pixels.push_back(v >= 0 && v <= 255 ? static_cast<uint8_t>(v) : 0);
    }
    frm.Skin_Width = 13;
    host.answerSave(dir.file("mix.pcx"));
    frm.ex_Click();
    const Bytes mix = readFile(dir.file("mix.PCX"));
    EXPECT_EQ(Bytes(mix.begin() + 128, mix.end() - 768), pixels);

    // A size set past the grid: the cells it can't read repeat the last one it could.
    frm.Skin_Grid.ReDim(0, 2);
    frm.Skin_Grid(1) = 7;
    frm.Skin_Grid(2) = 200;
    frm.Skin_Width = 5; // 5 x 4 cells, 3 of them in the grid
    host.answerSave(dir.file("past.pcx"));
    frm.ex_Click();
    const Bytes past = readFile(dir.file("past.PCX"));
    Bytes repeated = {0, 7};
    for (int i = 2; i < 20; ++i)
        repeated.insert(repeated.end(), {0xC1, 200});
    EXPECT_EQ(Bytes(past.begin() + 128, past.end() - 768), repeated);
}

} // namespace
} // namespace tavrin::test
