#include "platform/bmp_format.h"

#include "platform/vb_error.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <vector>

namespace platform {

namespace {

enum : uint32_t { kPlain = 0, kRuns8 = 1, kRuns4 = 2, kMasks = 3, kMasksWithAlpha = 6 };

[[noreturn]] void invalid() { vb::raise(vb::InvalidPicture); }

uint32_t readLE(std::span<const uint8_t> file, int64_t at, int bytes) {
    if (at < 0 || at + bytes > static_cast<int64_t>(file.size())) invalid();
    uint32_t v = 0;
    for (int k = bytes - 1; k >= 0; --k)
        v = v << 8 | file[static_cast<std::size_t>(at + k)];
    return v;
}
uint32_t u32(std::span<const uint8_t> file, int64_t at) { return readLE(file, at, 4); }
uint32_t u16(std::span<const uint8_t> file, int64_t at) { return readLE(file, at, 2); }

constexpr uint32_t packed(uint32_t red, uint32_t green, uint32_t blue) {
    return red | green << 8 | blue << 16;
}

// One colour part of a masked pixel, stretched from the mask's width to 0..255.
uint32_t maskedPart(uint32_t pixel, uint32_t mask) {
    if (mask == 0) return 0;
    const int shift = std::countr_zero(mask);
    const uint32_t most = mask >> shift;
    const uint64_t v = (pixel & mask) >> shift;
    return static_cast<uint32_t>((v * 255 + most / 2) / most);
}

struct Decoder {
    std::span<const uint8_t> file;
    const BmpHeader& h;
    std::vector<uint32_t> table;
    Raster out;

    Decoder(std::span<const uint8_t> f, const BmpHeader& header) : file(f), h(header) {
        table.reserve(static_cast<std::size_t>(h.tableColours));
        for (int64_t k = 0; k < h.tableColours; ++k) {
            const int64_t at = h.tableAt + k * h.tableEntryBytes;
            table.push_back(
                packed(readLE(file, at + 2, 1), readLE(file, at + 1, 1), readLE(file, at, 1)));
        }
    }

    uint32_t colourOf(uint32_t index) const { return index < table.size() ? table[index] : 0; }

    // Stored row y (0: the first in the file) as a row of the picture.
    int rowOf(int64_t y) const { return static_cast<int>(h.height < 0 ? y : out.height - 1 - y); }

