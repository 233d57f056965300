#pragma once
// The text tool's scan of its preview: which pixels the printed text lit.
#include "editor/records.h"
#include "platform/raster.h"

#include <vector>

namespace tavrin {

struct LitPixels {
    std::vector<TextPixel> pixels; // column by column, and within a column row by row
    int maxX = 0, maxY = 0;        // the largest column and row lit; 0 when none is
};

// Every pixel of the picture that isn't pure black, in the order above.
LitPixels scanLitPixels(const platform::Raster& picture);

} // namespace tavrin
