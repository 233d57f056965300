// The filters' arithmetic on its own: the worked numbers of each kernel, what a pixel
// whose neighbours lie outside Work_Buf repeats, the packing, and the first pass.
#include "filters/work_buf_kernels.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavrin::filters {
namespace {

struct Planes {
    std::vector<int16_t> cells = std::vector<int16_t>(3 * kWorkSide * kWorkSide);
    WorkPlanes work{cells.data()};
    void set(int64_t x, int64_t y, int16_t v) {
        for (int c = 0; c < 3; ++c)
            work.at(c, x, y) = v;
    }
};

// One pixel worked out from its value and its neighbour's, the grey result read back.
TEST(WorkBufKernels, WorkedNumbers) {
    struct Case {
        const char* name;
        Kernel kernel;
        int16_t pixel, neighbour;
        double share; // tint
        int expected;
    };
    const Case cases[] = {
        {"sharpen up", Kernel::Sharpen, 100, 90, 0, 105},
        {"sharpen half rounds to even", Kernel::Sharpen, 101, 100, 0, 102},
        {"sharpen below 0", Kernel::Sharpen, 10, 200, 0, 0},
        {"sharpen above 255", Kernel::Sharpen, 250, 0, 0, 255},
        {"lighten 0", Kernel::Lighten, 0, 0, 0, 13},
        {"lighten 242", Kernel::Lighten, 242, 0, 0, 255},
        {"lighten 243", Kernel::Lighten, 243, 0, 0, 255},
        {"emboss equal", Kernel::Emboss, 77, 77, 0, 128},
        {"emboss 255 beside 0 packs as 255", Kernel::Emboss, 255, 0, 0, 255},
        {"emboss 0 beside 255", Kernel::Emboss, 0, 255, 0, 127},
        {"tint 100 by 255 / 2", Kernel::Tint, 100, 0, 127.5, 228},
        {"tint 101 by 255 / 2", Kernel::Tint, 101, 0, 127.5, 228},
        {"tint white by 1", Kernel::Tint, 30, 0, 255, 255},
        {"blur flat", Kernel::Blur, 77, 77, 0, 77},
        {"blur one bright pixel", Kernel::Blur, 255, 0, 0, 28},
    };
    Planes p;
    for (const Case& c : cases) {
        std::fill(p.cells.begin(), p.cells.end(), int16_t{0});
        // Blur's neighbours are the eight round it, the others' the one diagonal to it.
        for (int64_t dy = -1; dy <= 1; ++dy)
            for (int64_t dx = -1; dx <= 1; ++dx)
                p.set(10 + dx, 10 + dy, c.neighbour);
        p.set(10, 10, c.pixel);
        Channels values{1, 2, 3};
        int32_t out = -2;
        const TintShare share{{c.share, c.share, c.share}, {true, true, true}};
        kernelRow(c.kernel, p.work, share, 10, 10, 10, values, &out);
        EXPECT_EQ(out, c.expected * 0x010101) << c.name;
    }
}

// Where a value the formula needs lies outside 0..1500, the pixel repeats the values of
// the pixel before: here the carried 30, 60, 90 (for Blur, sums, so over 9).
TEST(WorkBufKernels, APixelWhoseReadsFailRepeatsThePixelBefore) {
    struct Case {
        const char* name;
        Kernel kernel;
        int64_t x, y;
        int32_t expected;
    };
    const int32_t carried = 30 | 60 << 8 | 90 << 16;
    const Case cases[] = {
        {"sharpen in column 0", Kernel::Sharpen, 0, 5, carried},
        {"sharpen in row 0", Kernel::Sharpen, 5, 0, carried},
        {"lighten left of the buffer", Kernel::Lighten, -1, 5, carried},
        {"blur in column 0", Kernel::Blur, 0, 5, 3 | 7 << 8 | 10 << 16},
        {"blur in the last row", Kernel::Blur, 5, 1500, 3 | 7 << 8 | 10 << 16},
        {"emboss in the last column", Kernel::Emboss, 1500, 5, carried},
        {"tint below the buffer", Kernel::Tint, 5, 1501, carried},
    };
    Planes p;
    std::fill(p.cells.begin(), p.cells.end(), int16_t{200});
    for (const Case& c : cases) {
        Channels values{30, 60, 90};
        int32_t out = -2;
        const TintShare share{{50, 50, 50}, {true, true, true}};
        kernelRow(c.kernel, p.work, share, c.y, c.x, c.x, values, &out);
        EXPECT_EQ(out, c.expected) << c.name;
        EXPECT_EQ(values, (Channels{30, 60, 90})) << c.name;
    }
    // A tint whose share couldn't be worked out leaves that channel as it was.
    Channels values{30, 60, 90};
    int32_t out = 0;
    tintRow(p.work, TintShare{{5, 5, 5}, {true, false, true}}, 3, 3, 3, values, &out);
    EXPECT_EQ(out, 205 | 60 << 8 | 205 << 16);
}

TEST(WorkBufKernels, PackingRoundsHalfToEvenAndRefusesWhatIsNoColour) {
    EXPECT_EQ(packChannels({101.5, 102.5, 0.5}), 102 | 102 << 8 | 0 << 16);
    EXPECT_EQ(packChannels({383, 255, 256}), 0xFFFFFF); // above 255 packs as 255
    EXPECT_EQ(packChannels({10, -1, 10}), -1);
    EXPECT_EQ(packChannels({10, 10, 40000}), -1); // no 16-bit number
    EXPECT_EQ(packChannels({-0.4, 0, 0}), 0);
}

// The first pass over a 4 x 3 skin, row 1 from column -2 to 1501: the cells' records go
// into Work_Buf; left of the skin the colour of Color_Index as it stood, right of it the
// last cell's, and nothing at all past the buffer. A cell with no record (99) repeats the
// colour before it. Alike whether the records' channels fit Work_Buf or one doesn't.
TEST(WorkBufKernels, TheFirstPassCopiesTheCellsColoursAndRepeatsTheLastOutsideTheSkin) {
    for (const int32_t last : {0, 40000}) {
        std::vector<PalRecord> palette(31);
        for (int i = 0; i < 31; ++i)
            palette[static_cast<std::size_t>(i)] = PalRecord{i, 2 * i, 3 * i};
        palette[30].Red = last;
        std::vector<int16_t> cells{0, 1, 2, 3, 10, 99, 12, 13, 20, 21, 22, 23, 9};
        const GridCells grid{cells.data(), 0, 12, 4, 3};
        Planes p;
        double index = 5;
        Channels values{};
        copyRow(grid, paletteColours(palette.data(), 31), p.work, 1, -2, 1501, index, values);
        EXPECT_EQ(index, 13);
        EXPECT_EQ(values, (Channels{13, 26, 39}));
        for (const auto& [x, record] :
             {std::pair{0, 10}, {1, 10}, {2, 12}, {3, 13}, {4, 13}, {1500, 13}}) {
            EXPECT_EQ(p.work.at(0, x, 1), record) << x;
            EXPECT_EQ(p.work.at(2, x, 1), 3 * record) << x;
        }
        EXPECT_EQ(grid.cell(4, 1), -1); // position 8 lies in the array, but in the next row
        EXPECT_EQ(grid.cell(3, 2), 11);
        EXPECT_EQ(grid.cell(0, 3), -1);
    }
}

} // namespace
} // namespace tavrin::filters
