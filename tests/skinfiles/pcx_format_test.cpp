// A PCX file's layout as a function of its bytes: the size fields, the data between
// the header and the palette tail, and the header kept for the next save.
#include "skinfiles/pcx_format.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavrin {
namespace {

using Bytes = std::vector<uint8_t>;

// Files of any length: a field cut short counts as zero where its bytes end, the palette
// and the byte before it are never data, and the last cell lies 1000 past the file.
TEST(PcxLayout, SizeFieldsAndWhereTheDataLiesEvenInShortFiles) {
    Bytes full(2000, 7);
    full[8] = 0x2B, full[9] = 0x01;   // Xmax 0x012B
    full[10] = 0xFE, full[11] = 0xFF; // Ymax 0xFFFE, unsigned
    const struct {
        Bytes file;
        int64_t width, ymax, count;
    } cases[] = {
        {full, 0x012B + 1, 0xFFFE, 2000 - 128 - 769},
        {{0, 0, 0, 0, 0, 0, 0, 0, 5, 1, 9}, 256 + 5 + 1, 0, 0}, // no whole Ymax
        {Bytes(9, 3), 4, 0, 0},                                 // only Xmax's low byte
        {{}, 1, 0, 0},
        {Bytes(897, 0), 1, 0, 0},
        {Bytes(898, 0), 1, 0, 1},
    };
    for (const auto& c : cases) {
        const PcxLayout l = parsePcx(c.file);
        const int64_t size = std::ssize(c.file);
        EXPECT_EQ(l.width, c.width) << size;
        EXPECT_EQ(l.ymax, c.ymax) << size;
        EXPECT_EQ(l.cells.count, c.count) << size;
        EXPECT_EQ(l.cells.lastCell, size + 1000) << size;
        EXPECT_EQ(l.header.size(), static_cast<std::size_t>(std::min<int64_t>(size, 128)));
        if (l.cells.count > 0) {
            EXPECT_EQ(l.cells.data, c.file.data() + 128);
        }
        if (size > 0) {
            EXPECT_EQ(l.header.data(), c.file.data());
        }
    }
}

} // namespace
} // namespace tavrin
