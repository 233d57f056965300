#include "filters/work_buf_kernels.h"

#include "platform/vb_numeric.h"

#include <cmath>
#include <cstdlib>

namespace tavrin::filters {

namespace {

// Half to even in the processor's own rounding: adding 1.5 x 2^52 leaves no bits for a
// fraction. Exact below 2^51, far beyond any channel value.
double roundEven(double v) {
    constexpr double kShift = 6755399441055744.0;
    if (std::fabs(v) < 2251799813685248.0) return (v + kShift) - kShift;
    return vb::roundHalfEven(v);
}

bool fits16(double whole) { return whole >= -32768.0 && whole <= 32767.0; }

int32_t packSums(const Channels& sums) {
    return packChannels(Channels{sums[0] / 9.0, sums[1] / 9.0, sums[2] / 9.0});
}

} // namespace

int64_t GridCells::cell(int64_t x, int64_t y) const {
    const auto fx = static_cast<double>(x), fy = static_cast<double>(y);
    if (!cells || x < 0 || y < 0 || fx >= width || fy >= height) return -1;
    const double at = fy * width + fx;
    const double index = std::floor(at) == at ? at : vb::roundHalfEven(at);
    if (index < static_cast<double>(lower) || index > static_cast<double>(upper)) return -1;
    return static_cast<int64_t>(index) - lower;
}

int32_t packChannels(const Channels& values) {
    int32_t packed = 0;
    for (int c = 0; c < 3; ++c) {
        const double r = roundEven(values[static_cast<std::size_t>(c)]);
        if (!fits16(r) || r < 0) return -1; // NaN fails the first test too
        packed |= (r > 255 ? 255 : static_cast<int32_t>(r)) << (8 * c);
    }
    return packed;
}

void copyRow(const GridCells& grid, const PaletteRecords& palette, const WorkPlanes& work,
             int64_t y, int64_t x0, int64_t x1, double& colorIndex, Channels& values) {
    for (int64_t x = x0; x <= x1; ++x) {
        const int64_t c = grid.cell(x, y);
        if (c >= 0) colorIndex = grid.cells[c];
        const double record = roundEven(colorIndex);
        if (record >= 0 && record < static_cast<double>(palette.count)) {
            const PalRecord& r = palette.records[static_cast<int64_t>(record)];
            values = {static_cast<double>(r.Red), static_cast<double>(r.Green),
                      static_cast<double>(r.Blue)};
        }
        if (!WorkPlanes::holds(x, y)) continue;
        for (int ch = 0; ch < 3; ++ch) {
            const double v = roundEven(values[static_cast<std::size_t>(ch)]);
            if (fits16(v)) work.at(ch, x, y) = static_cast<int16_t>(v);
        }
    }
}

void sharpenRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
                int32_t* out) {
    for (int64_t x = x0; x <= x1; ++x) {
        if (WorkPlanes::holds(x, y) && WorkPlanes::holds(x - 1, y - 1)) {
            for (int ch = 0; ch < 3; ++ch) {
                const double t = work.at(ch, x, y);
                double v = t + 0.5 * (t - work.at(ch, x - 1, y - 1));
                v = v > 255 ? 255 : v < 0 ? 0 : v;
                values[static_cast<std::size_t>(ch)] = v;
            }
        }
        *out++ = packChannels(values);
    }
}

void lightenRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
                int32_t* out) {
    for (int64_t x = x0; x <= x1; ++x) {
        if (WorkPlanes::holds(x, y)) {
            for (int ch = 0; ch < 3; ++ch) {
                // 255 / 20 in single precision is exactly 12.75.
                const double v = work.at(ch, x, y) + 12.75;
                values[static_cast<std::size_t>(ch)] = v > 255 ? 255 : v;
            }
        }
        *out++ = packChannels(values);
    }
}

void blurRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& sums,
             int32_t* out) {
    for (int64_t x = x0; x <= x1; ++x) {
        if (WorkPlanes::holds(x - 1, y - 1) && WorkPlanes::holds(x + 1, y + 1)) {
            for (int ch = 0; ch < 3; ++ch) {
                int32_t sum = 0;
                for (int64_t dy = -1; dy <= 1; ++dy)
                    for (int64_t dx = -1; dx <= 1; ++dx)
                        sum += work.at(ch, x + dx, y + dy);
                // The sum is a 16-bit number: one that leaves it isn't made.
                if (fits16(sum)) sums[static_cast<std::size_t>(ch)] = sum;
            }
        }
        *out++ = packSums(sums);
    }
}

void embossRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
               int32_t* out) {
    for (int64_t x = x0; x <= x1; ++x) {
        if (WorkPlanes::holds(x, y) && WorkPlanes::holds(x + 1, y + 1)) {
            for (int ch = 0; ch < 3; ++ch) {
                const int32_t d = work.at(ch, x, y) - work.at(ch, x + 1, y + 1);
                // Each step is 16-bit: a difference or sum that leaves it isn't made.
                if (fits16(d) && fits16(d + 128) && fits16(std::abs(d + 128)))
                    values[static_cast<std::size_t>(ch)] = std::abs(d + 128);
            }
        }
        *out++ = packChannels(values);
    }
}

void tintRow(const WorkPlanes& work, const TintShare& share, int64_t y, int64_t x0, int64_t x1,
             Channels& values, int32_t* out) {
    for (int64_t x = x0; x <= x1; ++x) {
        if (WorkPlanes::holds(x, y)) {
            for (std::size_t ch = 0; ch < 3; ++ch) {
                if (!share.valid[ch]) continue;
                const double v = work.at(static_cast<int>(ch), x, y) + share.add[ch];
                values[ch] = v > 255 ? 255 : v;
            }
        }
        *out++ = packChannels(values);
    }
}

} // namespace tavrin::filters
