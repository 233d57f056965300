#pragma once
// The arithmetic of the line tool and of the gradient fill, apart from the commands.
#include "platform/raster.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tavrin {

using vb::cornerPixel;

// The points of the line tool from (x1, y1) to (x2, y2), whole pixels, in the order it
// sets them. It walks the longer axis one pixel at a time (across when dx > dy, else
// down), from the left or top end to the other, both included; the other coordinate
// starts at that end and takes its step before each point, so the line runs one step
// past the far end. plot(x, y) gets the coordinates with their fractions. Only the steps
// whose walked coordinate lies in `clip` are visited: the steps before it are added one
// by one when they are few, all at once when many.
template <class Plot>
void walkLine(double x1, double y1, double x2, double y2, const platform::PixelRect& clip,
              Plot&& plot) {
    const double dx = std::fabs(x2 - x1), dy = std::fabs(y2 - y1);
    const bool across = dx > dy;
    // The end the walk starts from, and the other.
    const bool firstStarts = across ? x1 <= x2 : y1 <= y2;
    const double fromA = across ? (firstStarts ? x1 : x2) : (firstStarts ? y1 : y2);
    const double toA = across ? (firstStarts ? x2 : x1) : (firstStarts ? y2 : y1);
    double b = across ? (firstStarts ? y1 : y2) : (firstStarts ? x1 : x2);
    const double toB = across ? (firstStarts ? y2 : y1) : (firstStarts ? x2 : x1);
    const double n = across ? dx : dy;
    const double step = n == 0 ? 0 : (toB - b) / n;

    const double lo = static_cast<double>(across ? clip.x0 : clip.y0);
    const double hi = static_cast<double>(across ? clip.x1 : clip.y1) - 1;
    const double first = std::max(fromA, lo), last = std::min(toA, hi);
    if (first > last) return;
    const auto skipped = static_cast<int64_t>(std::ceil(first - fromA));
    constexpr int64_t kAddedOneByOne = 65536;
    if (skipped <= kAddedOneByOne) {
        for (int64_t i = 0; i < skipped; ++i)
            b += step;
    } else {
        b += step * static_cast<double>(skipped);
    }
    const auto count = static_cast<int64_t>(last - first);
    for (int64_t k = 0; k <= count; ++k) {
        const double a = first + static_cast<double>(k);
        b += step;
        if (across)
            plot(a, b);
        else
            plot(b, a);
    }
}

// The width in columns of a gradient's stripes over columns left..right: about 16
// stripes, at least one column each.
int64_t gradientStripeWidth(double left, double right);

// The colour of the next stripe before it is matched to the palette: each channel of
// color moved by step, and a channel that leaves 0..255 goes back to that channel of
// start, so each channel runs a saw-tooth of its own.
int32_t nextStripeColor(int32_t color, int32_t start, int step);

} // namespace tavrin
