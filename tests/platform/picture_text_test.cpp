// Text on a picture box through the headless host's bitmap font: which pixels a line
// lights, in any window onto it, and what Print does to the box and its position.
#include "platform/form.h"
#include "platform/picture_box.h"
#include "platform/scripted_host.h"
#include "platform/text_mask.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

using platform::FontSpec;
using platform::PixelRect;
using platform::TextMask;

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
