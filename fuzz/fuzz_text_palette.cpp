// Any bytes as a text palette, straight to the line reader and the colour line's split,
// with no editor and no file around them. The lines must give back every byte that isn't a
// line end, and each split must agree with a plain reading of the rule, position by
// position: fields end at blanks within the first 50 characters, each its leading number.
#include "palette/text_palette.h"
#include "platform/text_lines.h"
#include "platform/vb_error.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string>

namespace {

// The rule as it reads: positions 1 to 50, a blank ends a field and the next one starts
// behind it; a scan that finds no blank leaves the position at 51.
double plainField(const std::string& line, std::size_t& position) {
    std::string text;
    std::size_t i = position;
    for (; i <= 50; ++i) {
        if (i <= line.size() && line[i - 1] == ' ') break;
        if (i <= line.size()) text += line[i - 1];
    }
    position = i + 1 > 51 ? 51 : i + 1;
    std::size_t n = 0;
    if (n < text.size() && (text[n] == '+' || text[n] == '-')) ++n;
    std::size_t digits = 0;
    while (n < text.size() && text[n] >= '0' && text[n] <= '9')
        ++n, ++digits;
    if (n < text.size() && text[n] == '.')
        for (++n; n < text.size() && text[n] >= '0' && text[n] <= '9'; ++n)
            ++digits;
    if (digits == 0) return 0;
    const std::string number = text.substr(0, n);
    return std::strtod(number.c_str(), nullptr); // the fuzzer runs in the C locale
}

std::string checkTextPalette(std::span<const uint8_t> file) {
    vb::TextLines lines(file);
    std::size_t kept = 0;
    while (!lines.atEnd()) {
        const std::string line = lines.LineInput();
        if (line.find_first_of("\r\n") != std::string::npos) return "a line holds a line end";
        kept += line.size();
        std::size_t position = 1;
        const double red = plainField(line, position), green = plainField(line, position),
                     blue = plainField(line, position);
        const tavrin::TextColor c = tavrin::splitColorLine(line);
        if (c.red != red || c.green != green || c.blue != blue)
            return "the line \"" + line + "\" splits otherwise than the rule";
    }
    std::size_t ends = 0;
    for (uint8_t b : file)
        ends += b == '\r' || b == '\n';
    if (kept + ends != file.size()) return "the lines lost or doubled bytes";
    try {
        lines.LineInput();
    } catch (const vb::Error& e) {
        if (e.number() == vb::InputPastEnd) return "";
    }
    return "reading past the end didn't raise Input past end of file";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    const std::string fault = checkTextPalette({data, size});
    if (!fault.empty()) {
        std::fprintf(stderr, "fuzz_text_palette: %s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
