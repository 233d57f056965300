// The text palette's colour lines taken apart on their own, and the real palettes that
// users have (ACT tables and text palettes from many programs) read through the importers.
#include "palette/text_palette.h"
#include "support/test_support.h"

#include <filesystem>
#include <sstream>

namespace tavrin::test {
namespace {

// What the driver's tests of the importers don't reach: signs and points that make no
// number, and the scan's limit on a line of digits alone.
TEST(TextPalette, EachFieldCountsAsItsLeadingNumber) {
    const struct {
        std::string line;
        TextColor colour;
    } cases[] = {
        {"-3 +4 -", {-3, 4, 0}},
        {"1.5.3 +-5 .", {1.5, 0, 0}},
        {"0012 1e3 0x7", {12, 1, 0}},
        {std::string(49, '0') + "7123 5", {7, 0, 0}}, // only 50 characters are looked at
        {"1 2 3 4 5", {1, 2, 3}},
        {"1 2 3\r", {1, 2, 3}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(splitColorLine(c.line), c.colour) << c.line;
}

namespace fs = std::filesystem;

std::vector<fs::path> realPalettes() {
    std::vector<fs::path> files;
    const fs::path folder = fs::path(TAVRIN_REALDATA) / "palettes";
    if (fs::is_directory(folder))
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string lower(std::string s) {
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

using RealPalettes = EditorTest;

// ACT tables give their bytes; text palettes give the numbers of their lines; the other
// files named .pal (RIFF, raw) are read all the same, as noise or as the reader's message.
TEST_F(RealPalettes, EveryRealPaletteLoads) {
    const std::vector<fs::path> files = realPalettes();
    if (files.empty()) GTEST_SKIP() << "no real palettes beside the project";
    installGamePalette();
    frm.Form_Load();
    int act = 0, text = 0;
    for (const fs::path& file : files) {
        const std::string ext = lower(file.extension().string());
        const Bytes bytes = readFile(file.string());
        const bool jasc =
            Bytes(bytes.begin(), bytes.begin() + std::min<std::size_t>(8, bytes.size())) ==
            Bytes{'J', 'A', 'S', 'C', '-', 'P', 'A', 'L'};
        const std::size_t shown = host.messages().size();
        frm.Pal_Path = file.string();
        if (ext == ".act") {
            ++act;
            frm.Get_Pal();
            EXPECT_EQ(host.messages().size(), shown) << file;
            for (int n = 0; n < 256; ++n) {
                const PalRecord& r = frm.Pal_Table(n);
                const auto k = static_cast<std::size_t>(3 * n);
                EXPECT_EQ((std::vector<int>{r.Red, r.Green, r.Blue}),
                          (std::vector<int>{bytes[k], bytes[k + 1], bytes[k + 2]}))
                    << file << " record " << n;
            }
        } else if (jasc) {
            ++text;
            frm.Get_PSPal();
            EXPECT_EQ(host.messages().size(), shown) << file;
            std::istringstream in(std::string(bytes.begin(), bytes.end()));
            std::string line;
            for (int k = 0; k < 3; ++k)
                std::getline(in, line);
            for (int n = 0; std::getline(in, line); ++n) {
                std::istringstream numbers(line);
                int red = 0, green = 0, blue = 0;
                numbers >> red >> green >> blue;
                const PalRecord& r = frm.Pal_Table(n);
                EXPECT_EQ((std::vector<int>{r.Red, r.Green, r.Blue, r.Index}),
                          (std::vector<int>{red, green, blue, n}))
                    << file << " record " << n;
            }
        } else {
            frm.Get_PSPal();
            frm.Pal_Path = file.string();
            frm.Get_Pal();
        }
    }
    EXPECT_GT(act, 0);
    EXPECT_GT(text, 0);
    for (const auto& m : host.messages())
        EXPECT_EQ(m.text, "Path/File not found, or not a valid file.");
}

} // namespace
} // namespace tavrin::test
