#include "filters/work_buf_kernels.h"

#include "filters/picture_passes.h"

#include "platform/vb_numeric.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// Each pass has two roads: pixel by pixel with every read checked, for the edges of
// Work_Buf and of the skin, and a stretch of pixels whose reads all lie inside, worked out
// in whole numbers where the rounding allows. Both give the same colours; at the end of a
// stretch its last pixel is worked out once more on the checked road, so that the values
// handed on are the checked road's.

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

// The pixels of x0..x1 in row y whose reads, from `lo` to `hi` rows and columns away, all
// lie in Work_Buf: from..to, none when to < from.
struct Stretch {
    int64_t from, to;
};
Stretch inside(int64_t y, int64_t x0, int64_t x1, int64_t lo, int64_t hi) {
    if (y + lo < 0 || y + hi >= kWorkSide) return {0, -1};
    return {std::max(x0, -lo), std::min(x1, kWorkSide - 1 - hi)};
}

// The checked road for the pixels of x0..x1 outside the stretch, the fast one inside.
// fast(from, to, out) gives the first pixel it couldn't work out (a value that leaves 16
// bits), to + 1 when it did them all; the checked road goes on from there.
template <class Checked, class Fast>
void byStretch(int64_t x0, int64_t x1, const Stretch& s, int32_t* out, Checked&& checked,
               Fast&& fast) {
    const int64_t from = std::max(s.from, x0), to = std::min(s.to, x1);
    int64_t x = x0;
    if (from <= to) {
        for (; x < from; ++x)
            *out++ = checked(x);
        x = fast(from, to, out);
        out += x - from;
        if (x > from) checked(x - 1); // the values it hands on
    }
    for (; x <= x1; ++x)
        *out++ = checked(x);
}

const int16_t* planeRow(const WorkPlanes& work, int c, int64_t y) { return &work.at(c, 0, y); }

int32_t clampByte(int32_t v) { return v < 0 ? 0 : v > 255 ? 255 : v; }

#if defined(__SSE2__)
inline __m128i widen(__m128i v, bool high) {
    return _mm_srai_epi32(high ? _mm_unpackhi_epi16(v, v) : _mm_unpacklo_epi16(v, v), 16);
}

// One channel of eight pixels of Sharpen as bytes: the same sums in 32-bit lanes; packing
// down to 16 bits and then to bytes with saturation holds them to 0..255.
inline __attribute__((always_inline)) __m128i sharpenChannel(const int16_t* t, const int16_t* n) {
    const __m128i tv = _mm_loadu_si128(reinterpret_cast<const __m128i*>(t));
    const __m128i nv = _mm_loadu_si128(reinterpret_cast<const __m128i*>(n));
    const __m128i one = _mm_set1_epi32(1);
    const auto half = [&](bool high) {
        const __m128i t32 = widen(tv, high), n32 = widen(nv, high);
        const __m128i s = _mm_sub_epi32(_mm_add_epi32(t32, _mm_add_epi32(t32, t32)), n32);
        const __m128i k = _mm_srai_epi32(s, 1);
        return _mm_add_epi32(k, _mm_and_si128(_mm_and_si128(s, k), one));
    };
    const __m128i words = _mm_packs_epi32(half(false), half(true));
    return _mm_packus_epi16(words, words);
}

void sharpenEight(const int16_t* const t[3], const int16_t* const n[3], int64_t x, int32_t* out) {
    const __m128i red = sharpenChannel(t[0] + x, n[0] + x - 1);
    const __m128i green = sharpenChannel(t[1] + x, n[1] + x - 1);
    const __m128i blue = sharpenChannel(t[2] + x, n[2] + x - 1);
    const __m128i rg = _mm_unpacklo_epi8(red, green);
    const __m128i b0 = _mm_unpacklo_epi8(blue, _mm_setzero_si128());
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_unpacklo_epi16(rg, b0));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + 4), _mm_unpackhi_epi16(rg, b0));
}
#endif

} // namespace

int64_t GridCells::cell(int64_t x, int64_t y) const {
    const auto fx = static_cast<double>(x), fy = static_cast<double>(y);
    if (!cells || x < 0 || y < 0 || fx >= width || fy >= height) return -1;
    const double at = fy * width + fx;
    const double index = std::floor(at) == at ? at : vb::roundHalfEven(at);
    if (index < static_cast<double>(lower) || index > static_cast<double>(upper)) return -1;
    return static_cast<int64_t>(index) - lower;
}

