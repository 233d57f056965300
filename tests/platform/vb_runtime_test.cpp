// The runtime's numbers, checked arrays, files by number and dynamic values: the rules
// every reader and tool leans on.
#include "platform/raster.h"
#include "platform/variant.h"
#include "platform/vb_array.h"
#include "platform/vb_error.h"
#include "platform/vb_files.h"
#include "platform/vb_memory.h"
#include "platform/vb_numeric.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using tavrin::test::Bytes;
using tavrin::test::TempDir;

// The number of the vb::Error that fn raises, or 0 if it raises none.
template <class F> int errorOf(F&& fn) {
    try {
        fn();
    } catch (const vb::Error& e) {
        return e.number();
    }
    return 0;
}

TEST(VbNumeric, ConversionsRoundHalfToEvenAndOverflowOutsideTheirRange) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    // -32768.5 rounds to even, so it still fits.
    const std::pair<double, int> ints[] = {{1.5, 2},          {2.5, 2},       {-2.5, -2},
                                           {-3.5, -4},        {2.5000001, 3}, {32767.4, 32767},
                                           {-32768.5, -32768}};
    for (auto [v, want] : ints)
        EXPECT_EQ(vb::CInt(v), want) << v;
    for (double v : {32767.5, -32769.0, nan})
        EXPECT_EQ(errorOf([v] { vb::CInt(v); }), vb::Overflow) << v;

    EXPECT_EQ(vb::CLng(1e9 + 0.5), 1000000000);
    EXPECT_EQ(vb::CLng(-2147483648.5), INT32_MIN);
    for (double v : {2147483647.5, 1e300})
        EXPECT_EQ(errorOf([v] { vb::CLng(v); }), vb::Overflow) << v;
    for (double v : {255.5, -0.6})
        EXPECT_EQ(errorOf([v] { vb::CByte(v); }), vb::Overflow) << v;

    EXPECT_EQ(vb::wrap16(32767 + 1), -32768);
    EXPECT_EQ(vb::wrap16(-32768 - 1), 32767);
    EXPECT_EQ(vb::Int(-0.5), -1);
}

TEST(VbArray, EveryAccessOutsideTheBoundsOrBeforeAllocationIsSubscriptOutOfRange) {
    vb::Array<int16_t> a;
    EXPECT_FALSE(a.allocated());
    EXPECT_EQ(errorOf([&] { a(0); }), vb::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { a.UBound(); }), vb::SubscriptOutOfRange);

    a.ReDim(-2, 5);
    a(-2) = 7;
    a(5) = 9;
    EXPECT_EQ(a.LBound(), -2);
    EXPECT_EQ(a.UBound(), 5);
    EXPECT_EQ(errorOf([&] { a(-3); }), vb::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { a(6); }), vb::SubscriptOutOfRange);
    // A floating index is rounded half to even before the check.
    EXPECT_EQ(&a(4.5), &a(4));
    EXPECT_EQ(&a(vb::Variant(-2.5)), &a(-2));
    EXPECT_EQ(errorOf([&] { a(5.5); }), vb::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { a(1e12); }), vb::Overflow);

    a.ReDim(0, 1); // anew: nothing kept
    EXPECT_EQ(a(0), 0);
    a.Erase();
    EXPECT_EQ(errorOf([&] { a(0); }), vb::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { a.ReDim(3, 2); }), vb::SubscriptOutOfRange);

    vb::Array3<int16_t> cube(3, 4, 5);
    cube(2, 3, 4) = 1;
    EXPECT_EQ(errorOf([&] { cube(3, 0, 0); }), vb::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { cube(0, -1, 0); }), vb::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { cube(0, 0, 5); }), vb::SubscriptOutOfRange);
}

// Elements start at their default whether or not it is all zero bytes, a ReDim to the
// same size clears them in place, and a copy is an array of its own.
struct Marked {
    int16_t value = 7;
    int16_t other = 0;
};

TEST(VbArray, ReDimGivesEveryElementItsDefaultAndACopyIsItsOwn) {
    vb::Array<Marked> marked(0, 4);
    vb::Array<int16_t> grid(0, 4);
    marked(4).value = 1;
    grid(4) = 1;
    const vb::Array<Marked> markedCopy = marked;
    const vb::Array<int16_t> gridCopy = grid;
    marked.ReDim(0, 4);
    grid.ReDim(0, 4);
    for (int k = 0; k <= 4; ++k) {
        EXPECT_EQ(marked(k).value, 7);
        EXPECT_EQ(grid(k), 0);
        EXPECT_EQ(markedCopy(k).value, k == 4 ? 1 : 7);
        EXPECT_EQ(gridCopy(k), k == 4 ? 1 : 0);
    }
}

