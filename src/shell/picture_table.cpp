#include "shell/command_tables.h"

namespace tavrin::shell {

// Each name is an image of the window's own, drawn for the button's tool tip or caption.
const std::vector<PictureRow>& pictureTable() {
    static const std::vector<PictureRow> table = {
        // the tool bar
        {"SSCommand4", "pencil"},
        {"SSCommand12", "brush"},
        {"SSCommand13", "airbrush"},
        {"SSCommand16", "blur"},
        {"SSCommand15", "mask"},
        {"SSCommand14", "dropper"},
        {"SSCommand28", "rect"},
        {"SSCommand29", "rect_filled"},
        {"SSCommand19", "zoom"},
        {"SSCommand21", "pan_some"},
        {"SSCommand22", "pan_alot"},
        {"SSCommand18", "line"},
        {"SSCommand23", "arrow_left"},
        {"SSCommand24", "arrow_right"},
        {"SSCommand25", "arrow_up"},
        {"SSCommand26", "arrow_down"},
        {"SSCommand17", "gradient"}, // its tip says "Smudge"; it chooses the gradient
        {"SSCommand20", "text"},
        {"SSCommand34", "circle"},
        // the filter bar, above the captions
        {"SSCommand43", "diffuse"},
        {"SSCommand37", "lighten"},
        {"SSCommand40", "sharpen"},
        {"SSCommand41", "blur_area"},
        {"SSCommand36", "tint"},
        {"SSCommand38", "emboss"},
        // the file and font tool bar
        {"tbToolBar.New", "new"},
        {"tbToolBar.Open", "open"},
        {"tbToolBar.Save", "save"},
        {"tbToolBar.Print", "print"},
        {"tbToolBar.Cut", "cut"},
        {"tbToolBar.Copy", "copy"},
        {"tbToolBar.Paste", "paste"},
        {"tbToolBar.Bold", "bold"},
        {"tbToolBar.Italic", "italic"},
        {"tbToolBar.Underline", "underline"},
        {"tbToolBar.Font", "font"},
    };
    return table;
}

} // namespace tavrin::shell
