// The zoom tool: the left button doubles the canvas, the right button halves it. The
// picture isn't resampled; the canvas shows picture1 stretched over more or fewer
// pixels, and every tool finds its skin pixel through Scale_X and Scale_Y.
#include "editor/frm_main.h"

namespace tavrin {

namespace {

// Whole factors stay whole; once halved the factor holds a double, as a quotient does.
Variant twice(const Variant& v) {
    switch (v.kind()) {
    case Variant::Kind::Empty:
    case Variant::Kind::Integer:
    case Variant::Kind::Long: {
        const double p = v.num() * 2;
        if (p >= INT32_MIN && p <= INT32_MAX) return Variant(static_cast<int>(p));
        return Variant(p);
    }
    case Variant::Kind::Single:
        return Variant(static_cast<float>(v.num() * 2));
    default:
        return Variant(v.num() * 2);
    }
}

// Canvas pixels per skin pixel, in single precision.
Variant scaleOf(double canvasPixels, int16_t skinPixels) {
    if (skinPixels == 0) vb::raise(canvasPixels == 0 ? vb::Overflow : vb::DivisionByZero);
    return Variant(static_cast<float>(canvasPixels) / static_cast<float>(skinPixels));
}

} // namespace

// No limits are coded. In: the size assignment fails once the canvas can't grow, after
// Zoom_Factor was doubled. Out: a canvas under seven pixels fails the press's edge test.
void FrmMain::zoomStep(int16_t Button) {
    if (Button == 1) {
        Zoom_Factor = twice(Zoom_Factor);
        Picture7.Width = Picture7.Width * 2;
        Picture7.Height = Picture7.Height * 2;
    }
    if (Button == 2) {
        Zoom_Factor = Zoom_Factor.num() / 2;
        Picture7.Width = Picture7.Width / 2;
        Picture7.Height = Picture7.Height / 2;
    }
    if (Button == 1 || Button == 2) {
        Picture7.Refresh();
        // Taken from the canvas's whole-pixel size rather than Zoom_Factor, so odd sizes
        // give a scale that follows the canvas (and can differ across and down).
        Scale_X = scaleOf(Picture7.ScaleWidth, Pixel_Width);
        Scale_Y = scaleOf(Picture7.ScaleHeight, Pixel_Height);
    }
}

} // namespace tavrin
