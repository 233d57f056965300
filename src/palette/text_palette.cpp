#include "palette/text_palette.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstddef>

namespace tavrin {

namespace {

// Only the first 50 characters of a line are looked at.
constexpr std::size_t kScannedChars = 50;

bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// A sign, digits and a fraction, from the field's first character; 0 without digits.
// Read the same whatever the system's locale calls a decimal point.
double leadingNumber(std::string_view field) {
    std::size_t at = 0;
    const bool negative = !field.empty() && field[0] == '-';
    if (!field.empty() && (field[0] == '+' || field[0] == '-')) ++at;
    const std::size_t start = at;
    bool digits = false;
    for (; at < field.size() && isDigit(field[at]); ++at)
        digits = true;
    if (at < field.size() && field[at] == '.')
        for (++at; at < field.size() && isDigit(field[at]); ++at)
            digits = true;
    double value = 0;
    if (digits)
        std::from_chars(field.data() + start, field.data() + at, value, std::chars_format::fixed);
    return negative ? -value : value;
}

// The field from `at` to the next blank within the scanned characters; `at` moves behind
// the blank, or past the last scanned character when there was none.
std::string_view nextField(std::string_view line, std::size_t& at) {
    const std::size_t start = at;
    const std::size_t limit = std::min(line.size(), kScannedChars);
    while (at < limit && line[at] != ' ')
        ++at;
    const std::string_view field =
        start < limit ? line.substr(start, at - start) : std::string_view{};
    at = at < limit ? at + 1 : kScannedChars;
    return field;
}

} // namespace

TextColor splitColorLine(std::string_view line) {
    std::size_t at = 0;
    TextColor c;
    c.red = leadingNumber(nextField(line, at));
    c.green = leadingNumber(nextField(line, at));
    c.blue = leadingNumber(nextField(line, at));
    return c;
}

} // namespace tavrin
