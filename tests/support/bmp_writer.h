#pragma once
// Bitmap files written by the tests themselves, of every kind the bitmap reader takes,
// from a picture given as packed colours (0x00BBGGRR) or as indices into a colour table.
#include <cstdint>
#include <vector>

namespace tavrin::test {

struct BmpPlan {
    int width = 1, height = 1;
    int bits = 24;        // 1, 4, 8, 16, 24 or 32
    bool topDown = false; // rows from the top (a negative height)
    bool os2 = false;     // the 12-byte header, 3-byte table entries
    bool masks = false;   // 16 and 32 bits: colour masks after a 40-byte header
    uint32_t rgbMasks[3] = {0xF800, 0x07E0, 0x001F};
    std::vector<uint32_t> table;  // packed colours, for 1 to 8 bits
    std::vector<uint32_t> pixels; // row by row from the top: indices or stored values
};

inline void putLE(std::vector<uint8_t>& out, uint32_t v, int bytes) {
    for (int k = 0; k < bytes; ++k)
        out.push_back(static_cast<uint8_t>(v >> (8 * k)));
}

// An uncompressed bitmap. For 16 and 32 bits a pixel is the value stored; for 24 bits the
// packed colour.
inline std::vector<uint8_t> writeBmp(const BmpPlan& s) {
    const uint32_t header = s.os2 ? 12 : 40, entry = s.os2 ? 3 : 4;
    const uint32_t maskBytes = s.masks ? 12 : 0;
    const uint32_t tableBytes = static_cast<uint32_t>(s.table.size()) * entry;
    const uint32_t pixelsAt = 14 + header + maskBytes + tableBytes;
    const uint32_t stride = (static_cast<uint32_t>(s.width * s.bits) + 31) / 32 * 4;
    std::vector<uint8_t> out{'B', 'M'};
    putLE(out, pixelsAt + stride * static_cast<uint32_t>(s.height), 4);
    putLE(out, 0, 4);
    putLE(out, pixelsAt, 4);
    putLE(out, header, 4);
    if (s.os2) {
        putLE(out, static_cast<uint32_t>(s.width), 2);
        putLE(out, static_cast<uint32_t>(s.height), 2);
        putLE(out, 1, 2);
        putLE(out, static_cast<uint32_t>(s.bits), 2);
    } else {
        putLE(out, static_cast<uint32_t>(s.width), 4);
        putLE(out, static_cast<uint32_t>(s.topDown ? -s.height : s.height), 4);
        putLE(out, 1, 2);
        putLE(out, static_cast<uint32_t>(s.bits), 2);
        putLE(out, s.masks ? 3 : 0, 4);
        putLE(out, 0, 4);
        putLE(out, 2835, 4);
        putLE(out, 2835, 4);
        putLE(out, static_cast<uint32_t>(s.table.size()), 4);
        putLE(out, 0, 4);
        if (s.masks)
            for (uint32_t m : s.rgbMasks)
                putLE(out, m, 4);
    }
    for (uint32_t c : s.table) {
        out.push_back(static_cast<uint8_t>(c >> 16));
        out.push_back(static_cast<uint8_t>(c >> 8));
        out.push_back(static_cast<uint8_t>(c));
        if (!s.os2) out.push_back(0);
    }
    for (int row = 0; row < s.height; ++row) {
        const int y = s.topDown ? row : s.height - 1 - row;
        std::vector<uint8_t> line(stride, 0);
        for (int x = 0; x < s.width; ++x) {
            const uint32_t v = s.pixels[static_cast<std::size_t>(y * s.width + x)];
            const std::size_t bit = static_cast<std::size_t>(x * s.bits);
            if (s.bits < 8) {
                line[bit / 8] |= static_cast<uint8_t>(v << (8 - s.bits - bit % 8));
            } else if (s.bits == 24) {
                line[bit / 8] = static_cast<uint8_t>(v >> 16);
                line[bit / 8 + 1] = static_cast<uint8_t>(v >> 8);
                line[bit / 8 + 2] = static_cast<uint8_t>(v);
            } else {
                for (int k = 0; k < s.bits / 8; ++k)
                    line[bit / 8 + static_cast<std::size_t>(k)] =
                        static_cast<uint8_t>(v >> (8 * k));
            }
        }
        out.insert(out.end(), line.begin(), line.end());
    }
    return out;
}

} // namespace tavrin::test
