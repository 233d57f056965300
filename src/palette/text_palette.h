#pragma once
// Text palettes (a three-line header, then one "R G B" line a colour): what the reader
// makes of one colour line.
#include <string_view>

namespace tavrin {

// The header lines in front of the colours; their text isn't looked at.
inline constexpr int kTextPaletteHeaderLines = 3;

struct TextColor {
    double red = 0, green = 0, blue = 0;
    bool operator==(const TextColor&) const = default;
};

// Red, green and blue of a colour line. The fields are taken one after the other from
// the first 50 characters: a field runs to the next blank, which is dropped, so two
// blanks in a row make an empty field; a tab is no separator. A field that reaches
// character 50 without a blank leaves the fields behind it empty. Each field counts as
// its leading decimal number ("12.5", "-3", "7abc" gives 7), and as 0 without one.
TextColor splitColorLine(std::string_view line);

} // namespace tavrin
