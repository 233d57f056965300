#pragma once
// The pixel arithmetic of the area filters and of the brushes that smooth or tint, over
// Work_Buf and apart from the commands: the first pass that copies the grid's colours
// in, and the second passes that work out each pixel's colour from it. A read or write
// outside its array is a skipped statement: Work_Buf keeps what it held, and a channel
// whose value can't be worked out keeps the value of the pixel before, which the passes
// hand on from pixel to pixel (and from the first pass to the second) in `Channels`.
#include "editor/records.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace tavrin::filters {

// Work_Buf's rows and columns, 0 to 1500.
inline constexpr int64_t kWorkSide = 1501;

// Work_Buf as three planes of kWorkSide x kWorkSide values: red, green, blue, each row
// by row.
struct WorkPlanes {
    int16_t* cells;
    static bool holds(int64_t x, int64_t y) {
        return x >= 0 && x < kWorkSide && y >= 0 && y < kWorkSide;
    }
    int16_t& at(int channel, int64_t x, int64_t y) const {
        return cells[(channel * kWorkSide + y) * kWorkSide + x];
    }
};

// The pixels a pass covers, rows y0..y1 and in each columns x0..x1, both ends included:
// nothing when x1 < x0 or y1 < y0.
struct PassArea {
    int64_t x0, y0, x1, y1;
    bool empty() const { return x1 < x0 || y1 < y0; }
};

// What a second pass works out.
enum class Kernel : int { Sharpen, Lighten, Blur, Emboss, Tint, Diffuse };

// Red, green, blue as they pass from one pixel to the next.
using Channels = std::array<double, 3>;

// Skin_Grid as the tools see it. A pixel outside the skin has no cell, even where its
// position y * width + x would land inside the array, in another row.
struct GridCells {
    int16_t* cells = nullptr; // nullptr: no grid yet
    int64_t lower = 0, upper = -1;
    double width = 0, height = 0; // Skin_Width, Skin_Height
    // The element of pixel (x, y), from 0, or -1 when there is none.
    int64_t cell(int64_t x, int64_t y) const;
    // For a whole width: the pixels of row y that have cells, `from` to `to` (none when
    // to < from), pixel x's element being base + x. False when the width has a fraction.
    bool row(int64_t y, int64_t& base, int64_t& from, int64_t& to) const;
};

// Pal_Table's records 0 to count - 1, and their channels as Work_Buf stores them when
// every one is a 16-bit number (else `stored` is empty).
struct PaletteColours {
    const PalRecord* records;
    int64_t count;
    std::vector<std::array<int16_t, 3>> stored;
};
PaletteColours paletteColours(const PalRecord* records, int64_t count);

// The first pass over pixels x0..x1 of row y: Color_Index takes each pixel's cell (and
// keeps its value outside the skin), values the colour of that record (kept when there
// is no such record), and Work_Buf the values.
void copyRow(const GridCells& grid, const PaletteColours& palette, const WorkPlanes& work,
             int64_t y, int64_t x0, int64_t x1, double& colorIndex, Channels& values);

// The second passes over pixels x0..x1 of row y. Each writes pixel x0 + i's colour,
// packed 0x00BBGGRR, into out[i], or -1 where the values can't be packed (Check_Color
// then keeps what it held).
//
// Sharpen: T + (T - up-left) / 2, held to 0..255.
void sharpenRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
                int32_t* out);
// Lighten: T + 12.75, held to at most 255.
void lightenRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
                int32_t* out);
// Blur: the sum of the 3 x 3 values round the pixel, a 16-bit number, over 9. The values
// handed on are the sums, so a pixel whose sums can't be made repeats the sums before it
// (and after the first pass, the plain channel values over 9).
void blurRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& sums,
             int32_t* out);
// Emboss: |T - down-right + 128| in 16 bits; above 255 packs as 255.
void embossRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
               int32_t* out);

// What a tint adds to each channel: the current colour's channel over Tint_Value, or
// nothing to work with where that division fails.
struct TintShare {
    Channels add{};
    std::array<bool, 3> valid{};
};
// Tint: T + the share, held to at most 255.
void tintRow(const WorkPlanes& work, const TintShare& share, int64_t y, int64_t x0, int64_t x1,
             Channels& values, int32_t* out);

// The uniform generator in [0, 1) that Diffuse draws its offsets from.
using Uniform = std::function<float()>;

// The second pass of `kernel` over pixels x0..x1 of row y (share: Tint's only; next:
// Diffuse's only).
void kernelRow(Kernel kernel, const WorkPlanes& work, const TintShare& share, int64_t y, int64_t x0,
               int64_t x1, Channels& values, int32_t* out, const Uniform& next = {});

// The values rounded to 16-bit whole numbers (half to even) and packed, a channel above
// 255 as 255; -1 where a value doesn't fit in 16 bits or is negative.
int32_t packChannels(const Channels& values);

// Two passes through Work_Buf: the first copies the colours of `first` in, from the grid
// and the palette or from the picture; the second works out each pixel of `second` by
// `kernel`, matched to the palette when `match`, and writes the picture and the grid.
struct PassPlan {
    PassArea first, second;
    Kernel kernel;
    bool match = true;
    bool fromPicture = false;
    bool refreshFirst = false, refreshSecond = false; // picture1 refreshed after each row
};

} // namespace tavrin::filters
