// The area filters in the editor: held against their rules written out one statement at a
// time over random boxes (on the skin, past its edges, far off it, past Work_Buf) in both
// colour modes; then each filter chosen and dragged as the user does.
#include "filters/work_buf_kernels.h"
#include "platform/vb_numeric.h"
#include "tools/canvas_fixture.h"

#include <cstring>
#include <random>

namespace tavrin::test {
namespace {

using Filter = void (FrmMain::*)();

// 16-bit arithmetic: a result that leaves the width raises.
int16_t add16(int32_t a, int32_t b) {
    const int32_t r = a + b;
    if (r < -32768 || r > 32767) vb::raise(vb::Overflow);
    return static_cast<int16_t>(r);
}

// The filter's rules with the runtime's checks: every statement that fails is skipped.
// A pixel outside the skin has no cell, as the editor settles it.
void referenceFilter(FrmMain& f, filters::Kernel k) {
    using filters::Kernel;
    const auto skip = [](auto&& statement) { vb::resume(statement); };
    const int64_t l = vb::CLng(f.Band_X), t = vb::CLng(f.Band_Y);
    const int64_t r = vb::CLng(f.Cur_X), b = vb::CLng(f.Cur_Y);
    const int64_t cut = k == Kernel::Tint ? 0 : 1;
    const int64_t more = k == Kernel::Blur || k == Kernel::Emboss ? 1 : 0;
    const auto cell = [&f](int64_t x, int64_t y) -> int16_t& {
        if (x < 0 || y < 0 || x >= f.Skin_Width.num() || y >= f.Skin_Height.num())
            vb::raise(vb::SubscriptOutOfRange);
        return f.Skin_Grid(y * f.Skin_Width.num() + x);
    };
    const auto T = [&f](int c, int64_t y, int64_t x) { return f.Work_Buf(c, y, x); };
    double v[3] = {0, 0, 0};
    for (int64_t y = t; y <= b - cut; ++y)
        for (int64_t x = l; x <= r - cut; ++x) {
            skip([&] { f.Color_Index = cell(x, y); });
            skip([&] { v[0] = f.Pal_Table(f.Color_Index).Red; });
            skip([&] { v[1] = f.Pal_Table(f.Color_Index).Green; });
            skip([&] { v[2] = f.Pal_Table(f.Color_Index).Blue; });
            for (int c = 0; c < 3; ++c)
                skip([&] { f.Work_Buf(c, y, x) = vb::CInt(v[c]); });
        }
    const Variant* cur[3] = {&f.Cur_R, &f.Cur_G, &f.Cur_B};
    for (int64_t y = t; y <= b - cut - more; ++y)
        for (int64_t x = l; x <= r - cut - more; ++x) {
            for (int c = 0; c < 3; ++c) {
                double& o = v[c];
                switch (k) {
                case Kernel::Sharpen:
                    skip([&] { o = T(c, y, x) + 0.5 * (T(c, y, x) - T(c, y - 1, x - 1)); });
                    o = o > 255 ? 255 : o < 0 ? 0 : o;
                    break;
                case Kernel::Lighten:
                    skip([&] { o = std::min(255.0, T(c, y, x) + double{255.0f / 20}); });
                    break;
                case Kernel::Blur:
                    skip([&] {
                        int16_t sum = 0;
                        for (int64_t dy = -1; dy <= 1; ++dy)
                            for (int64_t dx = -1; dx <= 1; ++dx)
                                sum = add16(sum, T(c, y + dy, x + dx));
                        o = sum;
                    });
                    break;
                case Kernel::Emboss:
                    skip([&] {
                        const int16_t d = add16(add16(T(c, y, x), -T(c, y + 1, x + 1)), 128);
                        o = add16(0, std::abs(d));
                    });
                    break;
                case Kernel::Tint:
                    skip([&] {
                        if (f.Tint_Value == 0) vb::raise(vb::DivisionByZero);
                        o = std::min(255.0, T(c, y, x) + cur[c]->num() / f.Tint_Value.num());
                    });
                    break;
                case Kernel::Diffuse: // reads the picture, not the grid: a model of its own
                    break;
                }
            }
            const double d = k == Kernel::Blur ? 9 : 1;
            skip([&] {
                f.Check_Color = vb::RGB(vb::CInt(v[0] / d), vb::CInt(v[1] / d), vb::CInt(v[2] / d));
            });
            if (f.Palette_Mode != 0) skip([&] { f.Temp_Color_Check(); });
            skip([&] { f.picture1.PSet(x, y, f.Check_Color); });
            skip([&] { cell(x, y) = vb::CInt(f.Color_Index); });
        }
}

class AreaFilters : public CanvasTest {
protected:
    TempDir twinDir;
    platform::ScriptedHost twinHost{twinDir.path().string()};
    FrmMain twin{twinHost}; // the same skin, filtered by the reference

