// The pixels of any part of a picture box: from its raster, or for the canvas from what
// was painted on it. A zoomed canvas is mostly repeated pixels and repeated rows, so the
// source columns of a picture's destination row are worked out once, as runs, and each
// destination row that shows the same source row as the one above it is a plain copy.
#include "platform/picture_box.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

uint32_t toXrgb(uint32_t c) {
    return 0xFF000000u | (c & 0x00FF00u) | ((c >> 16) & 0xFFu) | ((c & 0xFFu) << 16);
}

// A band's side is a pixel or two wide: copied in place, not by a library call a row.
void copyPixels(const uint32_t* from, int64_t n, uint32_t* to) {
    if (n > 8) {
        std::copy_n(from, n, to);
        return;
    }
    for (int64_t i = 0; i < n; ++i)
        to[i] = from[i];
}

// Where a destination row takes its pixels: `count` pixels in a row from source column
// `col`. A zoomed picture repeats each source pixel, so a row is a few fills.
struct Run {
    int64_t col, count;
};

template <bool Xrgb>
void fillRow(const uint32_t* src, const std::vector<Run>& runs, uint32_t* out) {
    for (const Run& r : runs) {
        const uint32_t c = src[r.col];
        std::fill_n(out, r.count, Xrgb ? toXrgb(c) : c);
        out += r.count;
    }
}

} // namespace

void PictureBox::render(const PixelRect& region, uint32_t* dst, std::ptrdiff_t stride,
                        PixelOrder order) const {
    const PixelRect area = region.intersect(inner());
    if (area.empty()) return;
    const bool xrgb = order == PixelOrder::Xrgb;
    const auto shown = [xrgb](uint32_t c) { return xrgb ? toXrgb(c) : c; };
    const auto out = [&](int64_t x, int64_t y) {
        return dst + (y - region.y0) * stride + (x - region.x0);
    };
    const int64_t width = area.x1 - area.x0;
    if (design_.autoRedraw) {
        const Raster& image = raster();
        for (int64_t y = area.y0; y < area.y1; ++y) {
            const uint32_t* row = &image.px[static_cast<std::size_t>(y) * innerW_ + area.x0];
            if (xrgb)
                std::transform(row, row + width, out(area.x0, y), toXrgb);
            else
                copyPixels(row, width, out(area.x0, y));
        }
        return;
    }

    // The background shows only where the first picture painted leaves room.
    const auto* first = ops_.empty() ? nullptr : std::get_if<PaintOp>(&ops_.front());
    const PixelRect covered = first ? first->bounds().intersect(area) : PixelRect{};
    if (covered.x0 != area.x0 || covered.y0 != area.y0 || covered.x1 != area.x1 ||
        covered.y1 != area.y1)
        for (int64_t y = area.y0; y < area.y1; ++y)
            for (int64_t x = area.x0; x < area.x1; ++x)
                *out(x, y) = shown(background(x, y));

    std::vector<Run> runs;
    for (const Op& op : ops_) {
        if (const auto* line = std::get_if<LineOp>(&op)) {
            const uint32_t c = shown(line->color);
            line->seg.forEach(area, [&](int64_t x, int64_t y) { *out(x, y) = c; });
            continue;
        }
        if (const auto* fill = std::get_if<FillOp>(&op)) {
            const PixelRect f = fill->rect.intersect(area);
            for (int64_t y = f.y0; y < f.y1; ++y)
                std::fill_n(out(f.x0, y), f.x1 - f.x0, shown(fill->color));
            continue;
        }
        const auto& p = std::get<PaintOp>(op);
        const PixelRect b = p.bounds();
        const PixelRect f = b.intersect(area);
        if (f.empty()) continue;
        const int64_t srcW = p.src->width, srcH = p.src->height;
        if (p.w == srcW && p.h == srcH) { // not stretched: each row is a plain copy
            for (int64_t y = f.y0; y < f.y1; ++y) {
                const uint32_t* row =
                    &p.src->px[static_cast<std::size_t>((y - b.y0) * srcW + (f.x0 - b.x0))];
                if (xrgb)
                    std::transform(row, row + (f.x1 - f.x0), out(f.x0, y), toXrgb);
                else
                    copyPixels(row, f.x1 - f.x0, out(f.x0, y));
            }
            continue;
        }
        runs.clear();
        bool inside = true;
        for (int64_t x = f.x0; x < f.x1 && inside; ++x) {
            const int64_t col = stretchSource(x - b.x0, p.w, 0, srcW);
            inside = col >= 0 && col < srcW;
            if (!runs.empty() && runs.back().col == col)
                ++runs.back().count;
            else
                runs.push_back(Run{col, 1});
        }
        if (!inside) continue;
        const auto n = static_cast<std::size_t>(f.x1 - f.x0);
        int64_t builtFrom = -1;
        const uint32_t* built = nullptr;
        for (int64_t y = f.y0; y < f.y1; ++y) {
            const int64_t sy = stretchSource(y - b.y0, p.h, 0, srcH);
            if (sy < 0 || sy >= srcH) continue;
            uint32_t* o = out(f.x0, y);
            if (sy == builtFrom) {
                copyPixels(built, static_cast<int64_t>(n), o);
            } else {
                const uint32_t* row = &p.src->px[static_cast<std::size_t>(sy * srcW)];
                if (xrgb)
                    fillRow<true>(row, runs, o);
                else
                    fillRow<false>(row, runs, o);
                builtFrom = sy;
            }
            built = o;
        }
    }
}

} // namespace platform
