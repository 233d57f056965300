// Text on a picture box through the headless host's bitmap font: which pixels a line
// lights, in any window onto it, and what Print does to the box and its position.
#include "platform/form.h"
#include "platform/picture_box.h"
#include "platform/scripted_host.h"
#include "platform/text_mask.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using platform::FontSpec;
using platform::PixelRect;
using platform::TextMask;

// The mask as rows of '#' and '.', for comparing shapes at a glance.
std::string picture(const TextMask& m) {
    std::string s;
    for (int64_t y = m.window.y0; y < m.window.y1; ++y) {
        for (int64_t x = m.window.x0; x < m.window.x1; ++x)
            s += m.at(x, y) ? '#' : '.';
        s += '\n';
    }
    return s;
}

int64_t litCount(const TextMask& m) {
    int64_t n = 0;
    for (uint8_t v : m.lit)
        n += v;
    return n;
}

TEST(BitmapFont, ShapesOfTheStyles) {
    const PixelRect cell{0, 0, 8, 9};
    struct Case {
        const char* name;
        FontSpec font;
        std::string shape; // "L": a stem and a foot
    };
    const Case cases[] = {
        {"plain",
         {"", 8, false, false, false},
         "#.......\n#.......\n#.......\n#.......\n#.......\n#.......\n#####...\n........\n"
         "........\n"},
        {"bold",
         {"", 8, true, false, false},
         "##......\n##......\n##......\n##......\n##......\n##......\n######..\n........\n"
         "........\n"},
        {"italic",
         {"", 8, false, true, false},
         "..#.....\n.#......\n.#......\n.#......\n#.......\n#.......\n#####...\n........\n"
         "........\n"},
        {"underline",
         {"", 8, false, false, true},
         "#.......\n#.......\n#.......\n#.......\n#.......\n#.......\n#####...\n........\n"
         "######..\n"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(picture(platform::bitmapFontText(c.font, "L", cell)), c.shape) << c.name;
}

TEST(BitmapFont, SizeScalesTheCellAndEveryCharacterTakesOne) {
    struct Case {
        double size;
        std::string text;
        int64_t lineHeight, width, lit;
    };
    // "I" lights 3 + 5 + 3 pixels at size 8, and the square of the scale times as many.
    const int64_t iLit = 3 + 5 + 3;
    const Case cases[] = {
        {8, "I", 9, 6, iLit},
        {12, "I", 18, 12, 4 * iLit},
        {24, "II", 36, 48, 2 * 16 * iLit},
        {-3, "I", 9, 6, iLit},
        {8, "\xC3\xA9", 9, 6, 5 + 5 + 2 * 5}, // one character, not one in the font: a box
    };
    for (const Case& c : cases) {
        const TextMask whole =
            platform::bitmapFontText({"", c.size, false, false, false}, c.text, {0, 0, 200, 60});
        EXPECT_EQ(whole.lineHeight, c.lineHeight) << c.size;
        EXPECT_EQ(litCount(whole), c.lit) << c.size;
        // Nothing lit from the second cell's column on, past the text.
        const TextMask past = platform::bitmapFontText({"", c.size, false, false, false}, c.text,
                                                       {c.width, 0, 200, 60});
        EXPECT_EQ(litCount(past), 0) << c.size;
    }
}

// A window onto the line is that part of the whole line, wherever it lies.
TEST(BitmapFont, AnyWindowIsTheSamePartOfTheWholeLine) {
    const FontSpec fonts[] = {
        {"", 8, false, false, false}, {"", 12, true, true, true}, {"", 20, false, true, false}};
    const PixelRect windows[] = {{3, 2, 17, 11}, {-5, -4, 6, 5}, {40, 0, 90, 30}, {0, 0, 0, 9}};
    for (const FontSpec& f : fonts) {
        const TextMask whole = platform::bitmapFontText(f, "Ag{~", {-10, -10, 120, 60});
        for (const PixelRect& w : windows) {
            const TextMask part = platform::bitmapFontText(f, "Ag{~", w);
            ASSERT_EQ(part.lit.size(), static_cast<std::size_t>(
                                           std::max<int64_t>(0, (w.x1 - w.x0) * (w.y1 - w.y0))));
            for (int64_t y = w.y0; y < w.y1; ++y)
                for (int64_t x = w.x0; x < w.x1; ++x)
                    ASSERT_EQ(part.at(x, y), whole.at(x, y)) << f.size << " at " << x << "," << y;
        }
    }
}

struct PrintBox : ::testing::Test {
    platform::ScriptedHost host;
    platform::Form form{"frmTest"};
    platform::PictureBox box{&form, "Box", {platform::ScaleUnit::Pixels, 4, true, 0x102030}};
    void SetUp() override {
        box.Width = (20 + 4) * 15;
        box.Height = (12 + 4) * 15;
    }
};

// Only the text's pixels change, in ForeColor, from CurrentX, CurrentY; the box clips
// it; the position goes to the start of the next line.
TEST_F(PrintBox, LightsTheTextsPixelsAtThePositionAndMovesToTheNextLine) {
    box.ForeColor = 0x0000FF;
    box.CurrentX = 1;
    box.CurrentY = 1;
    box.Print(host, "HHHH");
    const TextMask h = platform::bitmapFontText({}, "HHHH", {-1, -1, 19, 11});
    for (int y = 0; y < 12; ++y)
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(box.Point(x, y), h.at(x - 1, y - 1) ? 0x0000FF : 0x102030) << x << "," << y;
    EXPECT_EQ(box.CurrentX, 0);
    EXPECT_EQ(box.CurrentY, 10);

    // Far outside the box nothing is asked of the font beyond the box, nothing changes.
    const auto before = box.Image();
    box.CurrentX = -1e9;
    box.Print(host, std::string(100000, 'W'));
    EXPECT_EQ(box.Image()->px, before->px);
}

} // namespace
