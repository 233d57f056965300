#pragma once
// Pixels, lines and stretching: the pixel maths under every picture box. Colours are
// packed 0x00BBGGRR. Pictures are shared, immutable rasters: taking a box's Image
// costs nothing until the box is drawn on again (copy on write in PictureBox).
#include "platform/vb_array.h"
#include "platform/vb_memory.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace platform {

// Half-open pixel rectangle.
struct PixelRect {
    int64_t x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    bool empty() const { return x1 <= x0 || y1 <= y0; }
    bool contains(int64_t x, int64_t y) const { return x >= x0 && x < x1 && y >= y0 && y < y1; }
    PixelRect intersect(const PixelRect& o) const;
    PixelRect unite(const PixelRect& o) const; // the smallest rectangle holding both
    int64_t area() const; // saturated: a rectangle of the whole coordinate range fits
};

// A few rectangles that together hold every pixel of a change: a drawn outline is its four
// sides, not the box they enclose, so that whoever repaints after it repaints the sides.
// Rectangles that join without taking in new pixels are joined; past kMostRects the new
// one is joined to the rectangle that grows least by it. No allocation: a box adds to
// its regions at every pixel it sets.
class PixelRegion {
public:
    static constexpr std::size_t kMostRects = 16;

    PixelRegion() = default;
    PixelRegion(const PixelRect& r) { add(r); } // NOLINT(google-explicit-constructor)

    void add(const PixelRect& r);
    void add(const PixelRegion& o);
    bool empty() const { return count_ == 0; }
    std::size_t size() const { return count_; }
    const PixelRect* begin() const { return rects_.data(); }
    const PixelRect* end() const { return rects_.data() + count_; }
    bool contains(int64_t x, int64_t y) const;
    PixelRect bounds() const;
    // The sum of the rectangles' areas: at least the pixels held.
    int64_t area() const;
    PixelRegion intersect(const PixelRect& clip) const;

private:
    std::array<PixelRect, kMostRects> rects_{};
    std::size_t count_ = 0;
};

// Where a raster's pixels came from: a copy descends from its source with nothing
// written yet, and the box that writes it widens `written`. A view that shows the
// parent then repaints only what was written, not the whole picture.
struct Lineage {
    uint64_t serial = fresh();
    uint64_t parent = 0; // 0: descends from nothing known
    PixelRegion written;
    Lineage() = default;
    Lineage(const Lineage& from) : parent(from.serial) {}
    Lineage& operator=(const Lineage& from);
    static uint64_t fresh();
};

struct Raster {
    Raster() = default;
    Raster(int w, int h, uint32_t fill);
    int width = 0;
    int height = 0;
    vb::Reservation memory; // before px, so a copy is counted before it is made
    // Row by row, width * height. From calloc: a black raster costs nothing until it is
    // drawn on, so a picture sized before it is filled writes its pages once.
    vb::ZeroedVector<uint32_t> px;
    Lineage lineage;

    uint32_t at(int x, int y) const { return px[static_cast<std::size_t>(y) * width + x]; }
    uint32_t& at(int x, int y) { return px[static_cast<std::size_t>(y) * width + x]; }
};

using PictureHandle = std::shared_ptr<const Raster>;

// A line of pixels from (x1, y1) to (x2, y2), both ends included, one pixel per step
// along the longer axis. contains() answers in constant time with the same rule that
// forEach() draws by, so a view that keeps lines instead of pixels answers Point exactly.
struct LineSegment {
    int32_t x1 = 0, y1 = 0, x2 = 0, y2 = 0;

    bool contains(int64_t x, int64_t y) const;
    // Where the line's pixels inside clip lie: its box, or for a long slanting line the
    // boxes of a few pieces of it, which hold far fewer pixels than the whole box.
    PixelRegion pieces(const PixelRect& clip) const;
    // Calls fn(x, y) for every pixel of the line inside clip, each once.
    template <class F> void forEach(const PixelRect& clip, F&& fn) const;

private:
    // Minor coordinate at step i of n along the major axis.
    static int64_t minorAt(int64_t start, int64_t delta, int64_t i, int64_t n);
};

// Where a stretched copy takes its pixels: destination pixel d (0-based within a
// destination extent of |destExtent| pixels) maps to source pixel
// srcStart + floor((2d + 1) * srcExtent / (2 |destExtent|)), mirrored when
// destExtent is negative. Zooming by a whole factor k gives floor(d / k).
int64_t stretchSource(int64_t d, int64_t destExtent, int64_t srcStart, int64_t srcExtent);

// The destination pixels of a picture of srcW x srcH stretched over the destination
// rectangle (x, y, w, h; negative w or h mirrors) that take their colour from srcRect.
PixelRect stretchedArea(const PixelRect& srcRect, int64_t srcW, int64_t srcH, int64_t x, int64_t y,
                        int64_t w, int64_t h);

// ---- inline template ----

__extension__ typedef __int128 Wide; // products of two 32-bit coordinates and more

inline int64_t LineSegment::minorAt(int64_t start, int64_t delta, int64_t i, int64_t n) {
    if (n == 0 || delta == 0) return start;
    // In 64 bits where the products fit: a long band asks this for every pixel.
    constexpr int64_t kSmall = int64_t{1} << 30;
    if (i >= 0 && i < kSmall && n < kSmall && delta > -kSmall && delta < kSmall) {
        const int64_t num = 2 * i * delta + n, den = 2 * n;
        return start + (num >= 0 ? num / den : -((-num + den - 1) / den));
    }
    // Round i * delta / n to nearest, halves upward; 128-bit since both factors may be
    // 32-bit coordinates.
    Wide num = static_cast<Wide>(2) * i * delta + n;
    Wide den = static_cast<Wide>(2) * n;
    Wide q = num / den;
    if ((num % den != 0) && ((num < 0) != (den < 0))) --q; // floor
    return start + static_cast<int64_t>(q);
}

template <class F> void LineSegment::forEach(const PixelRect& clip, F&& fn) const {
    const int64_t dx = static_cast<int64_t>(x2) - x1, dy = static_cast<int64_t>(y2) - y1;
    // The walk goes along the longer axis, a; b is the other one.
    const bool alongX = (dx < 0 ? -dx : dx) >= (dy < 0 ? -dy : dy);
    const int64_t a1 = alongX ? x1 : y1, b1 = alongX ? y1 : x1;
    const int64_t da = alongX ? dx : dy, db = alongX ? dy : dx;
    const int64_t aLo = alongX ? clip.x0 : clip.y0, aHi = alongX ? clip.x1 : clip.y1;
    const int64_t bLo = alongX ? clip.y0 : clip.x0, bHi = alongX ? clip.y1 : clip.x1;
    const int64_t n = da < 0 ? -da : da, sa = da < 0 ? -1 : 1;
    // Steps i whose a lies in [aLo, aHi).
    int64_t lo = sa > 0 ? aLo - a1 : a1 - (aHi - 1);
    int64_t hi = sa > 0 ? aHi - 1 - a1 : a1 - aLo;
    if (lo < 0) lo = 0;
    if (hi > n) hi = n;
    for (int64_t i = lo; i <= hi; ++i) {
        const int64_t a = a1 + sa * i, b = minorAt(b1, db, i, n);
        if (b < bLo || b >= bHi) continue;
        if (alongX)
            fn(a, b);
        else
            fn(b, a);
    }
}

} // namespace platform
