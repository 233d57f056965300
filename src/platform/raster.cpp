#include "platform/raster.h"

#include "platform/vb_memory.h"

#include <algorithm>

namespace platform {

namespace {

// floor(num / den) for den > 0.
template <class T> T floorDiv(T num, T den) {
    T q = num / den;
    if (num % den != 0 && num < 0) --q;
    return q;
}

} // namespace

Raster::Raster(int w, int h, uint32_t fill) : width(w), height(h) {
    auto count = static_cast<std::size_t>(w) * static_cast<std::size_t>(h);
    memory = vb::Reservation(count, sizeof(uint32_t));
    px.assign(count, fill);
}

PixelRect PixelRect::intersect(const PixelRect& o) const {
    PixelRect r{std::max(x0, o.x0), std::max(y0, o.y0), std::min(x1, o.x1), std::min(y1, o.y1)};
    if (r.empty()) return PixelRect{};
    return r;
}

bool LineSegment::contains(int64_t x, int64_t y) const {
    int64_t dx = static_cast<int64_t>(x2) - x1, dy = static_cast<int64_t>(y2) - y1;
    int64_t adx = dx < 0 ? -dx : dx, ady = dy < 0 ? -dy : dy;
    if (adx >= ady) {
        int64_t i = dx < 0 ? x1 - x : x - x1;
        return i >= 0 && i <= adx && minorAt(y1, dy, i, adx) == y;
    }
    int64_t i = dy < 0 ? y1 - y : y - y1;
    return i >= 0 && i <= ady && minorAt(x1, dx, i, ady) == x;
}

int64_t stretchSource(int64_t d, int64_t destExtent, int64_t srcStart, int64_t srcExtent) {
    int64_t n = destExtent < 0 ? -destExtent : destExtent;
    if (n == 0) return srcStart;
    if (destExtent < 0) d = n - 1 - d;
    // In 64 bits where the product fits: a render asks this for every row and column.
    constexpr int64_t kSmall = int64_t{1} << 30;
    if (d >= 0 && d < kSmall && n < kSmall && srcExtent > -kSmall && srcExtent < kSmall)
        return srcStart + floorDiv<int64_t>((2 * d + 1) * srcExtent, 2 * n);
    Wide num = (static_cast<Wide>(2) * d + 1) * srcExtent;
    return srcStart + static_cast<int64_t>(floorDiv<Wide>(num, static_cast<Wide>(2) * n));
}

} // namespace platform
