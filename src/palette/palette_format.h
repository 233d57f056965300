#pragma once
// Raw palettes (RGB byte triples, as in Quake2.PAL, ACT tables and a PCX skin's tail)
// decoded from bytes: the colours the reader takes, in order.
#include "platform/byte_window.h"

#include <cstdint>
#include <vector>

namespace tavrin {

struct Rgb {
    uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const Rgb&) const = default;
};

// Records 0 to 257 and the one the reader draws before it stops.
inline constexpr int64_t kRawPaletteMostColors = 259;

// The colours from firstPosition on, one for each pass of the reader's loop. A pass
// reads red, green and blue at the next three positions; a byte past the end of the file
// keeps the value before it, and the loop ends after the pass whose blue byte ran past
// the end: a file of 3n bytes gives n + 1 colours, the last a repeat. A window over
// positions firstPosition to firstPosition + 3 * kRawPaletteMostColors - 1 is enough.
// Raises "Bad record number" when firstPosition is before the file's first byte.
std::vector<Rgb> readRawPalette(const vb::ByteWindow& file, int64_t firstPosition);

} // namespace tavrin
