// The raw palette format as a function of bytes: where a pass reads, where the loop
// stops, and what a byte past the end leaves.
#include "palette/palette_format.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Bytes = std::vector<uint8_t>;

std::vector<Rgb> read(const Bytes& b, int64_t first = 1) {
    return readRawPalette(vb::ByteWindow::whole(b), first);
}

TEST(RawPalette, PassesEndAfterTheBlueByteRunsPastTheEnd) {
    // A whole number of colours gets one pass more, which repeats the last colour.
    EXPECT_EQ(read({1, 2, 3, 4, 5, 6}), (std::vector<Rgb>{{1, 2, 3}, {4, 5, 6}, {4, 5, 6}}));
    // A colour cut short keeps the bytes of the one before it where its own are missing.
    EXPECT_EQ(read({1, 2, 3, 4, 5, 6, 7}), (std::vector<Rgb>{{1, 2, 3}, {4, 5, 6}, {7, 5, 6}}));
    EXPECT_EQ(read({1, 2, 3, 4, 5}, 3), (std::vector<Rgb>{{3, 4, 5}, {3, 4, 5}}));
    // An empty file is at its end before the first pass; a start past the end gives one.
    EXPECT_TRUE(read({}).empty());
    EXPECT_EQ(read({9}, 5), (std::vector<Rgb>{{0, 0, 0}}));
}

TEST(RawPalette, AtMost259ColoursAndNoStartBeforeTheFile) {
    Bytes big(3000);
    for (std::size_t k = 0; k < big.size(); ++k)
        big[k] = static_cast<uint8_t>(k);
    const std::vector<Rgb> colors = read(big, 4);
    ASSERT_EQ(colors.size(), 259u);
    EXPECT_EQ(colors[258],
              (Rgb{static_cast<uint8_t>(3 + 3 * 258), static_cast<uint8_t>(4 + 3 * 258),
                   static_cast<uint8_t>(5 + 3 * 258)}));
    // The tail of a file shorter than 768 bytes starts before its first byte.
    EXPECT_THROW(read({1, 2, 3}, 0), vb::Error);
    EXPECT_THROW(read({1, 2, 3}, -764), vb::Error);
    // A window that holds only what the loop reads is enough.
    const vb::ByteWindow part{4, 3000, std::span(big).subspan(3, 3 * 259)};
    EXPECT_EQ(readRawPalette(part, 4), colors);
}

} // namespace
} // namespace tavrin
