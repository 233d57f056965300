#pragma once
// Numeric conversions as the runtime made them: round half to even, overflow is an
// error, plain 16-bit fields wrap.
#include <cstdint>

namespace vb {

double roundHalfEven(double v);

int16_t CInt(double v);  // Overflow outside -32768..32767
int32_t CLng(double v);  // Overflow outside the 32-bit range
uint8_t CByte(double v); // Overflow outside 0..255
int16_t CBool16(bool b); // True is -1

// Arithmetic on a plain 16-bit integer field: wraps at its width without a check.
int16_t wrap16(long long v);

// A corner of a shape or a filter's box as a whole pixel that loops can count from,
// rounded half to even; past 2^52 (kFarPixel) no pixel is near anyway. NaN raises
// Overflow.
inline constexpr double kFarPixel = 4503599627370496.0;
int64_t cornerPixel(double v);

// Int(): the largest whole number not above v.
double Int(double v);

// RGB(): each part rounded; a part above 255 counts as 255, a negative part is an error.
int32_t RGB(double red, double green, double blue);

// The three parts of a packed colour 0x00BBGGRR as the editor splits them: red is
// value Mod 256, green (value And &HFF00FF00) / 256, blue (value And &HFF0000) / 65536.
// For a colour outside 0..0xFFFFFF (-1 above all) these are not bytes.
double redOf(int32_t packed);
double greenOf(int32_t packed);
double blueOf(int32_t packed);

} // namespace vb
