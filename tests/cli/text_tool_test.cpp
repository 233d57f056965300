// The text tool driven as a user drives it, with the headless host's bitmap font: the
// preview's lit pixels are what "&Apply" stamps at the click, in the colour of that
// moment; the preview box shrinks to the text; flips; undo.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tavrin::test {
namespace {

const std::string kSkin = TAVRIN_TEST_DATA "/swirl-200x160.pcx";
constexpr int kSkinWidth = 200, kSkinRows = 163, kPicture1Width = 198;

// Palette cells as the palette picture shows them: black is cell 0, green cell 208. A
// picked colour becomes the paint colour at the next event on the canvas: a move.
const std::string kPickBlack = "palette down 1 0 5 5\npalette up 1 0 5 5\nmouse move 0 0 9 9\n";
const std::string kPickGreen = "palette down 1 0 5 148\npalette up 1 0 5 148\nmouse move 0 0 9 9\n";

struct Picture {
    int w = 0, h = 0;
    std::vector<uint32_t> px; // 0xBBGGRR
    uint32_t at(int x, int y) const { return px[static_cast<std::size_t>(y * w + x)]; }
    std::set<std::pair<int, int>> lit() const {
        std::set<std::pair<int, int>> s;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (at(x, y) != 0) s.insert({x, y});
        return s;
    }
};

Picture readPpm(const std::string& path) {
    const Bytes b = readFile(path);
    Picture p;
    std::size_t at = 0;
    auto number = [&] {
        while (at < b.size() && (b[at] < '0' || b[at] > '9'))
            ++at;
        int n = 0;
        while (at < b.size() && b[at] >= '0' && b[at] <= '9')
            n = n * 10 + (b[at++] - '0');
        return n;
    };
    at = 2; // "P6"
    p.w = number();
    p.h = number();
    number(); // 255
    ++at;
    for (int k = 0; k < p.w * p.h; ++k, at += 3)
        p.px.push_back(b.at(at) | b.at(at + 1) << 8 | static_cast<uint32_t>(b.at(at + 2)) << 16);
    return p;
}

std::vector<int> readGrid(const std::string& path) {
    const Bytes b = readFile(path);
    std::vector<int> cells;
    for (std::size_t i = 0; i + 1 < b.size(); i += 2)
        cells.push_back(static_cast<int16_t>(b[i] | b[i + 1] << 8));
    return cells;
}

// Opens the skin, picks green, chooses the tool and clicks at (x, y), skin pixels at zoom 1.
std::string placed(int x, int y) {
    return "answer open " + scriptQuote(kSkin) + "\nanswer msgbox no\nclick pcxIm\n" + kPickGreen +
           "click SSCommand20\nmouse down 1 0 " + std::to_string(x) + " " + std::to_string(y) +
           "\nmouse up 1 0 " + std::to_string(x) + " " + std::to_string(y) + "\n";
}

TEST(TextTool, ApplyStampsThePreviewsLitPixelsAtTheClickInTheColourOfThatMoment) {
    constexpr uint32_t kGreen = 0x00FF00, kBlack = 0;
    struct Case {
        const char* name;
        int x, y;
        std::string beforeApply; // from the click on; the preview is dumped at its end
        uint32_t colour;         // the stamp's
        bool stampsAnything = true;
    };
    const Case cases[] = {
        {"plain", 50, 40, "type Text7 \"Hi!\"\nkey Text7 13\n", kGreen},
        // The preview keeps the shape; the stamp takes the colour current at Apply.
        {"colour picked after Enter", 50, 40, "type Text7 \"Hi!\"\nkey Text7 13\n" + kPickBlack,
         kBlack},
        // A style counts from the next Enter on.
        {"bold after Enter", 50, 40, "type Text7 \"Hi!\"\nkey Text7 13\nclick tbToolBar.Bold\n",
         kGreen},
        // Black prints nothing the scan sees: only the clicked pixel is painted.
        {"black text", 60, 30, kPickBlack + "type Text7 \"Hi!\"\nkey Text7 13\n" + kPickGreen,
         kGreen},
        {"past the right edge", 192, 100, "type Text7 \"Hi!\"\nkey Text7 13\n", kGreen},
        {"before any Enter", 50, 40, "type Text7 \"Hi!\"\n", kGreen, false},
    };
    for (const Case& c : cases) {
        TempDir dir;
        const std::string script =
            placed(c.x, c.y) + c.beforeApply + "dump picture Picture25 " +
            scriptQuote(dir.file("preview")) + "\ndump grid " + scriptQuote(dir.file("g0")) +
            "\ndump picture picture1 " + scriptQuote(dir.file("p0")) + "\nclick SSCommand3\n" +
            "dump grid " + scriptQuote(dir.file("g1")) + "\ndump picture picture1 " +
            scriptQuote(dir.file("p1")) + "\nprint Paint_Color\nprint Color_Index\n";
        const DriverRun r = runDriver(script);
        ASSERT_EQ(r.status, 0) << c.name << ": " << r.err;
        ASSERT_NE(r.out.find("Paint_Color=" + std::to_string(c.colour) + "\n"), std::string::npos)
            << c.name << ": " << r.out;
        const int index = std::stoi(r.out.substr(r.out.rfind("Color_Index=") + 12));
        const std::vector<int> g0 = readGrid(dir.file("g0")), g1 = readGrid(dir.file("g1"));
        const Picture p0 = readPpm(dir.file("p0")), p1 = readPpm(dir.file("p1"));
        std::set<std::pair<int, int>> stamp;
        if (c.stampsAnything) {
            stamp.insert({c.x, c.y});
            for (auto [x, y] : readPpm(dir.file("preview")).lit())
                stamp.insert({x + c.x, y + c.y});
        }
        ASSERT_EQ(g0.size(), g1.size());
        for (int y = 0; y < kSkinRows; ++y)
            for (int x = 0; x < kSkinWidth; ++x) {
                const auto cell = static_cast<std::size_t>(y * kSkinWidth + x);
                const bool stamped = stamp.count({x, y}) != 0;
                ASSERT_EQ(g1[cell], stamped ? index : g0[cell])
                    << c.name << " at " << x << "," << y;
                if (x < p1.w && y < p1.h) {
                    ASSERT_EQ(p1.at(x, y), stamped ? c.colour : p0.at(x, y)) << c.name;
                }
            }
        // Nothing lands beyond the grid's or the picture's own edge.
        EXPECT_EQ(p1.w, kPicture1Width) << c.name;
        if (c.x == 192) {
            EXPECT_GT(stamp.rbegin()->first, kSkinWidth) << "the text reaches past";
        }
    }
}

TEST(TextTool, UndoAfterApplyGivesBackTheSkinOfBeforeTheClick) {
    TempDir dir;
    const std::string open =
        "answer open " + scriptQuote(kSkin) + "\nanswer msgbox no\nclick pcxIm\n";
    const DriverRun r = runDriver(
        open + "dump grid " + scriptQuote(dir.file("g0")) + "\ndump picture picture1 " +
        scriptQuote(dir.file("p0")) + "\n" + kPickGreen +
        "click SSCommand20\nmouse down 1 0 20 20\nmouse up 1 0 20 20\n"
        "type Text7 \"Undo me\"\nkey Text7 13\nclick SSCommand3\ndump grid " +
        scriptQuote(dir.file("g1")) + "\nclick Undo\ndump grid " + scriptQuote(dir.file("g2")) +
        "\ndump picture picture1 " + scriptQuote(dir.file("p2")) + "\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_NE(readGrid(dir.file("g1")), readGrid(dir.file("g0")));
    EXPECT_EQ(readGrid(dir.file("g2")), readGrid(dir.file("g0")));
    EXPECT_EQ(readPpm(dir.file("p2")).px, readPpm(dir.file("p0")).px);
}

// The preview shrinks to 15 twips a pixel of its rightmost and lowest lit pixel plus 100,
// held at whole pixels; text wider than the box is cut at its edge.
TEST(TextTool, ThePreviewShrinksToTheText) {
    struct Case {
        const char* name;
        std::string text, font;
    };
    const Case cases[] = {
        {"empty", "", ""},
        {"short", "Hi!", ""},
        {"cut at the box's edge", std::string(60, 'W'), ""},
        {"larger size", "Hi!", "answer font \"Any\" 24\nclick tbToolBar.Font\n"},
    };
    for (const Case& c : cases) {
        TempDir dir;
        const DriverRun r =
            runDriver(placed(50, 40) + c.font + "type Text7 " + scriptQuote(c.text) +
                      "\nkey Text7 13\nprint Picture25.Width\nprint Picture25.Height\n"
                      "print Picture16.Width\ndump picture Picture25 " +
                      scriptQuote(dir.file("preview")) + "\n");
        ASSERT_EQ(r.status, 0) << c.name << ": " << r.err;
        int maxX = 0, maxY = 0;
        for (auto [x, y] : readPpm(dir.file("preview")).lit()) {
            maxX = std::max(maxX, x);
            maxY = std::max(maxY, y);
        }
        // Whole pixels: 15 * max + 100 twips is 6.67 pixels past the pixel, so 7.
        const std::string w = std::to_string(15 * (maxX + 7)), h = std::to_string(15 * (maxY + 7));
        EXPECT_NE(r.out.find("Picture25.Width=" + w + "\nPicture25.Height=" + h +
                             "\nPicture16.Width=" + w + "\n"),
                  std::string::npos)
            << c.name << ": " << r.out;
        if (c.text.size() > 10) {
            EXPECT_EQ(maxX, 3495 / 15 - 4 - 2) << "the last W's right stem";
        }
    }
}

// Flipping mirrors the text within the shrunken box; twice gives it back, without
// shrinking again; a second Enter with the same text undoes a flip.
TEST(TextTool, FlipMirrorsTwiceGivesBackAndEnterUndoesIt) {
    TempDir dir;
    auto dump = [&](const std::string& name) {
        return "dump picture Picture25 " + scriptQuote(dir.file(name)) + "\nprint Text_Pixels 1\n";
    };
    const DriverRun r =
        runDriver(placed(50, 40) + "type Text7 \"Flip\"\nkey Text7 13\n" + dump("p0") +
                  "click SSCommand2\n" + dump("p1") + "click SSCommand2\n" + dump("p2") +
                  "click SSCommand2\n" + "key Text7 13\n" + dump("p3"));
    ASSERT_EQ(r.status, 0) << r.err;
    const Picture p0 = readPpm(dir.file("p0")), p1 = readPpm(dir.file("p1"));
    ASSERT_EQ(p1.w, p0.w);
    ASSERT_EQ(p1.h, p0.h);
    for (int y = 0; y < p0.h; ++y)
        for (int x = 0; x < p0.w; ++x)
            ASSERT_EQ(p1.at(x, y), p0.at(p0.w - 1 - x, y)) << x << "," << y;
    EXPECT_EQ(readPpm(dir.file("p2")).px, p0.px);
    EXPECT_EQ(readPpm(dir.file("p3")).px, p0.px);
    // The list follows the picture: its first entry is the leftmost column's top lit pixel.
    auto firstEntry = [](const Picture& p) {
        const auto [x, y] = *p.lit().begin();
        return "Text_Pixels(1)=X=" + std::to_string(x) + " Y=" + std::to_string(y);
    };
    std::vector<std::string> first;
    for (std::size_t at = 0; (at = r.out.find("Text_Pixels(1)=", at)) != std::string::npos; ++at)
        first.push_back(r.out.substr(at, r.out.find('\n', at) - at));
    EXPECT_EQ(first, (std::vector<std::string>{firstEntry(p0), firstEntry(p1), firstEntry(p0),
                                               firstEntry(p0)}));
}

} // namespace
} // namespace tavrin::test
