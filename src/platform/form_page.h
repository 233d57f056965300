#pragma once
// A form as it goes on paper: its visible controls where they stand, each with its text
// or, for a picture box, its image. The hosts print this, each in its own way.
#include "platform/form.h"
#include "platform/raster.h"

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

struct PageItem {
    const Control* control;
    double left, top, width, height; // twips, from the form's top left corner
    std::string text;                // a caption or a text box's text
    PictureHandle picture;           // a picture box's inner image, else empty
};

struct Page {
    std::string form;
    double width, height;        // the form's client area, twips
    int32_t backColor;           // the form's, a system colour with the high bit set
    std::vector<PageItem> items; // in the form's order of controls
};

Page pageOf(const Form& form);

} // namespace platform
