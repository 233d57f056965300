// The text tool driven as a user drives it, with the headless host's bitmap font: what
// "&Apply" stamps is the preview's lit pixels at the click, in the colour of that moment;
// the preview shrinks to its text and flips within it.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tavrin::test {
namespace {

constexpr int kSkinWidth = 200;

// Black is palette cell 0, green cell 208. A picked colour becomes the paint colour at
// the next event on the canvas: a move.
const std::string kPickBlack = "palette down 1 0 5 5\nmouse move 0 0 9 9\n";
const std::string kPickGreen = "palette down 1 0 5 148\nmouse move 0 0 9 9\n";
const std::string kEnter = "type Text7 \"Hi!\"\nkey Text7 13\n";

struct Picture {
    int w = 0, h = 0;
    std::vector<uint32_t> px; // 0xBBGGRR
    std::set<std::pair<int, int>> lit;
};

// A dump as the driver writes it: "P6\nW H\n255\n" and the pixels.
Picture readPpm(const std::string& path) {
    const Bytes b = readFile(path);
    Picture p;
    int at = 0;
    std::sscanf(std::string(b.begin(), b.begin() + 20).c_str(), "P6 %d %d 255%n", &p.w, &p.h, &at);
    for (int k = 0; k < p.w * p.h; ++k) {
        const std::size_t c = static_cast<std::size_t>(at + 1 + 3 * k);
        p.px.push_back(b.at(c) | b.at(c + 1) << 8 | static_cast<uint32_t>(b.at(c + 2)) << 16);
        if (p.px.back() != 0) p.lit.insert({k % p.w, k / p.w});
    }
    return p;
}

std::vector<int> readGrid(const std::string& path) {
    const Bytes b = readFile(path);
    std::vector<int> cells;
    for (std::size_t i = 0; i + 1 < b.size(); i += 2)
        cells.push_back(static_cast<int16_t>(b[i] | b[i + 1] << 8));
    return cells;
}

// Opens the skin, picks green, chooses the tool and clicks at skin pixel (x, y).
std::string placed(int x, int y) {
    const std::string at = std::to_string(x) + " " + std::to_string(y);
    return kOpenTestSkin + kPickGreen + "click SSCommand20\nmouse down 1 0 " + at +
           "\nmouse up 1 0 " + at + "\n";
}

TEST(TextTool, ApplyStampsThePreviewsLitPixelsAtTheClickInTheColourOfThatMoment) {
    struct Case {
        const char* name;
        int x, y;
        std::string before, after; // around Apply; the preview is dumped just before it
        int32_t colour;            // of the stamp
        bool stamps = true;
    };
    const Case cases[] = {
        {"plain", 50, 40, kEnter, "", 0x00FF00},
        {"colour picked after Enter", 50, 40, kEnter + kPickBlack, "", 0},
        {"bold after Enter: from the next Enter on", 50, 40, kEnter + "click tbToolBar.Bold\n", "",
         0x00FF00},
        {"flipped", 50, 40, kEnter + "click SSCommand2\n", "", 0x00FF00},
        // Black prints nothing the scan sees: only the clicked pixel is painted.
        {"black text", 60, 30, kPickBlack + kEnter + kPickGreen, "", 0x00FF00},
        // picture1 is 198 wide: the grid takes two columns more, and nothing past them.
        {"past the right edge", 192, 100, kEnter, "", 0x00FF00},
        {"before any Enter", 50, 40, "", "", 0x00FF00, false},
        {"undone", 50, 40, kEnter, "click Undo\n", 0x00FF00, false},
    };
    for (const Case& c : cases) {
        TempDir dir;
        auto dumps = [&](const std::string& n) {
            return "dump grid " + scriptQuote(dir.file("g" + n)) + "\ndump picture picture1 " +
                   scriptQuote(dir.file("p" + n)) + "\n";
        };
        const DriverRun r =
            runDriver(placed(c.x, c.y) + c.before + "dump picture Picture25 " +
                      scriptQuote(dir.file("preview")) + "\n" + dumps("0") + "click SSCommand3\n" +
                      c.after + dumps("1") + "print Paint_Color\nprint Color_Index\n");
        ASSERT_EQ(r.status, 0) << c.name << ": " << r.err;
        ASSERT_NE(r.out.find("Paint_Color=" + std::to_string(c.colour) + "\n"), std::string::npos)
            << c.name << ": " << r.out;
        const int index = std::stoi(r.out.substr(r.out.rfind('=') + 1));
        std::set<std::pair<int, int>> stamp;
        if (c.stamps) {
            stamp.insert({c.x, c.y});
            for (auto [x, y] : readPpm(dir.file("preview")).lit)
                stamp.insert({x + c.x, y + c.y});
        }
        const std::vector<int> g0 = readGrid(dir.file("g0")), g1 = readGrid(dir.file("g1"));
        const Picture p0 = readPpm(dir.file("p0")), p1 = readPpm(dir.file("p1"));
        ASSERT_EQ(g0.size(), g1.size());
        for (std::size_t cell = 0; cell < g0.size(); ++cell) {
            const int x = static_cast<int>(cell) % kSkinWidth,
                      y = static_cast<int>(cell) / kSkinWidth;
            const bool stamped = stamp.count({x, y}) != 0;
            ASSERT_EQ(g1[cell], stamped ? index : g0[cell]) << c.name << " at " << x << "," << y;
            if (x < p1.w && y < p1.h) {
                const auto k = static_cast<std::size_t>(y * p1.w + x);
                ASSERT_EQ(p1.px[k], stamped ? static_cast<uint32_t>(c.colour) : p0.px[k]) << c.name;
            }
        }
    }
}

// The boxes shrink to 15 twips a pixel of the text's rightmost and lowest lit pixel plus
// 100, held at whole pixels; text wider than the box is cut at its edge. A flip mirrors
// the text within that width, twice gives it back, and so does a second Enter.
TEST(TextTool, ThePreviewShrinksToItsTextAndFlipsWithinIt) {
    const std::string wide(60, 'W'), larger = "answer font \"Any\" 24\nclick tbToolBar.Font\n";
    const std::pair<std::string, std::string> cases[] = {
        {"", ""}, {"", "Hi!"}, {larger, "Hi!"}, {"", wide}};
    for (const auto& [font, text] : cases) {
        TempDir dir;
        auto dump = [&](const std::string& n) {
            return "dump picture Picture25 " + scriptQuote(dir.file(n)) + "\n";
        };
        const std::string flip = "click SSCommand2\n";
        const DriverRun r =
            runDriver(placed(50, 40) + font + "type Text7 " + scriptQuote(text) +
                      "\nkey Text7 13\n" + dump("p0") +
                      "print Picture25.Width\nprint Picture25.Height\n"
                      "print Picture16.Width\n" +
                      flip + dump("p1") + flip + dump("p2") + flip + "key Text7 13\n" + dump("p3"));
        ASSERT_EQ(r.status, 0) << text << r.err;
        const Picture p0 = readPpm(dir.file("p0")), p1 = readPpm(dir.file("p1"));
        int maxX = 0, maxY = 0;
        for (auto [x, y] : p0.lit) {
            maxX = std::max(maxX, x);
            maxY = std::max(maxY, y);
        }
        // 15 * max + 100 twips: 6.67 pixels past the pixel, so 7.
        const std::string w = std::to_string(15 * (maxX + 7)), h = std::to_string(15 * (maxY + 7));
        EXPECT_NE(r.out.find("Picture25.Width=" + w + "\nPicture25.Height=" + h +
                             "\nPicture16.Width=" + w + "\n"),
                  std::string::npos)
            << text << r.out;
        if (text == wide) {
            EXPECT_EQ(maxX, 3495 / 15 - 4 - 2) << "the last whole W inside the box";
        }
        ASSERT_EQ(p1.px.size(), p0.px.size());
        for (int y = 0; y < p0.h; ++y)
            for (int x = 0; x < p0.w; ++x)
                ASSERT_EQ(p1.px[y * p0.w + x], p0.px[y * p0.w + p0.w - 1 - x]) << x << "," << y;
        EXPECT_EQ(readPpm(dir.file("p2")).px, p0.px);
        EXPECT_EQ(readPpm(dir.file("p3")).px, p0.px);
    }
}

} // namespace
} // namespace tavrin::test
