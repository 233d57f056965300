// The canvas widget shows exactly what the box answers with Point.
#include "platform/form.h"
#include "platform/picture_box.h"
#include "platform/qt/picture_widget.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using platform::PictureBox;

// A w x h picture of distinct colours.
platform::PictureHandle colours(int w, int h) {
    auto r = std::make_shared<platform::Raster>(w, h, 0u);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) r->at(x, y) = static_cast<uint32_t>(x * 0x010305 + y * 0x070B01) & 0xFFFFFFu;
    return r;
}

QRgb asShown(int32_t packed) {
    const auto c = static_cast<uint32_t>(packed);
    return qRgb(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF), static_cast<int>((c >> 16) & 0xFF));
}

// Larger than one band of the paint, so that the bands meet somewhere inside.
TEST(PictureWidget, ShowsEveryPixelAsPointGivesIt) {
    platform::Form form("frmTest");
    PictureBox box(&form, "Picture7", {platform::ScaleUnit::Pixels, 0, false, 0x808080});
    box.Width = 2100 * 15;
    box.Height = 2050 * 15;
    box.PaintPicture(colours(300, 205), 0, 0, 2100, 2050);
    box.Line(5, 2000, 2090, 40, 0x00FF00, platform::kLineKind);
    platform::qt::PictureWidget widget(box, nullptr);
    widget.resize(2100, 2050);
    const QImage shown = widget.grab().toImage();
    ASSERT_EQ(shown.size(), QSize(2100, 2050));
    for (int y = 0; y < 2050; ++y)
        for (int x = 0; x < 2100; ++x) ASSERT_EQ(shown.pixel(x, y) | 0xFF000000u, asShown(box.Point(x, y))) << x << "," << y;
}

} // namespace