    void SetUp() override {
        CanvasTest::SetUp();
        twinDir.write("Quake2.PAL", gamePalette());
        twin.Form_Load();
        openSkin(twinHost, twin, dir.file("skin.pcx"));
    }
};

TEST_F(AreaFilters, EachFilterDoesWhatItsRulesSayOverAnyBox) {
    const std::pair<Filter, filters::Kernel> all[] = {
        {&FrmMain::Sharp_Area, filters::Kernel::Sharpen},
        {&FrmMain::Light_Area, filters::Kernel::Lighten},
        {&FrmMain::Blur_Area, filters::Kernel::Blur},
        {&FrmMain::Emboss_Area, filters::Kernel::Emboss},
        {&FrmMain::Tint_Area, filters::Kernel::Tint}};
    std::mt19937 rng(3);
    const auto any = [&rng](int64_t lo, int64_t hi) {
        return lo + static_cast<int64_t>(rng() % static_cast<unsigned>(hi - lo + 1));
    };
    // What earlier filters and brushes left in Work_Buf, alike in both; here and there
    // values no colour has, whose sums and packing fail.
    const int16_t odd[] = {-32768, -300, 32767, 300};
    for (FrmMain* f : {&frm, &twin})
        for (int c = 0; c < 3; ++c)
            for (int y = 0; y < 48; ++y)
                for (int x = 0; x < 48; ++x)
                    f->Work_Buf(c, y, x) =
                        (x + y) % 7 == 0 ? odd[(x * y + c) % 4]
                                         : static_cast<int16_t>((x * 37 + y * 11 + c * 5) % 256);
    for (int trial = 0; trial < 160; ++trial) {
        const auto [filter, kernel] = all[trial % 5];
        int64_t l = any(-6, 44), t = any(-6, 34), r = l + any(0, 14), b = t + any(0, 12);
        if (trial % 7 == 3) { // from far left of the skin, or all of it there
            l = any(-400, -10);
            r = any(l, 45);
        }
        if (trial % 11 == 5) { // across Work_Buf's last column
            l = any(1490, 1499);
            r = l + any(2, 12);
        }
        const int16_t mode = trial % 4 == 1 ? 0 : 1;
        const double tint = static_cast<double>(any(0, 5)), red = static_cast<double>(any(0, 255));
        for (FrmMain* f : {&frm, &twin}) {
            f->Band_X = l, f->Band_Y = t, f->Cur_X = r, f->Cur_Y = b;
            f->Palette_Mode = mode;
            f->Tint_Value = tint;
            f->Cur_R = red;
        }
        (frm.*filter)();
        referenceFilter(twin, kernel);
        const std::string box = std::to_string(l) + "," + std::to_string(t) + " " +
                                std::to_string(r) + "," + std::to_string(b);
        ASSERT_EQ(frm.picture1.Image()->px, twin.picture1.Image()->px) << trial << ": " << box;
        ASSERT_EQ(0, std::memcmp(frm.Skin_Grid.data(), twin.Skin_Grid.data(),
                                 frm.Skin_Grid.size() * sizeof(int16_t)))
            << trial << ": " << box;
        ASSERT_EQ(0, std::memcmp(frm.Work_Buf.data(), twin.Work_Buf.data(),
                                 3 * 1501 * 1501 * sizeof(int16_t)))
            << trial << ": " << box;
        ASSERT_EQ(frm.Check_Color, twin.Check_Color) << trial << ": " << box;
        ASSERT_EQ(frm.Color_Index.num(), twin.Color_Index.num()) << trial << ": " << box;
        ASSERT_EQ(frm.Near_Color, twin.Near_Color) << trial << ": " << box;
        ASSERT_EQ(frm.Near_Distance, twin.Near_Distance) << trial << ": " << box;
    }
}

// Each filter chosen by one of its commands and dragged from bottom right to top left:
// the band goes, the box is sorted, the filter runs as its rules say. Undo gives back the
// skin of before the drag; a click without a drag filters nothing.
TEST_F(AreaFilters, EachFilterChosenAndDraggedOnTheCanvas) {
    const std::pair<const char*, filters::Kernel> commands[] = {
        {"SSCommand40", filters::Kernel::Sharpen},
        {"SSCommand37", filters::Kernel::Lighten},
        {"blPop", filters::Kernel::Blur},
        {"Emboss", filters::Kernel::Emboss},
        {"SSCommand36", filters::Kernel::Tint}};
    pick(208);
    twin.Cur_R = frm.Cur_R, twin.Cur_G = frm.Cur_G, twin.Cur_B = frm.Cur_B;
    frm.Tint_Value = twin.Tint_Value = 2;
    for (const auto& [command, kernel] : commands) {
        openSkin(host, frm, dir.file("skin.pcx"));
        openSkin(twinHost, twin, dir.file("skin.pcx"));
        frm.find(command)->Click();
        down(24, 20);
        move(30, 25);
        move(8, 6);
        frm.Picture7_MouseUp(1, 0, 8, 6);
        EXPECT_EQ(frm.Drag_Active, 0) << command;
        EXPECT_EQ(frm.Band_Old_X, -1) << command;
        twin.Band_X = 8, twin.Band_Y = 6, twin.Cur_X = 24, twin.Cur_Y = 20;
        referenceFilter(twin, kernel);
        ASSERT_EQ(frm.picture1.Image()->px, twin.picture1.Image()->px) << command;
        ASSERT_EQ(0, std::memcmp(frm.Skin_Grid.data(), twin.Skin_Grid.data(),
                                 frm.Skin_Grid.size() * sizeof(int16_t)))
            << command;
        EXPECT_NE(grid(12, 12), skinIndex(12, 12)) << command;
        frm.Undo_Click();
        EXPECT_EQ(grid(12, 12), skinIndex(12, 12)) << command;
        EXPECT_EQ(frm.picture1.Point(12, 12), colourOf(skinIndex(12, 12))) << command;
    }
    down(10, 10);
    frm.Picture7_MouseUp(1, 0, 10, 10);
    EXPECT_EQ(grid(10, 10), skinIndex(10, 10));
}

} // namespace
} // namespace tavrin::test
