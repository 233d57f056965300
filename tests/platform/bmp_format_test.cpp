// The bitmap reader of the headless host: every kind of bitmap it takes, written by the
// test, and the files it refuses.
#include "platform/bmp_format.h"
#include "platform/vb_error.h"
#include "support/bmp_writer.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

using Pixels = std::vector<uint32_t>;

const Pixels kTable = {packed(10, 20, 30), packed(200, 0, 0), packed(0, 200, 0), packed(0, 0, 200)};

int errorOf(const Bytes& file) {
    try {
        platform::decodeBmp(file);
    } catch (const vb::Error& e) {
        return e.number();
    }
    return 0;
}

// 3 x 2 pixels: odd widths leave padding at the end of every row.
TEST(BmpFormat, EveryUncompressedKindGivesItsColoursRowByRowFromTheTop) {
    const Pixels indices = {0, 1, 0, 1, 1, 0}, indices4 = {0, 1, 2, 3, 2, 1};
    auto fromTable = [](const Pixels& idx) {
        Pixels out;
        for (uint32_t i : idx)
            out.push_back(kTable[i]);
        return out;
    };
    const struct {
        const char* name;
        BmpSpec spec;
        Pixels expected;
    } cases[] = {
        {"1 bit",
         {3, 2, 1, false, false, false, {}, {kTable[0], kTable[1]}, indices},
         fromTable(indices)},
        {"4 bits", {3, 2, 4, false, false, false, {}, kTable, indices4}, fromTable(indices4)},
        {"8 bits", {3, 2, 8, false, false, false, {}, kTable, indices4}, fromTable(indices4)},
        {"8 bits, top down",
         {3, 2, 8, true, false, false, {}, kTable, indices4},
         fromTable(indices4)},
        {"8 bits, OS/2", {3, 2, 8, false, true, false, {}, kTable, indices4}, fromTable(indices4)},
        {"24 bits",
         {3, 2, 24, false, false, false, {}, {}, {1, 2, 3, 0xFFFFFF, 0x800000, 0}},
         {1, 2, 3, 0xFFFFFF, 0x800000, 0}},
        // Stored as 0xAARRGGBB: the top byte is not shown.
        {"32 bits",
         {3, 2, 32, false, false, false, {}, {}, {0xFF102030, 0x00FF0000, 0, 1, 2, 3}},
         {packed(0x10, 0x20, 0x30), packed(255, 0, 0), 0, packed(0, 0, 1), packed(0, 0, 2),
          packed(0, 0, 3)}},
        // Five bits a part: 31 is full, 16 is 132 of 255.
        {"16 bits",
         {3, 2, 16, false, false, false, {}, {}, {0x7C00, 0x03E0, 0x001F, 0x4000, 0x8000, 0}},
         {packed(255, 0, 0), packed(0, 255, 0), packed(0, 0, 255), packed(132, 0, 0), 0, 0}},
        {"16 bits, 5-6-5 masks",
         {3,
          2,
          16,
          false,
          false,
          true,
          {0xF800, 0x07E0, 0x001F},
          {},
          {0xF800, 0x07E0, 0x0400, 0xFFFF, 0x0001, 0}},
         {packed(255, 0, 0), packed(0, 255, 0), packed(0, 130, 0), packed(255, 255, 255),
          packed(0, 0, 8), 0}},
        {"32 bits, masks in another order",
         {3, 2, 32, true, false, true, {0xFF, 0xFF00, 0xFF0000}, {}, {0x112233, 0xFF, 0, 0, 0, 0}},
         {0x112233, packed(255, 0, 0), 0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        const platform::Raster r = platform::decodeBmp(writeBmp(c.spec));
        EXPECT_EQ(r.width, 3) << c.name;
        EXPECT_EQ(r.height, 2) << c.name;
        EXPECT_EQ(r.px, c.expected) << c.name;
    }
}

// A 4 x 3 picture in runs: stored from the bottom row up. Pixels no run reaches take the
// table's first colour; what runs past the row's end is cut off.
TEST(BmpFormat, RunsOfBytesAndOfNibblesWithTheirEscapes) {
    auto file = [](int bits, const Bytes& runs) {
        BmpSpec spec{4, 3, bits, false, false, false, {}, {}, {}};
        for (int k = 0; k < 16; ++k)
            spec.table.push_back(static_cast<uint32_t>(k * 0x010101));
        spec.pixels.assign(12, 0);
        Bytes out = writeBmp(spec);
        out.resize(out.size() - static_cast<std::size_t>(3 * ((4 * bits + 31) / 32 * 4)));
        out[30] = bits == 8 ? 1 : 2; // the compression
        out.insert(out.end(), runs.begin(), runs.end());
        return out;
    };
    auto grey = [](int k) { return static_cast<uint32_t>(k * 0x010101); };
    // Bottom row: a run of two 5s, then three values as they stand (the last cut off);
    // a jump of 2 across and 1 up skips the middle row; one 7; the end.
    const Bytes runs8 = {2, 5, 0, 3, 9, 10, 11, 0, 0, 0, 0, 2, 2, 1, 1, 7, 0, 1};
    // Bottom row: 1, 2, 1 from one byte, then 3 from a stretch of five nibbles (cut off).
    const Bytes runs4 = {3, 0x12, 0, 5, 0x34, 0x56, 0x70, 0, 0, 0, 0, 2, 2, 1, 1, 0x77, 0, 1};
    const struct {
        int bits;
        Bytes runs;
        Pixels expected;
    } cases[] = {
        {8,
         runs8,
         {grey(0), grey(0), grey(7), grey(0), 0, 0, 0, 0, grey(5), grey(5), grey(9), grey(10)}},
        {4,
         runs4,
         {grey(0), grey(0), grey(7), grey(0), 0, 0, 0, 0, grey(1), grey(2), grey(1), grey(3)}},
    };
    for (const auto& c : cases) {
        const platform::Raster r = platform::decodeBmp(file(c.bits, c.runs));
        EXPECT_EQ(r.px, c.expected) << c.bits;
        // Cut anywhere, the runs still give a picture.
        const Bytes whole = file(c.bits, c.runs);
        for (std::size_t cut = 1; cut < c.runs.size(); ++cut)
            EXPECT_EQ(errorOf(Bytes(whole.begin(), whole.end() - static_cast<long>(cut))), 0)
                << cut;
    }
}

TEST(BmpFormat, FilesItDoesntReadAreAnInvalidPictureAndHugeOnesCostNothing) {
    const Bytes good = writeBmp({3, 2, 8, false, false, false, {}, kTable, {0, 1, 2, 3, 2, 1}});
    auto with = [&](std::size_t at, std::initializer_list<uint8_t> bytes) {
        Bytes b = good;
        std::copy(bytes.begin(), bytes.end(), b.begin() + static_cast<long>(at));
        return b;
    };
    const struct {
        const char* name;
        Bytes file;
        int error;
    } cases[] = {
        {"empty", {}, vb::InvalidPicture},
        {"not BM", with(0, {'P', 'K'}), vb::InvalidPicture},
        {"a header of 20 bytes", with(14, {20}), vb::InvalidPicture},
        {"2 bits a pixel", with(28, {2}), vb::InvalidPicture},
        {"no width", with(18, {0, 0, 0, 0}), vb::InvalidPicture},
        {"no height", with(22, {0, 0, 0, 0}), vb::InvalidPicture},
        {"runs of bytes at 4 bits", with(28, {4, 0, 1}), vb::InvalidPicture},
        {"runs from the top down", with(22, {0xFE, 0xFF, 0xFF, 0xFF, 1, 0, 8, 0, 1}),
         vb::InvalidPicture},
        {"JPEG inside", with(30, {4}), vb::InvalidPicture},
        {"rows past the end", Bytes(good.begin(), good.end() - 4), vb::InvalidPicture},
        {"pixels past the end", with(10, {0xFF, 0xFF}), vb::InvalidPicture},
        {"40000 x 40000 in a few bytes", with(18, {0x40, 0x9C, 0, 0, 0x40, 0x9C, 0, 0}),
         vb::InvalidPicture},
        {"runs of 30000 x 30000", with(18, {0x30, 0x75, 0, 0, 0x30, 0x75, 0, 0, 1, 0, 8, 0, 1}),
         vb::OutOfMemory},
    };
    EXPECT_EQ(errorOf(good), 0);
    for (const auto& c : cases)
        EXPECT_EQ(errorOf(c.file), c.error) << c.name;
}

} // namespace
} // namespace tavrin::test
