// What the shapes and the filters share: where their writes can land, the grid as they
// address it, and a row of pixels set on picture1 at once.
#include "editor/frm_main.h"
#include "filters/work_buf_kernels.h"

#include <algorithm>
#include <cmath>

namespace tavrin {

namespace {

// How many whole pixels from 0 lie below a Variant extent: none for a text or a negative.
int64_t pixelsBelow(const Variant& extent) {
    double e = 0;
    vb::resume([&] { e = extent.num(); });
    constexpr double kFar = 4503599627370496.0;
    return e > 0 ? static_cast<int64_t>(std::ceil(std::min(e, kFar))) : 0;
}

} // namespace

platform::PixelRect FrmMain::paintableArea() const {
    int64_t w = picture1.innerWidth(), h = picture1.innerHeight();
    if (!picture1.pixelScale()) {
        // A unit of another size: the pixel that PSet rounds to may lie past the extent.
        w = static_cast<int64_t>(std::ceil(picture1.ScaleWidth)) + 2;
        h = static_cast<int64_t>(std::ceil(picture1.ScaleHeight)) + 2;
    }
    const platform::PixelRect picture{0, 0, w, h};
    return picture.unite(
        platform::PixelRect{0, 0, pixelsBelow(Skin_Width), pixelsBelow(Skin_Height)});
}

filters::GridCells FrmMain::gridCells() {
    filters::GridCells g;
    if (!Skin_Grid.allocated()) return g;
    g.cells = Skin_Grid.data();
    g.lower = Skin_Grid.LBound();
    g.upper = Skin_Grid.UBound();
    vb::resume([&] { g.width = Skin_Width.num(); });
    vb::resume([&] { g.height = Skin_Height.num(); });
    return g;
}

void FrmMain::getPictureRow(int64_t x, int64_t y, int32_t* colors, int64_t count) const {
    if (!picture1.pixelScale()) {
        for (int64_t i = 0; i < count; ++i) {
            colors[i] = -1; // a position past the runtime's range reads as off the picture
            vb::resume([&] {
                colors[i] = picture1.Point(static_cast<double>(x + i), static_cast<double>(y));
            });
        }
        return;
    }
    std::fill_n(colors, count, -1);
    const platform::PixelRect row = platform::PixelRect{x, y, x + count, y + 1}.intersect(
        platform::PixelRect{0, 0, picture1.innerWidth(), picture1.innerHeight()});
    if (row.empty()) return;
    // Held only while it is read: a handle kept past the next write would cost a copy.
    const platform::PictureHandle image = picture1.Image();
    for (int64_t px = row.x0; px < row.x1; ++px)
        colors[px - x] = static_cast<int32_t>(image->at(static_cast<int>(px), static_cast<int>(y)));
}

void FrmMain::setPictureRow(int64_t x, int64_t y, const int32_t* colors, int64_t count) {
    if (picture1.pixelScale()) {
        picture1.PSetRow(x, y, colors, count);
        return;
    }
    for (int64_t i = 0; i < count; ++i)
        picture1.PSet(static_cast<double>(x + i), static_cast<double>(y), colors[i]);
}

} // namespace tavrin
