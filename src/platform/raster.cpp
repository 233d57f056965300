#include "platform/raster.h"

#include "platform/vb_memory.h"

#include <algorithm>
#include <atomic>

namespace platform {

namespace {

// floor(num / den) for den > 0.
template <class T> T floorDiv(T num, T den) {
    T q = num / den;
    if (num % den != 0 && num < 0) --q;
    return q;
}

// The first destination pixel of n that takes its colour from source pixel s or a later
// one, when srcExtent > 0 pixels are stretched over n, not mirrored: the inverse of
// stretchSource.
int64_t firstDest(int64_t s, int64_t n, int64_t srcExtent) {
    // floor((2d + 1) S / 2n) >= s  <=>  d >= (2sn - S) / 2S
    Wide num = static_cast<Wide>(2) * s * n - srcExtent;
    Wide d = -floorDiv<Wide>(-num, static_cast<Wide>(2) * srcExtent);
    return static_cast<int64_t>(std::clamp<Wide>(d, 0, n));
}

// The span of the destination [at, at + |extent|) whose pixels come from [s0, s1).
void destSpan(int64_t s0, int64_t s1, int64_t srcExtent, int64_t at, int64_t extent, int64_t& d0,
              int64_t& d1) {
    const int64_t n = extent < 0 ? -extent : extent;
    int64_t a = firstDest(s0, n, srcExtent), b = firstDest(s1, n, srcExtent);
    if (extent < 0) { // mirrored: destination d shows source pixel of n - 1 - d
        a = n - a;
        b = n - b;
        std::swap(a, b);
    }
    const int64_t left = extent < 0 ? at + extent : at;
    d0 = left + a;
    d1 = left + b;
}

} // namespace

uint64_t Lineage::fresh() {
    static std::atomic<uint64_t> last{0};
    return ++last;
}

Lineage& Lineage::operator=(const Lineage& from) {
    if (this != &from) {
        serial = fresh();
        parent = from.serial;
        written = PixelRect{};
    }
    return *this;
}

Raster::Raster(int w, int h, uint32_t fill) : width(w), height(h) {
    auto count = static_cast<std::size_t>(w) * static_cast<std::size_t>(h);
    memory = vb::Reservation(count, sizeof(uint32_t));
    px.resize(count); // calloc's zeros
    if (fill != 0) std::fill(px.begin(), px.end(), fill);
}

PixelRect PixelRect::intersect(const PixelRect& o) const {
    PixelRect r{std::max(x0, o.x0), std::max(y0, o.y0), std::min(x1, o.x1), std::min(y1, o.y1)};
    if (r.empty()) return PixelRect{};
    return r;
}

PixelRect PixelRect::unite(const PixelRect& o) const {
    if (empty()) return o;
    if (o.empty()) return *this;
    return PixelRect{std::min(x0, o.x0), std::min(y0, o.y0), std::max(x1, o.x1),
                     std::max(y1, o.y1)};
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

PixelRect stretchedArea(const PixelRect& srcRect, int64_t srcW, int64_t srcH, int64_t x, int64_t y,
                        int64_t w, int64_t h) {
    const PixelRect s = srcRect.intersect(PixelRect{0, 0, srcW, srcH});
    if (s.empty() || w == 0 || h == 0) return PixelRect{};
    PixelRect out;
    destSpan(s.x0, s.x1, srcW, x, w, out.x0, out.x1);
    destSpan(s.y0, s.y1, srcH, y, h, out.y0, out.y1);
    return out.empty() ? PixelRect{} : out;
}

} // namespace platform
