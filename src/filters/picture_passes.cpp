#include "filters/picture_passes.h"

#include "platform/vb_numeric.h"

namespace tavrin::filters {

Channels splitColor(int32_t packed) {
    // Mod keeps the dividend's sign, as C++'s % does; the division is exact.
    const int32_t high = static_cast<int32_t>(static_cast<uint32_t>(packed) & 0xFFFFFF00u) / 256;
    const int32_t blue = (packed & 0xFF0000) >> 16; // never negative: the division exactly
    return {static_cast<double>(packed % 256), static_cast<double>(high % 256),
            static_cast<double>(blue)};
}

void splitRow(const WorkPlanes& work, int64_t y, int64_t x0, const int32_t* colors, int64_t count,
              Channels& values) {
    for (int64_t i = 0; i < count; ++i) {
        values = splitColor(colors[i]);
        const int64_t x = x0 + i;
        if (!WorkPlanes::holds(x, y)) continue;
        for (int c = 0; c < 3; ++c)
            work.at(c, x, y) = static_cast<int16_t>(values[static_cast<std::size_t>(c)]);
    }
}

int64_t diffuseSource(int64_t at, float r) {
    const float offset = r * 4 - 2;
    // The sum is single precision too: far from 0 it loses the offset's low bits.
    const float source = static_cast<float>(at) + offset;
    return static_cast<int64_t>(vb::roundHalfEven(source));
}

void diffuseRow(const WorkPlanes& work, const Uniform& next, int64_t y, int64_t x0, int64_t x1,
                Channels& values, int32_t* out) {
    for (int64_t x = x0; x <= x1; ++x) {
        const int64_t row = diffuseSource(y, next());
        const int64_t column = diffuseSource(x, next());
        if (WorkPlanes::holds(column, row))
            for (int c = 0; c < 3; ++c)
                values[static_cast<std::size_t>(c)] = work.at(c, column, row);
        *out++ = packChannels(values);
    }
}

} // namespace tavrin::filters
