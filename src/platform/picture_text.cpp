// Text on a picture box: the host's font gives the lit pixels of the part of the line
// that falls inside the box, and they are painted like any other pixels.
#include "platform/host.h"
#include "platform/picture_box.h"

namespace platform {

void PictureBox::Print(Host& host, const std::string& text) {
    const int64_t x0 = toPixelX(CurrentX), y0 = toPixelY(CurrentY);
    const FontSpec font{Font.Name, Font.Size, Font.Bold, Font.Italic, Font.Underline};
    // Only the window the box can show is rendered, however long the line or far off the
    // position: what is asked of the host stays within the box's size.
    const PixelRect shown = inner();
    const PixelRect window{shown.x0 - x0, shown.y0 - y0, shown.x1 - x0, shown.y1 - y0};
    const TextMask mask = host.RenderText(font, text, window);
    const auto color = static_cast<uint32_t>(ForeColor.get()) & 0xFFFFFFu;
    PixelRect touched;
    for (int64_t y = mask.window.y0; y < mask.window.y1; ++y)
        for (int64_t x = mask.window.x0; x < mask.window.x1; ++x)
            if (mask.at(x, y))
                touched = touched.unite(PixelRect{x + x0, y + y0, x + x0 + 1, y + y0 + 1});
    touched = touched.intersect(shown);
    if (!touched.empty()) {
        if (design_.autoRedraw) {
            Raster& r = writable(touched);
            for (int64_t y = touched.y0; y < touched.y1; ++y)
                for (int64_t x = touched.x0; x < touched.x1; ++x)
                    if (mask.at(x - x0, y - y0)) plot(r, x, y, color);
        } else {
            for (int64_t y = touched.y0; y < touched.y1; ++y)
                for (int64_t x = touched.x0; x < touched.x1; ++x)
                    if (mask.at(x - x0, y - y0))
                        PSet(scaleX(static_cast<double>(x)), scaleY(static_cast<double>(y)), color);
        }
    }
    CurrentX = 0.0;
    CurrentY = CurrentY + scaleY(static_cast<double>(mask.lineHeight));
}

} // namespace platform
