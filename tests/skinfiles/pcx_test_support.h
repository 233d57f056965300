#pragma once
// PCX files for the reader and writer tests: an encoder of our own, and the reader's
// rules written out byte at a time as the oracle for files made elsewhere.
#include "support/test_support.h"

#include <optional>

namespace tavrin::test {

// A version 5, 8-bit header for a width x height picture, bytesPerLine per row.
Bytes pcxHeader(int width, int height, int bytesPerLine);

// Header, rows of `indices` in the usual runs, the 0x0C marker and the palette.
Bytes encodePcx(int width, int height, const std::vector<uint8_t>& indices, const Bytes& palette);

// What the reader makes of a file, worked out one byte at a time from its rules. A value
// in `unrecorded` has no record of its own in the palette table.
struct ExpectedLoad {
    int64_t width = 0, ymax = 0;
    std::vector<int16_t> grid; // empty when the grid was never made
    bool completed = false;    // the decoding reached its end: picture1 gets the picture
};
ExpectedLoad expectedLoad(const Bytes& file, const std::vector<int>& unrecorded = {});

// Opens the file through the menu command, answering the palette question.
void openSkin(platform::ScriptedHost& host, FrmMain& frm, const std::string& path,
              bool takePalette = false);

} // namespace tavrin::test
