#include "platform/vb_numeric.h"

#include "platform/vb_error.h"

#include <algorithm>
#include <cmath>

namespace vb {

double roundHalfEven(double v) {
    double r = std::round(v); // halves away from zero
    if (std::fabs(v - std::trunc(v)) == 0.5) r = 2.0 * std::round(v / 2.0);
    return r;
}

int64_t cornerPixel(double v) {
    if (std::isnan(v)) raise(Overflow);
    return static_cast<int64_t>(std::clamp(roundHalfEven(v), -kFarPixel, kFarPixel));
}

int16_t CInt(double v) {
    if (std::isnan(v)) raise(Overflow);
    double r = roundHalfEven(v);
    if (r < -32768.0 || r > 32767.0) raise(Overflow);
    return static_cast<int16_t>(r);
}

int32_t CLng(double v) {
    if (std::isnan(v)) raise(Overflow);
    double r = roundHalfEven(v);
    if (r < -2147483648.0 || r > 2147483647.0) raise(Overflow);
    return static_cast<int32_t>(r);
}

uint8_t CByte(double v) {
    if (std::isnan(v)) raise(Overflow);
    double r = roundHalfEven(v);
    if (r < 0.0 || r > 255.0) raise(Overflow);
    return static_cast<uint8_t>(r);
}

int16_t CBool16(bool b) { return b ? int16_t{-1} : int16_t{0}; }

int16_t wrap16(long long v) { return static_cast<int16_t>(static_cast<uint16_t>(v & 0xFFFF)); }

double Int(double v) { return std::floor(v); }

int32_t RGB(double red, double green, double blue) {
    auto part = [](double v) -> int32_t {
        int32_t p = CLng(v);
        if (p < 0) raise(InvalidCall);
        return p > 255 ? 255 : p;
    };
    return part(red) | (part(green) << 8) | (part(blue) << 16);
}

double redOf(int32_t packed) { return static_cast<double>(packed % 256); }

double greenOf(int32_t packed) {
    return static_cast<double>(static_cast<int32_t>(static_cast<uint32_t>(packed) & 0xFF00FF00u)) /
           256.0;
}

double blueOf(int32_t packed) { return static_cast<double>(packed & 0xFF0000) / 65536.0; }

} // namespace vb
