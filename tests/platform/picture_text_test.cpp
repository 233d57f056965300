// Print on a picture box through the headless host's bitmap font: what it does to the box
// and to its position.
#include "platform/form.h"
#include "platform/picture_box.h"
#include "platform/scripted_host.h"
#include "platform/text_mask.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using platform::TextMask;

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
