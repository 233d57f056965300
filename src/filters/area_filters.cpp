// The area filters: what a box dragged in "Box" mode does at the release when the filter
// word names a filter, and the two passes through Work_Buf that each filter makes. The
// arithmetic of the passes is in work_buf_kernels; here stand the order of the passes,
// the palette match and the writing of each pixel to the picture and then the grid.
#include "editor/frm_main.h"
#include "filters/pass_matcher.h"
#include "filters/work_buf_kernels.h"
#include "platform/vb_numeric.h"
#include "tools/shape_geometry.h"

#include <algorithm>
#include <cmath>
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
// on a palette colour) and the rest skipped. A box dragged far past the skin so costs
// what its part on the skin costs.
template <class Span, class RowDone>
void visitPass(const PassArea& area, const PixelRect& live, Span&& span, RowDone&& rowDone) {
    if (area.empty()) return;
    const auto settle = [&](int64_t y, int64_t x0, int64_t x1) {
        span(y, x0, std::min(x1, x0 + 2));
    };
    const int64_t top = std::max(area.y0, live.y0), bottom = std::min(area.y1, live.y1 - 1);
    if (area.y0 < top) settle(area.y0, area.x0, area.x1);
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
    if (bottom < area.y1) settle(std::max(bottom + 1, area.y0), area.x0, area.x1);
}

} // namespace

void FrmMain::workBufPasses(const PassArea& first, const PassArea& second, Kernel kernel,
                            bool match, bool refreshRows) {
    const filters::WorkPlanes work{Work_Buf.data()};
    const filters::GridCells grid = gridCells();
    const filters::PaletteColours palette =
        filters::paletteColours(Pal_Table.data(), static_cast<int64_t>(Pal_Table.size()));
    PixelRect live = paintableArea();
    live = live.unite(PixelRect{0, 0, filters::kWorkSide, filters::kWorkSide});

    filters::MatchFields f{Check_Color, std::nan(""), Near_Color, Near_Distance};
    vb::resume([&] { f.index = Color_Index.num(); });
    Channels values{}; // handed from the first pass to the second, as the filter's own locals

    const double indexBefore = f.index;
    visitPass(
        first, live,
        [&](int64_t y, int64_t x0, int64_t x1) {
            filters::copyRow(grid, palette, work, y, x0, x1, f.index, values);
        },
        [] {});

    filters::TintShare share;
    if (kernel == Kernel::Tint) {
        const Variant* channel[3] = {&Cur_R, &Cur_G, &Cur_B};
        for (std::size_t c = 0; c < 3; ++c)
            vb::resume([&] {
                const double divisor = Tint_Value.num();
                if (divisor == 0) vb::raise(vb::DivisionByZero);
                share.add[c] = channel[c]->num() / divisor;
                share.valid[c] = true;
            });
    }
    if (!matchCache_) matchCache_ = std::make_shared<MatchCache>();
    filters::PassMatcher matcher(*matchCache_, Pal_Table, f);

    std::vector<int32_t> packed, colors, values16;
    visitPass(
        second, live,
        [&](int64_t y, int64_t x0, int64_t x1) {
            const auto n = static_cast<std::size_t>(x1 - x0 + 1);
            packed.resize(n);
            colors.resize(n);
            values16.resize(n);
            filters::kernelRow(kernel, work, share, y, x0, x1, values, packed.data());
            matcher.run(packed.data(), n, match, colors.data(), values16.data());
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
            if (refreshRows) picture1.Refresh();
        });

    f = matcher.fields();
    Check_Color = f.check;
    // What changed it was a cell or a record's index, 16-bit numbers both.
    if (!std::isnan(f.index) && f.index != indexBefore) Color_Index = static_cast<int16_t>(f.index);
    Near_Color = f.nearColor;
    Near_Distance = f.nearDistance;
}

// The box comes sorted. Every filter but Tint leaves out the right column and the bottom
// row named by the corners; Blur and Emboss work out one column and row fewer still, as
// their neighbours lie beyond the pixel.
void FrmMain::filterBox(Kernel kernel) {
    try {
        const int64_t left = cornerPixel(Band_X), top = cornerPixel(Band_Y);
        const int64_t right = cornerPixel(Cur_X), bottom = cornerPixel(Cur_Y);
        const int64_t cut = kernel == Kernel::Tint ? 0 : 1;
        const PassArea first{left, top, right - cut, bottom - cut};
        const int64_t more = kernel == Kernel::Blur || kernel == Kernel::Emboss ? 1 : 0;
        const PassArea second{left, top, first.x1 - more, first.y1 - more};
        bool match = false;
        vb::resume([&] { match = Palette_Mode != 0; });
        workBufPasses(first, second, kernel, match, kernel != Kernel::Blur);
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
        // "Diffuse" filters inline here, with a pass of its own, once it is built.
    });
    Band_Old_X = -1;
    Drag_Active = 0;
}

} // namespace tavrin
