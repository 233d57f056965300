#pragma once
// Where things lie in a PCX file's bytes: the size fields, the run data and the 128
// header bytes kept for saving. Decoding the runs is skinfiles/pcx_runs.h's job.
#include "skinfiles/pcx_runs.h"

#include <cstdint>
#include <span>

namespace tavrin {

struct PcxLayout {
    int64_t width = 1; // Xmax + 1 from bytes 9 and 10; Xmin isn't looked at
    int64_t ymax = 0;  // bytes 11 and 12, unsigned
    // Positions 129 to L - 769, then zeros up to cell L + 1000.
    RunCells cells{nullptr, 0, 0};
    std::span<const uint8_t> header; // positions 1 to 128, fewer in a shorter file
};

// A size field whose bytes lie past the end of the file counts as 0, as a Get into a
// fresh variable leaves it.
PcxLayout parsePcx(std::span<const uint8_t> file);

} // namespace tavrin
