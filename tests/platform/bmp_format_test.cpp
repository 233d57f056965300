// The headless host's bitmap reader: what Qt's reader can't vouch for (parts narrower than a
// byte, pixels that runs don't reach), and the files it refuses. The kinds it shares with
// Qt's reader are checked against it in tests/qt/picture_load_test.cpp.
#include "platform/bmp_format.h"
#include "platform/vb_error.h"
#include "support/bmp_writer.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

int errorOf(const Bytes& file) {
    try {
        platform::decodeBmp(file);
    } catch (const vb::Error& e) {
        return e.number();
    }
    return 0;
}

// Parts of five and six bits stretched over the byte: 31 of 31 is 255, 16 of 31 is 132.
TEST(BmpFormat, NarrowPartsAreStretchedOverAByte) {
    BmpPlan plain{
        3, 2, 16, false, false, false, {}, {}, {0x7C00, 0x03E0, 0x001F, 0x4000, 0x8000, 0}};
    BmpPlan masked{3,  2, 16, false, false, true, {0xF800, 0x07E0, 0x001F},
                   {}, {}}; // 5, 6 and 5 bits
    masked.pixels = {0xF800, 0x07E0, 0x0400, 0xFFFF, 0x0001, 0};
    EXPECT_EQ(platform::decodeBmp(writeBmp(plain)).px,
              (vb::ZeroedVector<uint32_t>{packed(255, 0, 0), packed(0, 255, 0), packed(0, 0, 255),
                                          packed(132, 0, 0), 0, 0}));
    EXPECT_EQ(platform::decodeBmp(writeBmp(masked)).px,
              (vb::ZeroedVector<uint32_t>{packed(255, 0, 0), packed(0, 255, 0), packed(0, 130, 0),
                                          0xFFFFFF, packed(0, 0, 8), 0}));
}

// 4 x 3 pixels in runs, stored from the bottom row up: on the bottom row a run of two 5s, then
// three values as they stand (the third past the row's end), the end of the row; a jump of
// 2 across and 1 up; one 7; the end. Pixels no run reaches take the table's first colour.
TEST(BmpFormat, RunsOfBytesAndOfNibblesWithEveryEscape) {
    const struct {
        int bits;
        Bytes runs;
        uint32_t bottom[4];
    } cases[] = {
        {8, {2, 5, 0, 3, 9, 10, 11, 0, 0, 0, 0, 2, 2, 1, 1, 7, 0, 1}, {5, 5, 9, 10}},
        {4, {3, 0x12, 0, 5, 0x34, 0x56, 0x70, 0, 0, 0, 0, 2, 2, 1, 1, 0x77, 0, 1}, {1, 2, 1, 3}},
    };
    for (const auto& c : cases) {
        BmpPlan plan{4, 3, c.bits, false, false, false, {}, {}, std::vector<uint32_t>(12, 0)};
        for (uint32_t k = 0; k < 16; ++k)
            plan.table.push_back(k * 0x010101);
        Bytes file = writeBmp(plan);
        file.resize(file.size() - static_cast<std::size_t>(3 * ((4 * c.bits + 31) / 32 * 4)));
        file[30] = c.bits == 8 ? 1 : 2;
        file.insert(file.end(), c.runs.begin(), c.runs.end());
        vb::ZeroedVector<uint32_t> expected(12, 0);
        expected[2] = 7 * 0x010101;
        for (std::size_t x = 0; x < 4; ++x)
            expected[8 + x] = c.bottom[x] * 0x010101;
        EXPECT_EQ(platform::decodeBmp(file).px, expected) << c.bits;
        for (std::size_t cut = 1; cut < c.runs.size(); ++cut) // runs cut short end the picture
            EXPECT_EQ(errorOf(Bytes(file.begin(), file.end() - static_cast<long>(cut))), 0) << cut;
    }
}

TEST(BmpFormat, FilesItDoesntReadAreAnInvalidPictureAndHugeOnesCostNothing) {
    const Bytes good = writeBmp({3, 2, 8, false, false, false, {}, {0, 1}, {0, 1, 0, 1, 1, 0}});
    auto with = [&](std::size_t at, std::initializer_list<uint8_t> bytes) {
        Bytes b = good;
        std::copy(bytes.begin(), bytes.end(), b.begin() + static_cast<long>(at));
        return b;
    };
    const std::pair<Bytes, int> cases[] = {
        {{}, vb::InvalidPicture},
        {with(0, {'P', 'K'}), vb::InvalidPicture},    // not a bitmap
        {with(14, {20}), vb::InvalidPicture},         // a header of 20 bytes
        {with(28, {2}), vb::InvalidPicture},          // 2 bits a pixel
        {with(18, {0, 0, 0, 0}), vb::InvalidPicture}, // no width
        {with(28, {4, 0, 1}), vb::InvalidPicture},    // byte runs at 4 bits
        {with(22, {0xFE, 0xFF, 0xFF, 0xFF, 1, 0, 8, 0, 1}), vb::InvalidPicture}, // runs top down
        {with(30, {4}), vb::InvalidPicture},                                     // a JPEG inside
        {Bytes(good.begin(), good.end() - 4), vb::InvalidPicture},               // a row short
        {with(18, {0x40, 0x9C, 0, 0, 0x40, 0x9C, 0, 0}), vb::InvalidPicture},    // 40000 x 40000
        {with(18, {0x30, 0x75, 0, 0, 0x30, 0x75, 0, 0, 1, 0, 8, 0, 1}),
         vb::OutOfMemory}, // runs, 30000²
    };
    EXPECT_EQ(errorOf(good), 0);
    for (const auto& [file, error] : cases)
        EXPECT_EQ(errorOf(file), error) << &file - &cases[0].first;
}

} // namespace
} // namespace tavrin::test
