#pragma once
// The run decoder under Get_PCX, kept apart from the command so that its speed can be
// worked on without touching what the command does around it.
#include "editor/records.h"
#include "platform/raster.h"
#include "platform/vb_array.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tavrin {

// Each value's colour, worked out once: the table can't change while a file is decoded.
// A value with no record of its own repeats the previous pixel; a record whose colour
// can't be packed fails only when a pixel uses it.
struct ValueColors {
    std::array<uint32_t, 256> color{};
    std::array<bool, 256> hasRecord{}, unpackable{};
};
ValueColors valueColors(const vb::Array<PalRecord>& table);

// The file's cells from position 129 on: the data bytes first, then zeros up to lastCell.
// Reading past lastCell is "Subscript out of range".
struct RunCells {
    const uint8_t* data;
    int64_t count;
    int64_t lastCell;
};

struct RunGrid {
    int16_t* cells; // all 0 on entry, as ReDim leaves it
    int64_t count;
    int64_t width;   // cells a row
    int64_t lastRow; // the decoding stops once a run ends below this row
};

// Where the decoding ended: every cell before `end` was written; the first `blackCells`
// of them were written before any value with a record came, in black.
struct RunsDecoded {
    int64_t end = 0;
    int64_t blackCells = 0;
};

// Decodes the runs into the grid: a byte above 191 is a run of (byte - 192) of the next
// byte (192, a run of none, still takes its value byte), any other byte one pixel. A
// cell past the grid or a byte past the file's cells raises, with the grid written up to
// the failing cell, as a decoder writing one cell at a time would leave it.
RunsDecoded decodeRuns(const RunCells& file, const RunGrid& grid, const ValueColors& values);

// The picture of the decoded grid: pixel (x, y) of image (a box `width` less its border)
// is the colour its cell was decoded in.
void paintDecoded(const RunGrid& grid, const RunsDecoded& decoded, const ValueColors& values,
                  platform::Raster& image);

} // namespace tavrin
