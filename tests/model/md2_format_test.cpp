// What the editor reads of an MD2 model, as functions of its bytes.
#include "model/md2_format.h"

#include <gtest/gtest.h>

#include <cstring>

namespace tavrin {
namespace {

using Bytes = std::vector<uint8_t>;

void put32(Bytes& b, std::size_t at, int32_t v) { std::memcpy(&b[at], &v, 4); }
void put16(Bytes& b, std::size_t at, int16_t v) { std::memcpy(&b[at], &v, 2); }

TEST(Md2Format, HeaderFieldsAndAFileThatEndsInsideThem) {
    Bytes b(56, 0);
    const int32_t fields[] = {0x32504449, 8, 64, 48, 3, 0, 0, 0, 0, 2, 0, 68, 100, 200};
    for (std::size_t k = 0; k < 14; ++k)
        put32(b, 4 * k, fields[k]);
    Md2Header h;
    readMd2Header(vb::ByteWindow::whole(b), h);
    EXPECT_EQ(h.ident, 0x32504449);
    EXPECT_EQ(h.skinWidth, 64);
    EXPECT_EQ(h.skinHeight, 48);
    EXPECT_EQ(h.numSt, 0);
    EXPECT_EQ(h.numTris, 0);
    EXPECT_EQ(h.ofsSkins, 68);
    EXPECT_EQ(h.ofsSt, 100);
    EXPECT_EQ(h.ofsTris, 200);
    // Fields whose four bytes aren't all there keep what the last model left in them.
    Md2Header old{1, 2, 3, 4, 5, 6, 7, 8};
    b.resize(15);
    readMd2Header(vb::ByteWindow::whole(b), old);
    EXPECT_EQ(old.ident, 0x32504449);
    EXPECT_EQ(old.skinWidth, 64);
    EXPECT_EQ(old.skinHeight, 3);
    EXPECT_EQ(old.ofsTris, 8);
}

TEST(Md2Format, LumpsFillTheTablesUntilTheyRunOut) {
    Bytes b(40, 0);
    put16(b, 10, 29); // record 0's S at offset 10
    put16(b, 12, 7);
    put16(b, 14, -3); // record 1's S; its T lies past the end of the file
    Md2Header h;
    h.ofsSt = 10;
    h.numSt = 3;
    vb::Array<UVRecord> uv(0, kMd2LastRecord);
    uv(1).T = 99;
    readMd2St(vb::ByteWindow::whole(Bytes(b.begin(), b.begin() + 16)), h, uv);
    EXPECT_EQ(uv(0).S, 29);
    EXPECT_EQ(uv(0).T, 7);
    EXPECT_EQ(uv(1).S, -3);
    EXPECT_EQ(uv(1).T, 99);

    // Counts beyond the tables: the loop fails one past the last record, the rest written.
    Md2Header many;
    many.numTris = 1 << 30;
    EXPECT_EQ(md2RecordsVisited(many.numTris), kMd2LastRecord + 2);
    EXPECT_EQ(md2TrisPositions(many).last, 12 * (kMd2LastRecord + 2));
    Bytes tris(12 * (kMd2LastRecord + 2), 0);
    put16(tris, 12 * kMd2LastRecord + 6, 41);
    vb::Array<TriRecord> t(0, kMd2LastRecord);
    EXPECT_THROW(readMd2Tris(vb::ByteWindow::whole(tris), many, t), vb::Error);
    EXPECT_EQ(t(kMd2LastRecord).A, 41);
    // A negative offset reads before the file; one past 32 bits overflows.
    many.numTris = 1;
    many.ofsTris = -20;
    EXPECT_THROW(readMd2Tris(vb::ByteWindow::whole(tris), many, t), vb::Error);
    many.ofsTris = 0x7FFFFFF8;
    EXPECT_THROW(readMd2Tris(vb::ByteWindow::whole(tris), many, t), vb::Error);
}

} // namespace
} // namespace tavrin
