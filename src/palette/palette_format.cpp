#include "palette/palette_format.h"

namespace tavrin {

std::vector<Rgb> readRawPalette(const vb::ByteWindow& file, int64_t firstPosition) {
    std::vector<Rgb> colors;
    Rgb c;
    bool atEnd = file.fileLength == 0; // an empty file is at its end before any read
    for (int64_t at = firstPosition; !atEnd && colors.size() < kRawPaletteMostColors; at += 3) {
        file.get(at, c.red);
        file.get(at + 1, c.green);
        atEnd = !file.get(at + 2, c.blue);
        colors.push_back(c);
    }
    return colors;
}

} // namespace tavrin
