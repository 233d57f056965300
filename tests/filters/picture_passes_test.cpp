// The arithmetic of the passes that read the picture: how a read colour splits, where
// Diffuse reads for each drawn number, and the generator's skip over pixels off the skin.
#include "filters/picture_passes.h"
#include "platform/host.h"
#include "platform/scripted_host.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace tavrin::filters {
namespace {

TEST(PicturePasses, SplitColour) {
    struct Case {
        int32_t packed;
        Channels expected;
    };
    const Case cases[] = {
        {0x000000, {0, 0, 0}},
        {0x123456, {0x56, 0x34, 0x12}},
        {0xFFFFFF, {255, 255, 255}},
        {-1, {-1, -1, 255}}, // off the picture: the signed remainders
    };
    for (const Case& c : cases)
        EXPECT_EQ(splitColor(c.packed), c.expected) << c.packed;
}

TEST(PicturePasses, DiffuseSourceRoundsTheSumHalfToEven) {
    struct Case {
        int64_t at;
        float r;
        int64_t expected;
    };
    const Case cases[] = {
        {10, 0.0f, 8},
        {10, 0.125f, 8},
        {11, 0.125f, 10}, // -1.5: ties to the even one
        {10, 0.375f, 10},
        {10, 0.5f, 10},
        {10, 0.625f, 10},
        {11, 0.625f, 12},
        {10, 0.99f, 12},
        {0, 0.0f, -2},
        {1, 0.25f, 0},
        {16777217, 0.5f, 16777216}, // far out the single-precision sum loses the unit
    };
    for (const Case& c : cases)
        EXPECT_EQ(diffuseSource(c.at, c.r), c.expected) << c.at << " " << c.r;

    // Over evenly spread numbers (none on a tie) each offset of -1, 0, +1 comes a quarter
    // of the time, -2 and +2 an eighth, whatever the parity of the position.
    for (int64_t at : {20, 21}) {
        std::map<int64_t, int> seen;
        for (int k = 0; k < 1024; ++k)
            ++seen[diffuseSource(at, (static_cast<float>(k) + 0.5f) / 1024) - at];
        EXPECT_EQ(seen,
                  (std::map<int64_t, int>{{-2, 128}, {-1, 256}, {0, 256}, {1, 256}, {2, 128}}))
            << at;
    }
}

TEST(PicturePasses, DiffuseRowDrawsRowThenColumnAndRepeatsAReadOutsideWorkBuf) {
    std::vector<int16_t> cells(3 * kWorkSide * kWorkSide);
    const WorkPlanes work{cells.data()};
    for (int c = 0; c < 3; ++c) {
        work.at(c, 0, 5) = 50; // column 0, row 5
        work.at(c, 2, 3) = 23; // column 2, row 3
    }
    // The pixel at (2, 5) reads from row 5 + 0, column 2 - 2; its neighbour (3, 5) from
    // row 5 - 2, column 3 - 1; the pixel at (0, 0) from column -2: outside.
    const std::vector<float> numbers = {0.5f, 0.0f, 0.0f, 0.25f, 0.5f, 0.0f};
    std::size_t next = 0;
    const Uniform draw = [&] { return numbers.at(next++); };
    Channels values{7, 8, 9};
    int32_t out[2] = {};
    diffuseRow(work, draw, 5, 2, 3, values, out);
    EXPECT_EQ(out[0], 50 * 0x010101);
    EXPECT_EQ(out[1], 23 * 0x010101);
    int32_t edge = 0;
    diffuseRow(work, draw, 0, 0, 0, values, &edge);
    EXPECT_EQ(edge, 23 * 0x010101);
    EXPECT_EQ(next, numbers.size());
}

TEST(HostRnd, SkippingEqualsDrawing) {
    for (uint64_t n : {0ull, 1ull, 2ull, 3ull, 1000ull, (1ull << 24) + 5}) {
        platform::ScriptedHost drawn, skipped;
        for (uint64_t i = 0; i < n; ++i)
            drawn.Rnd();
        skipped.skipRnd(n);
        EXPECT_EQ(drawn.Rnd(), skipped.Rnd()) << n;
    }
    // Never seeded: every host starts the same sequence.
    platform::ScriptedHost a, b;
    EXPECT_EQ(a.Rnd(), b.Rnd());
    EXPECT_NE(a.Rnd(), a.Rnd());
}

} // namespace
} // namespace tavrin::filters
