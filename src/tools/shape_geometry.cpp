#include "tools/shape_geometry.h"

#include "platform/vb_numeric.h"

namespace tavrin {

int64_t gradientStripeWidth(double left, double right) {
    const double b = std::floor((right - left) / 16 + 0.5);
    return b >= 1 ? static_cast<int64_t>(std::min(b, vb::kFarPixel)) : 1;
}

int32_t nextStripeColor(int32_t color, int32_t start, int step) {
    const double moved[3] = {vb::redOf(color) + step, vb::greenOf(color) + step,
                             vb::blueOf(color) + step};
    const double from[3] = {vb::redOf(start), vb::greenOf(start), vb::blueOf(start)};
    double channel[3];
    for (int c = 0; c < 3; ++c)
        channel[c] = moved[c] < 0 || moved[c] > 255 ? from[c] : moved[c];
    return vb::RGB(channel[0], channel[1], channel[2]);
}

} // namespace tavrin
