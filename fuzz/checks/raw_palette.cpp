// A raw palette read from the file's first byte and from its last 768, as the palette
// reader reads it, through the window the command fetches: every colour the bytes at its
// place (a byte past the end keeping the one before), one colour past the last whole
// one, never more than the reader draws.
#include "fuzz/decoder_checks.h"
#include "palette/palette_format.h"

namespace tavrin::fuzz {

namespace {

std::string checkFrom(std::span<const uint8_t> file, int64_t first) {
    std::vector<Rgb> colors;
    const int error = errorOf([&] {
        colors =
            readRawPalette(windowOf(file, first, first + 3 * kRawPaletteMostColors - 1), first);
    });
    const auto L = static_cast<int64_t>(file.size());
    // An empty file ends the reading before its first Get.
    if (first < 1 && L > 0) return error == vb::BadRecordNumber ? "" : "read before the first byte";
    if (error != 0)
        return "error " + std::to_string(error) + " from position " + std::to_string(first);
    const int64_t whole = L >= first ? (L - first + 1) / 3 : 0;
    const auto expected =
        static_cast<std::size_t>(L == 0 ? 0 : std::min<int64_t>(whole + 1, kRawPaletteMostColors));
    if (colors.size() != expected)
        return std::to_string(colors.size()) + " colours from position " + std::to_string(first) +
               " where " + std::to_string(expected) + " are due";
    Rgb last;
    for (std::size_t k = 0; k < colors.size(); ++k) {
        const int64_t at = first + 3 * static_cast<int64_t>(k);
        auto byte = [&](int64_t pos, uint8_t before) {
            return pos <= L ? file[static_cast<std::size_t>(pos - 1)] : before;
        };
        const Rgb want{byte(at, last.red), byte(at + 1, last.green), byte(at + 2, last.blue)};
        if (!(colors[k] == want)) return "colour " + std::to_string(k) + " is not the file's";
        last = want;
    }
    return "";
}

std::string checkRawPalette(std::span<const uint8_t> file) {
    std::string fault = checkFrom(file, 1);
    if (fault.empty()) fault = checkFrom(file, static_cast<int64_t>(file.size()) - 767);
    return fault;
}

const RegisterDecoder registered("raw_palette", checkRawPalette);

} // namespace

} // namespace tavrin::fuzz
