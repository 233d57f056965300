#pragma once
// The editor's record types.
#include <cstdint>

namespace tavrin {

struct PalRecord { // one colour of the palette
    int32_t Red = 0;
    int32_t Green = 0;
    int32_t Blue = 0;
    int16_t Index = 0;  // the record's own number: the value that goes into Skin_Grid
    int16_t Cell_X = 0; // the cell in Picture2, in pixels
    int16_t Cell_Y = 0;
};

struct UVRecord { // a texture coordinate of the model, in skin pixels
    int16_t S = 0;
    int16_t T = 0;
};

struct TriRecord { // a triangle: three indices into UV_Table
    int16_t A = 0;
    int16_t B = 0;
    int16_t C = 0;
};

struct TextPixel { // a lit pixel of the text preview, as an offset
    int16_t X = 0;
    int16_t Y = 0;
};

struct MaskRecord { // a pixel of the colour being replaced
    int16_t Mask_X = 0;
    int16_t Mask_Y = 0;
    int16_t Mask_Red = 0;
    int16_t Mask_Green = 0;
    int16_t Mask_Blue = 0;
};

} // namespace tavrin
