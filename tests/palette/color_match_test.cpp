// Temp_Color_Check: the nearest palette colour, its tie rules, the fields it leaves
// behind, and the cache of its answers, which must never differ from the plain scan.
#include "palette/color_match.h"
#include "support/test_support.h"

#include <random>

namespace tavrin::test {
namespace {

using TempColorCheck = EditorTest;

int32_t recordColour(const FrmMain& frm, int n) {
    const PalRecord& r = frm.Pal_Table(n);
    return packed(r.Red, r.Green, r.Blue);
}

void check(FrmMain& frm, int32_t colour) {
    frm.Check_Color = colour;
    frm.Temp_Color_Check();
}

// A 768-byte palette: the given colours first, then white.
Bytes smallPalette(std::initializer_list<std::array<uint8_t, 3>> colours) {
    Bytes b(768, 255);
    std::size_t k = 0;
    for (const auto& c : colours)
        for (uint8_t part : c)
            b[k++] = part;
    return b;
}

// The fields Temp_Color_Check leaves, as text.
std::string fields(const FrmMain& frm) {
    return std::to_string(frm.Check_Color) + " " + frm.Color_Index.repr() + " " +
           std::to_string(frm.Near_Color) + " " + std::to_string(frm.Near_Distance);
}

// Calls Temp_Color_Check and compares every field it touches with the plain scan
// applied to the fields as they stood.
::testing::AssertionResult sameAsPlainScan(FrmMain& frm, int32_t colour) {
    const MatchResult plain = matchColor(frm.Pal_Table, colour, frm.Near_Color);
    vb::Variant index = frm.Color_Index;
    if (plain.indexSet) index = plain.index;
    const std::string expected = std::to_string(plain.checkColor) + " " + index.repr() + " " +
                                 std::to_string(plain.nearColor) + " " +
                                 std::to_string(plain.nearDistance);
    check(frm, colour);
    if (fields(frm) == expected) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "colour " << colour << ": " << fields(frm) << " vs " << expected;
}

TEST_F(TempColorCheck, TiesGoToTheLowerRecordAndTheNearestSoFarIsLeftBehind) {
    loadPalette(smallPalette({{0, 0, 0}, {100, 0, 0}, {0, 0, 60}, {0, 60, 0}, {30, 30, 30}}));
    frm.Pal_Table(256).Blue = 7; // a colour of its own behind the palette proper

    // Black is only record 0, which takes no part: records 2 and 3 tie at 60.
    check(frm, 0);
    EXPECT_EQ(frm.Check_Color, packed(0, 0, 60));
    EXPECT_EQ(frm.Color_Index, 2);
    EXPECT_EQ(frm.Near_Distance, 60);

    // An exact hit at record 4 leaves the nearest of the records before it; one at record 1
    // leaves Near_Color alone. (The sweep below checks that cached answers leave the same.)
    frm.Near_Color = 777;
    check(frm, packed(30, 30, 30));
    EXPECT_EQ(frm.Check_Color, packed(30, 30, 30));
    EXPECT_EQ(frm.Color_Index, 4);
    EXPECT_EQ(frm.Near_Color, packed(0, 0, 60));
    EXPECT_EQ(frm.Near_Distance, 90);
    frm.Near_Color = 555;
    check(frm, packed(100, 0, 0));
    EXPECT_EQ(frm.Color_Index, 1);
    EXPECT_EQ(frm.Near_Color, 555);
    EXPECT_EQ(frm.Near_Distance, 780);

    check(frm, packed(255, 255, 7)); // record 256 takes part
    EXPECT_EQ(frm.Color_Index, 256);
}

TEST_F(TempColorCheck, MinusOneIsNearNoRecordAndGivesBackTheLastNearColour) {
    loadPalette(smallPalette({{0, 0, 0}, {100, 0, 0}, {0, 0, 60}}));
    check(frm, -1);
    EXPECT_EQ(frm.Check_Color, 0); // Near_Color as it started
    EXPECT_TRUE(frm.Color_Index.isEmpty());

    check(frm, packed(90, 0, 0));
    EXPECT_EQ(frm.Color_Index, 1);
    check(frm, -1);
    EXPECT_EQ(frm.Check_Color, packed(100, 0, 0));
    EXPECT_EQ(frm.Color_Index, 1);
    check(frm, packed(0, 0, 50));
    check(frm, -1); // not remembered from the call before
    EXPECT_EQ(frm.Check_Color, packed(0, 0, 60));
    EXPECT_EQ(frm.Color_Index, 2);
    check(frm, 0x02000000 | packed(100, 0, 0)); // palette-relative: no byte parts either
    EXPECT_EQ(frm.Check_Color, packed(0, 0, 60));
}

TEST_F(TempColorCheck, AnAllZeroTableGivesBlackWithIndexZero) {
    for (int32_t colour : {packed(18, 52, 86), 0, 0xFFFFFF}) {
        check(frm, colour);
        EXPECT_EQ(frm.Check_Color, 0);
        EXPECT_EQ(frm.Color_Index, 0);
        EXPECT_FALSE(frm.Color_Index.isEmpty());
    }
}

TEST_F(TempColorCheck, CachedAnswersEqualThePlainScanAcrossPaletteChanges) {
    auto sweep = [this] {
        for (int r = 0; r < 256; r += 15)
            for (int g = 1; g < 256; g += 17)
                for (int b = 2; b < 256; b += 19) {
                    ASSERT_TRUE(sameAsPlainScan(frm, packed(r, g, b)));
                    if ((r + g + b) % 7 == 0) {
                        ASSERT_TRUE(sameAsPlainScan(frm, -1));
                    }
                }
        for (int n = 0; n < 258; ++n)
            ASSERT_TRUE(sameAsPlainScan(frm, recordColour(frm, n)));
    };
    Bytes game = gamePalette();
    loadPalette(game);
    sweep();
    sweep(); // now from the cache

    Bytes shifted(game.begin() + 3, game.end()); // every colour one record earlier
    loadPalette(shifted, "shifted.pal");
    sweep();
    Bytes dimmer = makeBytes(90, [&](std::size_t k) { return static_cast<uint8_t>(game[k] / 2); });
    loadPalette(dimmer, "dimmer.pal"); // changes the first 31 records only
    sweep();
    sweep();
}

// The fast matcher against the plain scan on tables a file could give: repeated colours
// (ties), channels above 255, records whose index isn't their number, and colours that
// aren't bytes at all.
TEST(MatchCache, AnswersAsThePlainScanOnAnyTable) {
    std::mt19937 rng(11);
    vb::Array<PalRecord> table(0, 900);
    for (int round = 0; round < 40; ++round) {
        const int shades = 1 + static_cast<int>(rng() % 64); // few shades: many ties
        for (int n = 0; n <= 257; ++n) {
            PalRecord& r = table(n);
            r.Red = static_cast<int32_t>(rng() % shades) * 4;
            r.Green = static_cast<int32_t>(rng() % shades) * 4;
            r.Blue = static_cast<int32_t>(rng() % (round % 5 == 0 ? 400 : 256));
            r.Index = static_cast<int16_t>(round % 3 == 0 ? rng() % 300 : n);
        }
        MatchCache cache;
        for (int k = 0; k < 3000; ++k) {
            int32_t colour = static_cast<int32_t>(rng() & 0xFFFFFF);
            if (k % 3 == 0) { // a colour of the table, exactly
                const PalRecord& r = table(1 + static_cast<int>(rng() % 256));
                colour = vb::RGB(r.Red, r.Green, r.Blue);
            }
            if (k % 97 == 0) colour = -1 - static_cast<int32_t>(rng() % 5);
            if (k % 89 == 0) colour = 0x1000000 + static_cast<int32_t>(rng() % 999);
            const int32_t near = static_cast<int32_t>(rng());
            const MatchResult fast = cache.match(table, colour, near);
            const MatchResult plain = matchColor(table, colour, near);
            ASSERT_EQ(fast.checkColor, plain.checkColor) << round << " " << colour;
            ASSERT_EQ(fast.indexSet, plain.indexSet);
            ASSERT_EQ(fast.index, plain.index);
            ASSERT_EQ(fast.nearSet, plain.nearSet);
            if (plain.nearSet) {
                ASSERT_EQ(fast.nearColor, plain.nearColor);
            }
            ASSERT_EQ(fast.nearDistance, plain.nearDistance);
        }
    }
}

} // namespace
} // namespace tavrin::test
