#pragma once
// Bitmap files (BMP) decoded from their bytes: the picture loader of the headless host,
// which has no system's image readers to lean on. It reads what paint programs write:
// the OS/2 and Windows headers, 1, 4 and 8 bits through a colour table, 16 and 32 bits
// with or without colour masks, 24 bits, run-length coded 4 and 8 bits, rows from the
// bottom up or from the top down.
#include "platform/raster.h"

#include <cstdint>
#include <span>

namespace platform {

struct BmpHeader {
    int64_t width = 0, height = 0; // height as stored: negative for rows from the top down
    int bitsPerPixel = 0;
    uint32_t compression = 0; // 0 none, 1 runs of bytes, 2 runs of nibbles, 3 masks
    int64_t pixelsAt = 0;     // offset of the first row in the file
    int64_t tableAt = 0;      // offset of the colour table
    int tableEntryBytes = 4;  // 3 in the OS/2 header's table
    int64_t tableColours = 0;
    uint32_t masks[3] = {0, 0, 0}; // red, green, blue of 16 and 32 bits
};

// The header of a bitmap that this reader decodes; "Invalid picture" for any other file.
BmpHeader readBmpHeader(std::span<const uint8_t> file);

// The picture, 0x00BBGGRR. "Invalid picture" for a file that isn't a bitmap this reader
// decodes or whose rows don't fit in it; "Out of memory" for a picture too big to hold.
Raster decodeBmp(std::span<const uint8_t> file);

} // namespace platform
