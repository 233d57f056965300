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

int64_t PixelRect::area() const {
    if (empty()) return 0;
    const Wide a = static_cast<Wide>(x1 - x0) * (y1 - y0);
    return a > INT64_MAX ? INT64_MAX : static_cast<int64_t>(a);
}

void PixelRegion::add(const PixelRect& r) {
    if (r.empty()) return;
    PixelRect joined = r;
    // Rectangles the new one holds, or that join it into one without new pixels, go
    // into it; a rectangle that holds it leaves the region as it is.
    for (std::size_t i = 0; i < count_;) {
        const PixelRect& e = rects_[i];
        const PixelRect both = e.unite(joined);
        if (both.area() == e.area()) return; // e holds it
        // Joined without new pixels: the union's area is the two areas less their overlap.
        if (both.area() - joined.area() == e.area() - e.intersect(joined).area()) {
            joined = both;
            rects_[i] = rects_[--count_];
            i = 0; // the larger one may now join a rectangle passed before
            continue;
        }
        ++i;
    }
    if (count_ < kMostRects) {
        rects_[count_++] = joined;
        return;
    }
    std::size_t best = 0;
    int64_t growth = -1;
    for (std::size_t i = 0; i < count_; ++i) {
        const int64_t g = rects_[i].unite(joined).area() - rects_[i].area();
        if (growth < 0 || g < growth) {
            growth = g;
            best = i;
        }
    }
    rects_[best] = rects_[best].unite(joined);
}

void PixelRegion::add(const PixelRegion& o) {
    for (const PixelRect& r : o)
        add(r);
}

bool PixelRegion::contains(int64_t x, int64_t y) const {
    return std::any_of(begin(), end(), [&](const PixelRect& r) { return r.contains(x, y); });
}

PixelRect PixelRegion::bounds() const {
    PixelRect b;
    for (const PixelRect& r : *this)
        b = b.unite(r);
    return b;
}

int64_t PixelRegion::area() const {
    int64_t a = 0;
    for (const PixelRect& r : *this)
        a += r.area();
    return a;
}

PixelRegion PixelRegion::intersect(const PixelRect& clip) const {
    PixelRegion out;
    for (const PixelRect& r : *this)
        out.add(r.intersect(clip));
    return out;
}

PixelRegion LineSegment::pieces(const PixelRect& clip) const {
    const int64_t dx = static_cast<int64_t>(x2) - x1, dy = static_cast<int64_t>(y2) - y1;
    const int64_t adx = dx < 0 ? -dx : dx, ady = dy < 0 ? -dy : dy;
    const bool alongX = adx >= ady;
    const int64_t n = alongX ? adx : ady, minor = alongX ? ady : adx;
    // Straight and short lines are their own box; a slanting one is cut in four along
    // its longer axis, each piece taking the minor steps of its own quarter.
    constexpr int64_t kPieces = 4;
    if (minor == 0 || n < 4 * kPieces) {
        return PixelRect{std::min(x1, x2), std::min(y1, y2), int64_t{std::max(x1, x2)} + 1,
                         int64_t{std::max(y1, y2)} + 1}
            .intersect(clip);
    }
    PixelRegion out;
    const int64_t a1 = alongX ? x1 : y1, b1 = alongX ? y1 : x1;
    const int64_t da = alongX ? dx : dy, db = alongX ? dy : dx;
    const int64_t sa = da < 0 ? -1 : 1;
    for (int64_t k = 0; k < kPieces; ++k) {
        const int64_t i0 = n * k / kPieces, i1 = n * (k + 1) / kPieces;
        const int64_t aFrom = a1 + sa * i0, aTo = a1 + sa * i1;
        // The minor coordinate only moves one way along the line.
        const int64_t bFrom = minorAt(b1, db, i0, n), bTo = minorAt(b1, db, i1, n);
        const int64_t aLo = std::min(aFrom, aTo), aHi = std::max(aFrom, aTo);
        const int64_t bLo = std::min(bFrom, bTo), bHi = std::max(bFrom, bTo);
        out.add(
            (alongX ? PixelRect{aLo, bLo, aHi + 1, bHi + 1} : PixelRect{bLo, aLo, bHi + 1, aHi + 1})
                .intersect(clip));
    }
    return out;
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
    if (destExtent == srcExtent && srcExtent > 0) return srcStart + d; // not stretched
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