bool GridCells::row(int64_t y, int64_t& base, int64_t& from, int64_t& to) const {
    if (!(std::floor(width) == width)) return false;
    base = 0, from = 0, to = -1;
    constexpr double kFar = 1e15;
    const double at = static_cast<double>(y) * width;
    if (!cells || y < 0 || static_cast<double>(y) >= height || width <= 0 || at > kFar) return true;
    const auto yw = static_cast<int64_t>(at), w = static_cast<int64_t>(std::min(width, kFar));
    base = yw - lower;
    from = std::max<int64_t>(0, lower - yw);
    to = std::min(w - 1, upper - yw);
    return true;
}

PaletteColours paletteColours(const PalRecord* records, int64_t count) {
    PaletteColours p{records, count, {}};
    p.stored.resize(static_cast<std::size_t>(count));
    for (int64_t i = 0; i < count; ++i) {
        const PalRecord& r = records[i];
        for (const int32_t v : {r.Red, r.Green, r.Blue})
            if (v < -32768 || v > 32767) {
                p.stored.clear();
                return p;
            }
        p.stored[static_cast<std::size_t>(i)] = {static_cast<int16_t>(r.Red),
                                                 static_cast<int16_t>(r.Green),
                                                 static_cast<int16_t>(r.Blue)};
    }
    return p;
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

void copyRow(const GridCells& grid, const PaletteColours& palette, const WorkPlanes& work,
             int64_t y, int64_t x0, int64_t x1, double& colorIndex, Channels& values) {
    const auto checked = [&](int64_t x) {
        const int64_t c = grid.cell(x, y);
        if (c >= 0) colorIndex = grid.cells[c];
        const double record = roundEven(colorIndex);
        if (record >= 0 && record < static_cast<double>(palette.count)) {
            const PalRecord& r = palette.records[static_cast<int64_t>(record)];
            values = {static_cast<double>(r.Red), static_cast<double>(r.Green),
                      static_cast<double>(r.Blue)};
        }
        if (!WorkPlanes::holds(x, y)) return;
        for (int ch = 0; ch < 3; ++ch) {
            const double v = roundEven(values[static_cast<std::size_t>(ch)]);
            if (fits16(v)) work.at(ch, x, y) = static_cast<int16_t>(v);
        }
    };
    // Pixels that have cells and lie in Work_Buf go by whole numbers, once the colour
    // handed on is one Work_Buf can take.
    int64_t base = 0, from = 0, to = -1;
    if (palette.stored.empty() || !grid.row(y, base, from, to) || y >= kWorkSide) {
        from = 0, to = -1;
    }
    from = std::max(from, x0);
    to = std::min({to, x1, kWorkSide - 1});
    int64_t x = x0;
    for (; x <= x1 && x < from; ++x)
        checked(x);
    std::array<int16_t, 3> held{};
    bool storable = x <= to;
    for (std::size_t c = 0; c < 3 && storable; ++c) {
        const double v = roundEven(values[c]);
        storable = fits16(v);
        held[c] = storable ? static_cast<int16_t>(v) : 0;
    }
    if (storable) {
        const int16_t* cells = grid.cells + base;
        int16_t* planes[3] = {&work.at(0, 0, y), &work.at(1, 0, y), &work.at(2, 0, y)};
        const auto count = static_cast<uint32_t>(palette.count);
        const std::array<int16_t, 3>* stored = palette.stored.data();
        bool fromRecord = false;
        int16_t red = held[0], green = held[1], blue = held[2]; // in registers, not memory
        for (; x <= to; ++x) {
            const int16_t v = cells[x];
            if (static_cast<uint32_t>(static_cast<int32_t>(v)) < count) {
                const std::array<int16_t, 3>& rec = stored[v];
                red = rec[0], green = rec[1], blue = rec[2];
                fromRecord = true;
            }
            planes[0][x] = red;
            planes[1][x] = green;
            planes[2][x] = blue;
        }
        colorIndex = cells[to];
        if (fromRecord)
            values = {static_cast<double>(red), static_cast<double>(green),
                      static_cast<double>(blue)};
    }
    for (; x <= x1; ++x)
        checked(x);
}

void sharpenRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
                int32_t* out) {
    const auto checked = [&](int64_t x) {
        if (WorkPlanes::holds(x, y) && WorkPlanes::holds(x - 1, y - 1)) {
            for (int ch = 0; ch < 3; ++ch) {
                const double t = work.at(ch, x, y);
                const double v = t + 0.5 * (t - work.at(ch, x - 1, y - 1));
                values[static_cast<std::size_t>(ch)] = v > 255 ? 255 : v < 0 ? 0 : v;
            }
        }
        return packChannels(values);
    };
    // (3t - n) / 2 in whole numbers: an odd sum lies halfway, and goes to the even side.
    byStretch(x0, x1, inside(y, x0, x1, -1, 0), out, checked,
              [&](int64_t from, int64_t to, int32_t* o) {
                  const int16_t* t[3] = {planeRow(work, 0, y), planeRow(work, 1, y),
                                         planeRow(work, 2, y)};
                  const int16_t* n[3] = {planeRow(work, 0, y - 1), planeRow(work, 1, y - 1),
                                         planeRow(work, 2, y - 1)};
                  int64_t x = from;
#if defined(__SSE2__)
                  for (; x + 7 <= to; x += 8, o += 8)
                      sharpenEight(t, n, x, o);
#endif
                  for (; x <= to; ++x) {
                      int32_t p = 0;
                      for (int c = 0; c < 3; ++c) {
                          const int32_t s = 3 * t[c][x] - n[c][x - 1], k = s >> 1;
                          p |= clampByte(k + (s & k & 1)) << (8 * c);
                      }
                      *o++ = p;
                  }
                  return to + 1;
              });
}

void lightenRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
                int32_t* out) {
    const auto checked = [&](int64_t x) {
        if (WorkPlanes::holds(x, y)) {
            for (int ch = 0; ch < 3; ++ch) {
                // 255 / 20 in single precision is exactly 12.75.
                const double v = work.at(ch, x, y) + 12.75;
                values[static_cast<std::size_t>(ch)] = v > 255 ? 255 : v;
            }
        }
        return packChannels(values);
    };
    // t + 12.75 rounds to t + 13.
    byStretch(x0, x1, inside(y, x0, x1, 0, 0), out, checked,
              [&](int64_t from, int64_t to, int32_t* o) {
                  const int16_t* t[3] = {planeRow(work, 0, y), planeRow(work, 1, y),
                                         planeRow(work, 2, y)};
                  for (int64_t x = from; x <= to; ++x) {
                      int32_t p = 0;
                      for (int c = 0; c < 3 && p >= 0; ++c) {
                          const int32_t v = t[c][x] + 13;
                          p = v < 0 ? -1 : p | std::min(v, 255) << (8 * c);
                      }
                      *o++ = p; // -1 as packing gives it: the checked values are the same
                  }
                  return to + 1;
              });
}

void blurRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& sums,
             int32_t* out) {
    const auto checked = [&](int64_t x) {
        if (WorkPlanes::holds(x - 1, y - 1) && WorkPlanes::holds(x + 1, y + 1)) {
            for (int ch = 0; ch < 3; ++ch) {
                // Summed in 16 bits from the top left: a sum that leaves them on the way
                // isn't made.
                int32_t sum = 0;
                bool made = true;
                for (int64_t dy = -1; dy <= 1; ++dy)
                    for (int64_t dx = -1; dx <= 1; ++dx) {
                        sum += work.at(ch, x + dx, y + dy);
                        made = made && fits16(sum);
                    }
                if (made) sums[static_cast<std::size_t>(ch)] = sum;
            }
        }
        return packSums(sums);
    };
    // A sum over 9 is never halfway between two whole numbers: it rounds to nearest.
    byStretch(x0, x1, inside(y, x0, x1, -1, 1), out, checked,
              [&](int64_t from, int64_t to, int32_t* o) {
                  for (int64_t x = from; x <= to; ++x) {
                      int32_t p = 0;
                      for (int c = 0; c < 3; ++c) {
                          // No value below 0 and a sum within 16 bits: no sum on the way
                          // left them either.
                          int32_t sum = 0, signs = 0;
                          for (int64_t dy = -1; dy <= 1; ++dy) {
                              const int16_t* r = planeRow(work, c, y + dy) + x;
                              sum += r[-1] + r[0] + r[1];
                              signs |= r[-1] | r[0] | r[1];
                          }
                          if (signs < 0 || sum > 32767) return x;
                          p |= std::min((2 * sum + 9) / 18, 255) << (8 * c);
                      }
                      *o++ = p;
                  }
                  return to + 1;
              });
}

