#pragma once
// Text as pixels: a font as a picture box holds it, and which pixels of a window onto a
// line of text the font lights. The host renders; the picture box paints the lit pixels.
#include "platform/raster.h"

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

struct FontSpec {
    std::string name; // empty: the platform's default face
    double size = 8;  // points, at 96 pixels to the inch
    bool bold = false;
    bool italic = false;
    bool underline = false;
};

// One window of a line of text. Coordinates count from the top left corner of the
// line's first character cell, so the caller asks only for the part its box can show.
struct TextMask {
    PixelRect window;         // the part rendered
    int64_t lineHeight = 0;   // the height of a line in this font, pixels
    std::vector<uint8_t> lit; // window's pixels row by row: 1 where the text is
    bool at(int64_t x, int64_t y) const {
        if (!window.contains(x, y)) return false;
        const int64_t w = window.x1 - window.x0;
        return lit[static_cast<std::size_t>((y - window.y0) * w + (x - window.x0))] != 0;
    }
};

// A mask of the window's size, nothing lit.
TextMask blankMask(const PixelRect& window, int64_t lineHeight);

// The headless machine's font: a fixed 5 x 7 bitmap in a 6 x 9 cell, the same on every
// machine, so that tests of text are exact. The face's name is not looked at; the size
// scales the cell by whole pixels (8 points: 1, 12: 2, 24: 4); bold lights each pixel's
// right neighbour too (7-pixel cells), italic slants the upper rows by up to two pixels,
// underline fills the cell's last row. Characters it lacks show as a box.
TextMask bitmapFontText(const FontSpec& font, const std::string& text, const PixelRect& window);

} // namespace platform
