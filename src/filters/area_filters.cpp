// The area filters: what a box dragged in "Box" mode does at the release when the filter
// word names a filter, and the two passes through Work_Buf that each filter makes. The
// arithmetic of the passes is in work_buf_kernels; here stand the order of the passes,
// the palette match and the writing of each pixel to the picture and then the grid.
#include "editor/frm_main.h"
#include "filters/pass_matcher.h"
#include "filters/picture_passes.h"
#include "filters/work_buf_kernels.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace tavrin {

using filters::Channels;
using filters::Kernel;
using filters::PassArea;
using platform::PixelRect;

namespace {

// Calls span(y, x0, x1) for the pixels of `area`, in row order, that lie in `live`, and
// rowDone() after each such row. Outside `live` every read and write of a pixel falls
// outside its array, so such a pixel can only repeat what the pixel before it did to the
// fields: of each stretch of them the first three are run (by then the match has settled
// on a palette colour) and the rest skipped, skipped(rows, columns) told of each block of
// them in its turn. A box dragged far past the skin so costs what its part on the skin
// costs.
template <class Span, class RowDone, class Skipped>
void visitPass(const PassArea& area, const PixelRect& live, Span&& span, RowDone&& rowDone,
               Skipped&& skipped) {
    if (area.empty()) return;
    const auto settle = [&](int64_t y, int64_t x0, int64_t x1) {
        const int64_t to = std::min(x1, x0 + 2);
        span(y, x0, to);
        if (to < x1) skipped(1, x1 - to);
    };
    const int64_t width = area.x1 - area.x0 + 1;
    const int64_t top = std::max(area.y0, live.y0), bottom = std::min(area.y1, live.y1 - 1);
    if (area.y0 < top) {
        settle(area.y0, area.x0, area.x1);
        if (const int64_t rows = std::min(top, area.y1 + 1) - area.y0 - 1; rows > 0)
            skipped(rows, width);
    }
    const int64_t lo = std::max(area.x0, live.x0), hi = std::min(area.x1, live.x1 - 1);
    for (int64_t y = top; y <= bottom; ++y) {
        if (lo > hi) {
            settle(y, area.x0, area.x1);
            continue;
        }
        if (area.x0 < lo) settle(y, area.x0, lo - 1);
        span(y, lo, hi);
        if (hi < area.x1) settle(y, hi + 1, area.x1);
        rowDone();
    }
    if (bottom < area.y1) {
        const int64_t first = std::max(bottom + 1, area.y0);
        settle(first, area.x0, area.x1);
        if (area.y1 > first) skipped(area.y1 - first, width);
    }
}

constexpr std::size_t kSmallPass = 1024;

// The pixels of the area, each side counted up to 1024.
std::size_t area(const PassArea& a) {
    const auto side = [](int64_t from, int64_t to) {
        return static_cast<std::size_t>(std::clamp<int64_t>(to - from + 1, 0, 1024));
    };
    return side(a.x0, a.x1) * side(a.y0, a.y1);
}

} // namespace