    void plain();
    void runs();
};

void Decoder::plain() {
    const int64_t bpp = h.bitsPerPixel;
    const int64_t stride = (h.width * bpp + 31) / 32 * 4;
    for (int64_t y = 0; y < out.height; ++y) {
        const std::size_t row = static_cast<std::size_t>(h.pixelsAt + y * stride);
        uint32_t* dst = &out.px[static_cast<std::size_t>(rowOf(y)) * out.width];
        for (int64_t x = 0; x < out.width; ++x) {
            const std::size_t bit = static_cast<std::size_t>(x * bpp);
            const uint8_t* p = &file[row + bit / 8];
            uint32_t c = 0;
            switch (bpp) {
            case 1:
            case 4:
            case 8:
                c = colourOf((p[0] >> (8 - bpp - bit % 8)) & ((1u << bpp) - 1));
                break;
            case 24:
                c = packed(p[2], p[1], p[0]);
                break;
            default: { // 16 and 32: through the masks
                const uint32_t v =
                    bpp == 16 ? (p[0] | p[1] << 8)
                              : (p[0] | p[1] << 8 | p[2] << 16 | static_cast<uint32_t>(p[3]) << 24);
                c = packed(maskedPart(v, h.masks[0]), maskedPart(v, h.masks[1]),
                           maskedPart(v, h.masks[2]));
            }
            }
            dst[x] = c;
        }
    }
}

// Runs of one value, escapes for the end of a row, of the picture, a jump, or a stretch
// of values as they stand. A pixel no run reaches takes the table's first colour; a run
// past the row's end is cut off; the reading ends with the file.
void Decoder::runs() {
    const bool nibbles = h.compression == kRuns4;
    const int64_t size = static_cast<int64_t>(file.size());
    int64_t x = 0, y = 0, at = h.pixelsAt;
    auto put = [&](int64_t px, uint32_t index) {
        if (px < out.width && y < out.height)
            out.px[static_cast<std::size_t>(rowOf(y)) * out.width + static_cast<std::size_t>(px)] =
                colourOf(index);
    };
    auto value = [&](uint8_t byte, int64_t k) -> uint32_t {
        return nibbles ? (k % 2 == 0 ? byte >> 4 : byte & 15) : byte;
    };
    while (at + 2 <= size && y < out.height) {
        const uint8_t count = file[static_cast<std::size_t>(at)];
        const uint8_t second = file[static_cast<std::size_t>(at + 1)];
        at += 2;
        if (count > 0) {
            for (int64_t k = 0; k < count; ++k)
                put(x + k, value(second, k));
            x += count;
        } else if (second == 0) {
            x = 0;
            ++y;
        } else if (second == 1) {
            break;
        } else if (second == 2) {
            if (at + 2 > size) break;
            x += file[static_cast<std::size_t>(at)];
            y += file[static_cast<std::size_t>(at + 1)];
            at += 2;
        } else {
            const int64_t bytes = nibbles ? (second + 1) / 2 : second;
            if (at + bytes > size) break;
            for (int64_t k = 0; k < second; ++k)
                put(x + k, value(file[static_cast<std::size_t>(at + (nibbles ? k / 2 : k))], k));
            x += second;
            at += bytes + bytes % 2; // each stretch fills whole words
        }
    }
}

} // namespace

BmpHeader readBmpHeader(std::span<const uint8_t> file) {
    if (file.size() < 26 || file[0] != 'B' || file[1] != 'M') invalid();
    BmpHeader h;
    h.pixelsAt = u32(file, 10);
    const int64_t headerSize = u32(file, 14);
    int64_t colours = 0;
    if (headerSize == 12) { // OS/2
        h.width = u16(file, 18);
        h.height = u16(file, 20);
        h.bitsPerPixel = static_cast<int>(u16(file, 24));
        h.tableEntryBytes = 3;
    } else if (headerSize >= 40) {
        h.width = static_cast<int32_t>(u32(file, 18));
        h.height = static_cast<int32_t>(u32(file, 22));
        h.bitsPerPixel = static_cast<int>(u16(file, 28));
        h.compression = u32(file, 30);
        colours = u32(file, 46);
    } else {
        invalid();
    }
    h.tableAt = 14 + headerSize;
    const int bpp = h.bitsPerPixel;
    if (h.compression == kMasksWithAlpha) h.compression = kMasks; // alpha isn't shown
    if (h.compression == kMasks) {
        if (bpp != 16 && bpp != 32) invalid();
        for (int k = 0; k < 3; ++k)
            h.masks[k] = u32(file, 54 + 4 * k);
        // A short header is followed by the masks instead of holding them.
        if (headerSize == 40) h.tableAt += u32(file, 30) == kMasksWithAlpha ? 16 : 12;
    } else if (h.compression == kPlain) {
        if (bpp == 16) h.masks[0] = 0x7C00, h.masks[1] = 0x03E0, h.masks[2] = 0x001F;
        if (bpp == 32) h.masks[0] = 0xFF0000, h.masks[1] = 0xFF00, h.masks[2] = 0xFF;
        if (bpp != 1 && bpp != 4 && bpp != 8 && bpp != 16 && bpp != 24 && bpp != 32) invalid();
    } else if (!(h.compression == kRuns8 && bpp == 8) && !(h.compression == kRuns4 && bpp == 4)) {
        invalid();
    }
    if (bpp <= 8) {
        const int64_t most = int64_t{1} << bpp;
        h.tableColours = colours == 0 || colours > most ? most : colours;
        // Some writers keep only the colours they use, and start the rows behind them.
        if (h.pixelsAt > h.tableAt)
            h.tableColours = std::min(h.tableColours, (h.pixelsAt - h.tableAt) / h.tableEntryBytes);
    }
    const bool runs = h.compression == kRuns8 || h.compression == kRuns4;
    if (h.width < 1 || h.height == 0 || h.height == std::numeric_limits<int32_t>::min() ||
        (runs && h.height < 0))
        invalid();
    const int64_t size = static_cast<int64_t>(file.size());
    if (h.tableAt + h.tableColours * h.tableEntryBytes > size || h.pixelsAt >= size) invalid();
    return h;
}

Raster decodeBmp(std::span<const uint8_t> file) {
    const BmpHeader h = readBmpHeader(file);
    const int64_t rows = h.height < 0 ? -h.height : h.height;
    const bool runs = h.compression == kRuns8 || h.compression == kRuns4;
    if (!runs) { // every row must be in the file, the last one's padding excepted
        const int64_t stride = (h.width * h.bitsPerPixel + 31) / 32 * 4;
        const int64_t rowBytes = (h.width * h.bitsPerPixel + 7) / 8;
        const int64_t room = static_cast<int64_t>(file.size()) - h.pixelsAt;
        if (rowBytes > room || rows - 1 > (room - rowBytes) / stride) invalid();
    }
    Decoder d(file, h);
    d.out = Raster(static_cast<int>(h.width), static_cast<int>(rows), d.colourOf(0));
    if (runs)
        d.runs();
    else
        d.plain();
    return std::move(d.out);
}

} // namespace platform
