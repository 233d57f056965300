#pragma once
// The passes that take their colours from the picture instead of the grid (Diffuse and
// Lighten Image), and Diffuse's scatter: each pixel takes the colour of a pixel up to two
// away in each direction, the offsets drawn from the uniform generator.
#include "filters/work_buf_kernels.h"

#include <cstdint>

namespace tavrin::filters {

// A colour as Point gives it, split as these passes split it: red value Mod 256, green
// (value with its low byte cleared) / 256 Mod 256, blue (value And &HFF0000) / 65536. The
// -1 of a position outside the picture gives -1, -1, 255.
Channels splitColor(int32_t packed);

// The first pass from the picture over pixels x0.. of row y, whose colours are given:
// Work_Buf takes each pixel's channels where it has room, and `values` the last pixel's.
void splitRow(const WorkPlanes& work, int64_t y, int64_t x0, const int32_t* colors, int64_t count,
              Channels& values);

// Where Diffuse reads for a pixel at `at` (a row or a column) with the generator's next
// number r: at + (r x 4 - 2) in single precision, rounded half to even.
int64_t diffuseSource(int64_t at, float r);

// Diffuse's second pass over pixels x0..x1 of row y: two numbers of `next` a pixel, the
// row's offset first, then the column's. A source outside Work_Buf keeps the values of the
// pixel before.
void diffuseRow(const WorkPlanes& work, const Uniform& next, int64_t y, int64_t x0, int64_t x1,
                Channels& values, int32_t* out);

} // namespace tavrin::filters