void FrmMain::workBufPasses(const filters::PassPlan& plan) {
    const filters::WorkPlanes work{Work_Buf.data()};
    const filters::GridCells grid = gridCells();
    // Diffuse reads up to two pixels past the pixel, so that its reads fail only further
    // out.
    const int64_t reach = plan.kernel == Kernel::Diffuse ? 2 : 0;
    PixelRect live = paintableArea();
    live = live.unite(
        PixelRect{-reach, -reach, filters::kWorkSide + reach, filters::kWorkSide + reach});

    filters::MatchFields f{Check_Color, std::nan(""), Near_Color, Near_Distance};
    vb::resume([&] { f.index = Color_Index.num(); });
    Channels values{}; // handed from the first pass to the second, as the filter's own locals
    const auto nothingSkipped = [](int64_t, int64_t) {};
    const auto refreshFirst = [&] {
        if (plan.refreshFirst) picture1.Refresh();
    };

    const double indexBefore = f.index;
    if (plan.fromPicture) {
        std::vector<int32_t> read;
        std::optional<int32_t> last;
        visitPass(
            plan.first, live,
            [&](int64_t y, int64_t x0, int64_t x1) {
                const int64_t n = x1 - x0 + 1;
                read.resize(static_cast<std::size_t>(n));
                getPictureRow(x0, y, read.data(), n);
                filters::splitRow(work, y, x0, read.data(), n, values);
                last = read.back();
            },
            refreshFirst, nothingSkipped);
        if (last) Cur_Color = *last;
    } else {
        // A brush's few dozen cells read their records one by one: the palette's channels
        // laid out for whole rows would cost more than the pass.
        const auto records = static_cast<int64_t>(Pal_Table.size());
        const filters::PaletteColours palette =
            area(plan.first) <= kSmallPass ? filters::PaletteColours{Pal_Table.data(), records, {}}
                                           : filters::paletteColours(Pal_Table.data(), records);
        visitPass(
            plan.first, live,
            [&](int64_t y, int64_t x0, int64_t x1) {
                filters::copyRow(grid, palette, work, y, x0, x1, f.index, values);
            },
            refreshFirst, nothingSkipped);
    }

    filters::TintShare share;
    if (plan.kernel == Kernel::Tint) {
        const Variant* channel[3] = {&Cur_R, &Cur_G, &Cur_B};
        for (std::size_t c = 0; c < 3; ++c)
            vb::resume([&] {
                const double divisor = Tint_Value.num();
                if (divisor == 0) vb::raise(vb::DivisionByZero);
                share.add[c] = channel[c]->num() / divisor;
                share.valid[c] = true;
            });
    }
    filters::Uniform next;
    if (plan.kernel == Kernel::Diffuse) next = [this] { return static_cast<float>(host_.Rnd()); };
    // Two numbers a pixel, skipped pixels too; the generator repeats after 2^24 of them.
    const auto skipped = [&](int64_t rows, int64_t columns) {
        if (!next) return;
        constexpr uint64_t kPeriod = uint64_t{1} << 24;
        const uint64_t pixels = static_cast<uint64_t>(rows) % kPeriod *
                                (static_cast<uint64_t>(columns) % kPeriod) % kPeriod;
        host_.skipRnd(2 * pixels);
    };
    if (!matchCache_) matchCache_ = std::make_shared<MatchCache>();
    filters::PassMatcher matcher(*matchCache_, Pal_Table, f, area(plan.second));

    std::vector<int32_t> packed, colors, values16;
    visitPass(
        plan.second, live,
        [&](int64_t y, int64_t x0, int64_t x1) {
            const auto n = static_cast<std::size_t>(x1 - x0 + 1);
            packed.resize(n);
            colors.resize(n);
            values16.resize(n);
            filters::kernelRow(plan.kernel, work, share, y, x0, x1, values, packed.data(), next);
            matcher.run(packed.data(), n, plan.match, colors.data(), values16.data());
            setPictureRow(x0, y, colors.data(), static_cast<int64_t>(n));
            int64_t base = 0, from = 0, to = -1;
            if (!grid.row(y, base, from, to)) { // a width with a fraction: cell by cell
                for (std::size_t i = 0; i < n; ++i) {
                    const int64_t c = grid.cell(x0 + static_cast<int64_t>(i), y);
                    if (c >= 0 && values16[i] != filters::kNoCell)
                        grid.cells[c] = static_cast<int16_t>(values16[i]);
                }
                return;
            }
            for (int64_t x = std::max(from, x0); x <= std::min(to, x1); ++x)
                if (const int32_t v = values16[static_cast<std::size_t>(x - x0)];
                    v != filters::kNoCell)
                    grid.cells[base + x] = static_cast<int16_t>(v);
        },
        [&] {
            if (plan.refreshSecond) picture1.Refresh();
        },
        skipped);

    f = matcher.fields();
    Check_Color = f.check;
    // What changed it was a cell or a record's index, 16-bit numbers both.
    if (!std::isnan(f.index) && f.index != indexBefore) Color_Index = static_cast<int16_t>(f.index);
    Near_Color = f.nearColor;
    Near_Distance = f.nearDistance;
}