void embossRow(const WorkPlanes& work, int64_t y, int64_t x0, int64_t x1, Channels& values,
               int32_t* out) {
    const auto checked = [&](int64_t x) {
        if (WorkPlanes::holds(x, y) && WorkPlanes::holds(x + 1, y + 1)) {
            for (int ch = 0; ch < 3; ++ch) {
                const int32_t d = work.at(ch, x, y) - work.at(ch, x + 1, y + 1);
                // Each step is 16-bit: a difference or sum that leaves it isn't made.
                if (fits16(d) && fits16(d + 128) && fits16(std::abs(d + 128)))
                    values[static_cast<std::size_t>(ch)] = std::abs(d + 128);
            }
        }
        return packChannels(values);
    };
    byStretch(x0, x1, inside(y, x0, x1, 0, 1), out, checked,
              [&](int64_t from, int64_t to, int32_t* o) {
                  const int16_t* t[3] = {planeRow(work, 0, y), planeRow(work, 1, y),
                                         planeRow(work, 2, y)};
                  const int16_t* n[3] = {planeRow(work, 0, y + 1), planeRow(work, 1, y + 1),
                                         planeRow(work, 2, y + 1)};
                  for (int64_t x = from; x <= to; ++x) {
                      int32_t p = 0;
                      for (int c = 0; c < 3; ++c) {
                          const int32_t d = t[c][x] - n[c][x + 1];
                          if (d < -32768 || d > 32767 - 128) return x;
                          p |= std::min(std::abs(d + 128), 255) << (8 * c);
                      }
                      *o++ = p;
                  }
                  return to + 1;
              });
}

void tintRow(const WorkPlanes& work, const TintShare& share, int64_t y, int64_t x0, int64_t x1,
             Channels& values, int32_t* out) {
    const auto checked = [&](int64_t x) {
        if (WorkPlanes::holds(x, y)) {
            for (std::size_t ch = 0; ch < 3; ++ch) {
                if (!share.valid[ch]) continue;
                const double v = work.at(static_cast<int>(ch), x, y) + share.add[ch];
                values[ch] = v > 255 ? 255 : v;
            }
        }
        return packChannels(values);
    };
    const bool whole = share.valid[0] && share.valid[1] && share.valid[2];
    byStretch(x0, x1, whole ? inside(y, x0, x1, 0, 0) : Stretch{0, -1}, out, checked,
              [&](int64_t from, int64_t to, int32_t* o) {
                  const int16_t* t[3] = {planeRow(work, 0, y), planeRow(work, 1, y),
                                         planeRow(work, 2, y)};
                  for (int64_t x = from; x <= to; ++x) {
                      Channels v{};
                      for (std::size_t c = 0; c < 3; ++c)
                          v[c] = std::min(255.0, t[c][x] + share.add[c]);
                      *o++ = packChannels(v);
                  }
                  return to + 1;
              });
}

void kernelRow(Kernel kernel, const WorkPlanes& work, const TintShare& share, int64_t y, int64_t x0,
               int64_t x1, Channels& values, int32_t* out, const Uniform& next) {
    switch (kernel) {
    case Kernel::Sharpen:
        sharpenRow(work, y, x0, x1, values, out);
        break;
    case Kernel::Lighten:
        lightenRow(work, y, x0, x1, values, out);
        break;
    case Kernel::Blur:
        blurRow(work, y, x0, x1, values, out);
        break;
    case Kernel::Emboss:
        embossRow(work, y, x0, x1, values, out);
        break;
    case Kernel::Tint:
        tintRow(work, share, y, x0, x1, values, out);
        break;
    case Kernel::Diffuse:
        diffuseRow(work, next, y, x0, x1, values, out);
        break;
    }
}

} // namespace tavrin::filters
