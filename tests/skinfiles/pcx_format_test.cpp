// A PCX file's layout as a function of its bytes: the size fields, the data between
// the header and the palette tail, and the header kept for the next save.
#include "skinfiles/pcx_format.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Bytes = std::vector<uint8_t>;

TEST(PcxLayout, SizeFieldsAndWhereTheDataLies) {
    Bytes file(2000, 7);
    file[8] = 0x2B; // Xmax 0x012B
    file[9] = 0x01;
    file[10] = 0xFE; // Ymax 0xFFFE, unsigned
    file[11] = 0xFF;
    const PcxLayout l = parsePcx(file);
    EXPECT_EQ(l.width, 0x012B + 1);
    EXPECT_EQ(l.ymax, 0xFFFE);
    EXPECT_EQ(l.cells.data, file.data() + 128);
    EXPECT_EQ(l.cells.count, 2000 - 128 - 769); // the palette and the byte before it aren't data
    EXPECT_EQ(l.cells.lastCell, 3000);
    EXPECT_EQ(l.header.data(), file.data());
    EXPECT_EQ(l.header.size(), 128u);
}

TEST(PcxLayout, ShortFilesGiveZeroWhereTheirBytesEnd) {
    // Ymax takes two bytes: a file of 11 bytes has none; 10 bytes still give Xmax whole.
    Bytes eleven(11, 0);
    eleven[8] = 5;
    eleven[9] = 1;
    eleven[10] = 9;
    PcxLayout l = parsePcx(eleven);
    EXPECT_EQ(l.width, 256 + 5 + 1);
    EXPECT_EQ(l.ymax, 0);
    EXPECT_EQ(l.cells.count, 0);
    EXPECT_EQ(l.cells.lastCell, 1011);
    EXPECT_EQ(l.header.size(), 11u);
    l = parsePcx(Bytes(9, 3)); // only the low byte of Xmax
    EXPECT_EQ(l.width, 4);
    EXPECT_EQ(parsePcx(Bytes{}).width, 1);
    EXPECT_EQ(parsePcx(Bytes(897, 0)).cells.count, 0);
    EXPECT_EQ(parsePcx(Bytes(898, 0)).cells.count, 1);
}

} // namespace
} // namespace tavrin
