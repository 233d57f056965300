#include "tools/text_scan.h"

#include <algorithm>

namespace tavrin {

LitPixels scanLitPixels(const platform::Raster& picture) {
    LitPixels lit;
    for (int x = 0; x < picture.width; ++x)
        for (int y = 0; y < picture.height; ++y)
            if ((picture.at(x, y) & 0xFFFFFFu) != 0) {
                // A preview box is a few hundred pixels across: its offsets fit 16 bits.
                lit.pixels.push_back({static_cast<int16_t>(x), static_cast<int16_t>(y)});
                lit.maxX = std::max(lit.maxX, x);
                lit.maxY = std::max(lit.maxY, y);
            }
    return lit;
}

} // namespace tavrin
