// The colour line's split on its own, and the real palettes users have (ACT tables and
// text palettes from many programs) through the two readers.
#include "palette/text_palette.h"
#include "support/test_support.h"

#include <filesystem>
#include <sstream>

namespace tavrin::test {
namespace {

TEST(TextPalette, EachFieldCountsAsItsLeadingNumber) {
    const std::pair<std::string, TextColor> cases[] = {
        {"-3 +4 -", {-3, 4, 0}},
        {"1.5.3 +-5 .", {1.5, 0, 0}},
        {"0012 1e3 0x7", {12, 1, 0}},
        {std::string(49, '0') + "7123 5", {7, 0, 0}}, // only 50 characters are looked at
        {"1 2 3 4\r", {1, 2, 3}},
    };
    for (const auto& [line, colour] : cases)
        EXPECT_EQ(splitColorLine(line), colour) << line;
}

using RealPalettes = EditorTest;

// ACT tables give their bytes and text palettes the numbers of their lines; the other files
// named .pal (RIFF, raw) are read all the same, as noise or as the reader's message.
TEST_F(RealPalettes, EveryRealPaletteLoads) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(TAVRIN_REALDATA) / "palettes";
    if (!fs::is_directory(folder)) GTEST_SKIP() << "no real palettes beside the project";
    installGamePalette();
    frm.Form_Load();
    int read = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        const std::string path = entry.path().string();
        const Bytes bytes = readFile(path);
        std::vector<int> expected; // red, green, blue of each record read
        frm.Pal_Path = path;
        if (path.ends_with(".act") || path.ends_with(".ACT")) {
            frm.Get_Pal();
            expected.assign(bytes.begin(), bytes.begin() + std::min<long>(768, std::ssize(bytes)));
        } else if (std::string(bytes.begin(), bytes.end()).starts_with("JASC-PAL")) {
            frm.Get_PSPal();
            std::istringstream in(std::string(bytes.begin(), bytes.end()));
            std::string line;
            for (int k = 0; std::getline(in, line); ++k) {
                std::istringstream numbers(line);
                int red = 0, green = 0, blue = 0;
                if (k >= 3 && numbers >> red >> green >> blue)
                    expected.insert(expected.end(), {red, green, blue});
            }
        } else {
            frm.Get_PSPal();
            frm.Get_Pal();
            continue;
        }
        ++read;
        for (std::size_t k = 0; k < expected.size(); ++k) {
            const PalRecord& r = frm.Pal_Table(static_cast<int>(k / 3));
            EXPECT_EQ(expected[k], k % 3 == 0   ? r.Red
                                   : k % 3 == 1 ? r.Green
                                                : r.Blue)
                << path << " " << k;
        }
    }
    EXPECT_GE(read, 10);
    for (const auto& m : host.messages())
        EXPECT_EQ(m.text, "Path/File not found, or not a valid file.");
}

} // namespace
} // namespace tavrin::test