TEST(VbArray, AnAllocationAbove256MegabytesIsOutOfMemoryAndAllocatesNothing) {
    EXPECT_EQ(errorOf([] { vb::checkAllocation(vb::kMaxAllocationBytes, 1); }), 0);
    EXPECT_EQ(errorOf([] { vb::checkAllocation(vb::kMaxAllocationBytes + 1, 1); }),
              vb::OutOfMemory);
    EXPECT_EQ(errorOf([] { vb::checkAllocation(std::numeric_limits<std::size_t>::max(), 8); }),
              vb::OutOfMemory);

    // Sizes a hostile header could ask for: a real attempt would end in bad_alloc.
    vb::Array<int32_t> a(0, 9);
    a(9) = 5;
    EXPECT_EQ(errorOf([&] { a.ReDim(0, int64_t{1} << 40); }), vb::OutOfMemory);
    EXPECT_EQ(a.UBound(), 9); // the old allocation stands
    EXPECT_EQ(a(9), 5);
    EXPECT_EQ(errorOf([] { vb::Array3<int16_t>(40000, 40000, 3); }), vb::OutOfMemory);
}

TEST(VbArray, ArraysAliveTogetherShareOneBudgetThatFreeingGivesBack) {
    const std::size_t before = vb::liveBytes();
    const int64_t big = static_cast<int64_t>(vb::kMaxLiveBytes / 5 * 3 / sizeof(int16_t)); // 60 %
    vb::Array<int16_t> grid(0, big), undo;
    EXPECT_EQ(errorOf([&] { undo.ReDim(0, big); }), vb::OutOfMemory); // each fits, not both
    EXPECT_FALSE(undo.allocated());
    EXPECT_EQ(errorOf([&] { platform::Raster copy(1024, 1024, 0); }), 0);
    EXPECT_EQ(errorOf([&] { vb::Array<int16_t> twin = grid; }), vb::OutOfMemory); // a copy counts
    grid.Erase();
    EXPECT_EQ(vb::liveBytes(), before);
    EXPECT_EQ(errorOf([&] { undo.ReDim(0, big); }), 0);
}

TEST(VbFiles, GetReadsAtOneBasedPositionsAndEofShowsOnlyAfterAShortRead) {
    TempDir dir;
    std::string path = dir.write("three.bin", {0x11, 0x22, 0x33});
    vb::FileTable files;
    files.OpenForRead(1, path);
    EXPECT_EQ(files.LOF(1), 3);
    EXPECT_FALSE(files.EOF_(1));

    uint8_t b = 0;
    files.Get(1, 1, b);
    EXPECT_EQ(b, 0x11);
    files.Get(1, 3, b);
    EXPECT_EQ(b, 0x33);
    EXPECT_FALSE(files.EOF_(1)); // the last byte was read, but nothing ran short yet
    files.Get(1, 4, b);
    EXPECT_EQ(b, 0x33); // unchanged
    EXPECT_TRUE(files.EOF_(1));

    int16_t word = -1; // a short read of a word is the palette reader's to check
    files.Get(1, 1, word);
    EXPECT_EQ(word, 0x2211); // low byte first
    EXPECT_FALSE(files.EOF_(1));

    Bytes tail = files.GetBytes(1, 2, 10);
    EXPECT_EQ(tail, (Bytes{0x22, 0x33}));
    EXPECT_TRUE(files.EOF_(1));

    EXPECT_EQ(errorOf([&] { files.Get(1, 0, b); }), vb::BadRecordNumber);
    EXPECT_EQ(errorOf([&] { files.OpenForRead(1, path); }), vb::FileAlreadyOpen);
    files.Close(1);
    EXPECT_EQ(errorOf([&] { files.Get(1, 1, b); }), vb::BadFileNameOrNumber);
    EXPECT_EQ(errorOf([&] { files.OpenForRead(2, dir.file("missing.bin")); }), vb::FileNotFound);
    EXPECT_EQ(errorOf([&] { files.OpenForRead(2, dir.path().string()); }), vb::FileNotFound);

    files.OpenForRead(2, dir.write("empty.bin", {}));
    EXPECT_TRUE(files.EOF_(2)); // an empty file is at its end at once
}

TEST(Variant, HoldsTheKindLastAssignedAndComparesTextsAsTexts) {
    vb::Variant unset;
    EXPECT_TRUE(unset.isEmpty());
    EXPECT_EQ(unset.num(), 0);
    EXPECT_TRUE(unset == "");
    EXPECT_TRUE(unset != "Draw");
    EXPECT_TRUE(unset == 0);

    EXPECT_EQ(vb::Variant(int64_t{1} << 40).num(), 1099511627776.0); // no 32-bit cut
    // Arithmetic widens: two 16-bit values multiply without overflow.
    vb::Variant a(int16_t{30000});
    EXPECT_EQ(a * a, 9e8);

    vb::Variant word("Draw");
    EXPECT_TRUE(word == "Draw");
    EXPECT_TRUE(word != "draw"); // tool words compare exactly
    EXPECT_TRUE(word != "Draw ");
    EXPECT_EQ(errorOf([&] { word.num(); }), vb::TypeMismatch);
    EXPECT_EQ(vb::Variant(" 12 ").num(), 12);
    EXPECT_TRUE(vb::Variant("") != 6); // an emptied answer is not Yes

    EXPECT_EQ(vb::Variant(0.1).str(), "0.1");
    EXPECT_EQ(vb::Variant(0.1f).str(), "0.1");
    EXPECT_EQ(vb::Variant(-1.5).str(), "-1.5");
    EXPECT_EQ(vb::Variant(true).num(), -1);
    EXPECT_EQ(vb::Variant(255.0).str(), "255");
}

} // namespace
