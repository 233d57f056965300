// The header the next save writes, until a load replaces it.
#include "editor/frm_main.h"

#include <array>

namespace tavrin {

namespace {
// A grey ramp that steps by 12 once, from 63 to 75: kept as it always was.
constexpr std::array<uint8_t, 16> kGreys = {0,   15,  31,  47,  63,  75,  91,  107,
                                            123, 139, 155, 171, 187, 203, 219, 235};
} // namespace

void FrmMain::Get_Header() {
    const uint8_t start[] = {
        10,   5,    1, 8, // manufacturer, version 5, RLE, 8 bits a pixel
        0,    0,    0, 0, // Xmin, Ymin
        0x1B, 0x01,       // Xmax 283
        0xC2, 0x00,       // Ymax 194
        0x2C, 0x01,       // 300 dots an inch across
        0x2C, 0x01,       // and down
    };
    int k = 1;
    for (uint8_t b : start)
        PCX_Header(k++) = b;
    for (uint8_t grey : kGreys)
        for (int channel = 0; channel < 3; ++channel)
            PCX_Header(k++) = grey;
    const uint8_t tail[] = {0,    1, 0x1C,
                            0x01, 1, 0}; // reserved, planes, 284 bytes a line, palette type
    for (uint8_t b : tail)
        PCX_Header(k++) = b;
    while (k <= 128)
        PCX_Header(k++) = 0;
}

} // namespace tavrin