// The box comes sorted. Every filter but Tint leaves out the right column and the bottom
// row named by the corners; Blur and Emboss work out one column and row fewer still, as
// their neighbours lie beyond the pixel. Diffuse scatters the picture's colours, not the
// grid's.
void FrmMain::filterBox(Kernel kernel) {
    try {
        const int64_t left = vb::cornerPixel(Band_X), top = vb::cornerPixel(Band_Y);
        const int64_t right = vb::cornerPixel(Cur_X), bottom = vb::cornerPixel(Cur_Y);
        const int64_t cut = kernel == Kernel::Tint ? 0 : 1;
        const PassArea first{left, top, right - cut, bottom - cut};
        const int64_t more = kernel == Kernel::Blur || kernel == Kernel::Emboss ? 1 : 0;
        const PassArea second{left, top, first.x1 - more, first.y1 - more};
        filters::PassPlan plan{first, second, kernel};
        vb::resume([&] { plan.match = Palette_Mode != 0; });
        const bool diffuse = kernel == Kernel::Diffuse;
        plan.fromPicture = diffuse;
        plan.refreshFirst = diffuse;
        plan.refreshSecond = !diffuse && kernel != Kernel::Blur;
        workBufPasses(plan);
    } catch (const vb::Error&) {
        // A corner that is no number: the loops don't run.
    }
    vb::resume([&] { repaintCanvas(); });
}

void FrmMain::Sharp_Area() { filterBox(Kernel::Sharpen); }
void FrmMain::Light_Area() { filterBox(Kernel::Lighten); }
void FrmMain::Blur_Area() { filterBox(Kernel::Blur); }
void FrmMain::Emboss_Area() { filterBox(Kernel::Emboss); }
void FrmMain::Tint_Area() { filterBox(Kernel::Tint); }

// The whole skin but its one-pixel border, at once, from the picture's colours; no undo
// snapshot, and the tool stays as it was. A skin larger than Work_Buf is lightened as far
// as Work_Buf reaches: the rest stays as it is rather than taking the colour of the pixel
// before it.
void FrmMain::Lightt_Click() {
    vb::resume([&] {
        // For x from 0 to Skin_Cols - 1: the last x is the whole number at or below it.
        const double cols = std::floor(Skin_Cols.num()), rows = Skin_Rows;
        const auto within = [](double last) -> int64_t {
            if (!(last >= 0)) return -1; // NaN too
            return static_cast<int64_t>(std::min(last, double{filters::kWorkSide - 1}));
        };
        filters::PassPlan plan{PassArea{0, 0, within(cols - 1), within(rows - 1)},
                               PassArea{1, 1, within(cols - 2), within(rows - 2)}, Kernel::Lighten};
        vb::resume([&] { plan.match = Palette_Mode != 0; });
        plan.fromPicture = true;
        plan.refreshSecond = true;
        workBufPasses(plan);
    });
    vb::resume([&] { repaintCanvas(); });
}

// The release of a box drag with a filter chosen: the band taken away (the last one
// drawn has these corners), the corners sorted, the filter run. Every statement is
// guarded on its own, as in the rest of the release.
void FrmMain::runBoxFilter() {
    vb::resume([&] { picture1.DrawMode = platform::kXorPen; });
    vb::resume([&] { picture1.Line(Band_X, Band_Y, Cur_X, Cur_Y, 0xFFFFFF, platform::kBoxKind); });
    vb::resume([&] { picture1.DrawMode = platform::kCopyPen; });
    vb::resume([&] {
        if (Band_X > Cur_X) std::swap(Band_X, Cur_X);
    });
    vb::resume([&] {
        if (Band_Y > Cur_Y) std::swap(Band_Y, Cur_Y);
    });
    vb::resume([&] {
        if (Filter_Mode == "Sharp")
            Sharp_Area();
        else if (Filter_Mode == "Light")
            Light_Area();
        else if (Filter_Mode == "Emboss")
            Emboss_Area();
        else if (Filter_Mode == "BlurA")
            Blur_Area();
        else if (Filter_Mode == "Tint")
            Tint_Area();
        else if (Filter_Mode == "Diffuse")
            filterBox(Kernel::Diffuse); // no procedure of its own
    });
    Band_Old_X = -1;
    Drag_Active = 0;
}

} // namespace tavrin
