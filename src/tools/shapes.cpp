// The drag tools, "Line" and "Box": the press keeps the start, each move with the left
// button draws the rubber band on picture1 with the XOR pen (so drawing it again takes it
// away), and the release draws the line or the rectangle, outline or filled, or a fill in
// stripes that step their colour (the gradient). "Box" with a filter word runs the filter
// instead (filters/area_filters.cpp).
#include "editor/frm_main.h"
#include "filters/work_buf_kernels.h"
#include "platform/vb_numeric.h"
#include "tools/shape_geometry.h"

#include <algorithm>
#include <vector>

namespace tavrin {

using platform::PixelRect;

namespace {

constexpr int32_t kWhite = 0xFFFFFF;

// Color_Index as a grid cell takes it; none for what isn't a 16-bit number.
bool gridValue(const Variant& index, int16_t& value) {
    try {
        value = vb::CInt(index.num());
        return true;
    } catch (const vb::Error&) {
        return false;
    }
}

} // namespace

// Runs in the mouse move, where any failure ends the event.
void FrmMain::rubberBand() {
    Drag_Active = 1;
    convertBandStart();
    picture1.DrawMode = platform::kXorPen;
    const int kind = Tool_Mode == "Line" ? platform::kLineKind : platform::kBoxKind;
    if (Band_Old_X != -1) picture1.Line(Band_X, Band_Y, Band_Old_X, Band_Old_Y, kWhite, kind);
    picture1.Line(Band_X, Band_Y, Cur_X, Cur_Y, kWhite, kind);
    repaintCanvas();
    Band_Old_X = Cur_X;
    Band_Old_Y = Cur_Y;
    picture1.DrawMode = platform::kCopyPen;
}

// The band goes first; the line then takes Paint_Color on picture1 as it is, not
// palette-relative. Each point's grid cell is the pixel its PSet hits.
void FrmMain::finishLine() {
    vb::resume([&] { picture1.DrawMode = platform::kXorPen; });
    vb::resume([&] { picture1.Line(Band_X, Band_Y, Cur_X, Cur_Y, kWhite, platform::kLineKind); });
    vb::resume([&] { picture1.DrawMode = platform::kCopyPen; });
    vb::resume([&] {
        const filters::GridCells grid = gridCells();
        int16_t value = 0;
        const bool storable = gridValue(Color_Index, value);
        walkLine(Band_X, Band_Y, Cur_X, Cur_Y, paintableArea(), [&](double x, double y) {
            vb::resume([&] { picture1.PSet(x, y, Paint_Color); });
            vb::resume([&] {
                const int64_t c = grid.cell(cornerPixel(x), cornerPixel(y));
                if (storable && c >= 0) grid.cells[c] = value;
            });
        });
    });
    endShape();
}

// Sorted corners, the colour snapped once more, the outline or the fill. The band isn't
// taken away first: the shape covers it.
void FrmMain::finishRectangle() {
    vb::resume([&] {
        if (Band_X > Cur_X) std::swap(Band_X, Cur_X);
    });
    vb::resume([&] {
        if (Band_Y > Cur_Y) std::swap(Band_Y, Cur_Y);
    });
    vb::resume([&] { Check_Color = Paint_Color; });
    vb::resume([&] { Temp_Color_Check(); });
    vb::resume([&] { Paint_Color = Check_Color; });
    vb::resume([&] {
        if (Fill_Rect)
            fillRectangle();
        else
            outlineRectangle();
    });
    endShape();
}

// ri_Click yields before the drag is over: an event that comes in then finds it active.
void FrmMain::endShape() {
    vb::resume([&] { ri_Click(); });
    Band_Old_X = -1;
    Drag_Active = 0;
}

// Top row, bottom row, left column, right column, each pixel in palette-relative
// Paint_Color and then its cell; the corners are set twice.
void FrmMain::outlineRectangle() {
    const int64_t left = cornerPixel(Band_X), top = cornerPixel(Band_Y);
    const int64_t right = cornerPixel(Cur_X), bottom = cornerPixel(Cur_Y);
    const PixelRect area = paintableArea();
    const filters::GridCells grid = gridCells();
    int16_t value = 0;
    const bool storable = gridValue(Color_Index, value);
    const int32_t color = Pal_Relative(Paint_Color);
    const auto store = [&](int64_t x, int64_t y) {
        const int64_t c = grid.cell(x, y);
        if (storable && c >= 0) grid.cells[c] = value;
    };
    const int64_t x0 = std::max(left, area.x0), x1 = std::min(right, area.x1 - 1);
    std::vector<int32_t> row(static_cast<std::size_t>(std::max<int64_t>(0, x1 - x0 + 1)), color);
    for (const int64_t y : {top, bottom}) {
        if (y < area.y0 || y >= area.y1 || row.empty()) continue;
        setPictureRow(x0, y, row.data(), static_cast<int64_t>(row.size()));
        for (int64_t x = x0; x <= x1; ++x)
            store(x, y);
    }
    const int64_t y0 = std::max(top, area.y0), y1 = std::min(bottom, area.y1 - 1);
    for (const int64_t x : {left, right}) {
        if (x < area.x0 || x >= area.x1) continue;
        for (int64_t y = y0; y <= y1; ++y) {
            setPictureRow(x, y, &color, 1);
            store(x, y);
        }
    }
}

// Column by column, each in one colour. With the gradient on, the colour steps after
// every B columns: each channel moves by S and falls back to Paint_Color's where it leaves
// 0..255, and the result is snapped to the palette, whose colour the next stripe starts
// from. The stripes are worked out first (there are about 16), then the pixels row by row.
void FrmMain::fillRectangle() {
    const int64_t left = cornerPixel(Band_X), top = cornerPixel(Band_Y);
    const int64_t right = cornerPixel(Cur_X), bottom = cornerPixel(Cur_Y);
    const int64_t stripe =
        gradientStripeWidth(static_cast<double>(left), static_cast<double>(right));
    const int step = Gradient_Dark != 0 ? -10 : 10;
    struct Stripe {
        int32_t color;
        bool storable;
        int16_t value;
    };
    std::vector<Stripe> stripes;
    const auto keep = [&] {
        Stripe s{Pal_Relative(Check_Color), false, 0};
        s.storable = gridValue(Color_Index, s.value);
        stripes.push_back(s);
    };
    vb::resume([&] { Check_Color = Paint_Color; });
    keep();
    // Every column ends with the counter's test, the last one too, so a gradient takes as
    // many steps as whole stripes fit; the fields keep what the last step left.
    const int64_t steps = Gradient_On != 0 ? (right - left + 1) / stripe : 0;
    for (int64_t s = 0; s < steps; ++s) {
        vb::resume([&] { Check_Color = nextStripeColor(Check_Color, Paint_Color, step); });
        vb::resume([&] { Temp_Color_Check(); });
        keep();
    }

    const PixelRect area = paintableArea();
    const int64_t x0 = std::max(left, area.x0), x1 = std::min(right, area.x1 - 1);
    const int64_t y0 = std::max(top, area.y0), y1 = std::min(bottom, area.y1 - 1);
    if (x0 > x1 || y0 > y1) return;
    std::vector<int32_t> colors;
    std::vector<const Stripe*> columns;
    for (int64_t x = x0; x <= x1; ++x) {
        const int64_t s = Gradient_On != 0 ? (x - left) / stripe : 0;
        columns.push_back(&stripes[static_cast<std::size_t>(std::min<int64_t>(s, steps))]);
        colors.push_back(columns.back()->color);
    }
    const filters::GridCells grid = gridCells();
    for (int64_t y = y0; y <= y1; ++y) {
        setPictureRow(x0, y, colors.data(), static_cast<int64_t>(colors.size()));
        for (int64_t x = x0; x <= x1; ++x) {
            const Stripe& s = *columns[static_cast<std::size_t>(x - x0)];
            const int64_t c = grid.cell(x, y);
            if (s.storable && c >= 0) grid.cells[c] = s.value;
        }
    }
}

} // namespace tavrin
