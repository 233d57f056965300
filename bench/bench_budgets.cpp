#include "bench_budgets.h"

namespace tavrin::bench {

// Every budget in one place; a pair whose benchmarks were not run is left out of the check.
const std::vector<Budget>& budgets() {
    static const std::vector<Budget> all = {
        {"stroke move, zoom 8", "stroke_move/path", "stroke_move/baseline", 0.01, false},
        {"press with snapshot", "press/path", "press/baseline", 3, false},
        {"Temp_Color_Check", "Temp_Color_Check/path", "Temp_Color_Check/baseline", 20, true},
        {"Temp_Color_Check, 65,532 colours", "Temp_Color_Check_many/path",
         "Temp_Color_Check_many/baseline", 1, false},
        {"Get_PCX 1024x1024", "Get_PCX/path", "Get_PCX/baseline", 10, false},
        {"ex_Click 1024x1024", "ex_Click/path", "ex_Click/baseline", 10, false},
        {"canvas region, zoom 8", "canvas_region/path", "canvas_region/baseline", 5, false},
        {"airbrush move at 9 Pixels, zoom 8", "air_move/path", "stroke_move/path", 5, false},
        {"GetMask 1024x1024 of one colour", "get_mask/path", "get_mask/baseline", 10, false},
        {"first open 440x1024, fresh editor", "first_open/path", "first_open/baseline", 2, false,
         true},
        {"save 1024x1024 to disk", "save/path", "save/baseline", 3, false, true},
        {"mouse move, zoom 8, Qt window", "mouse_move/path", "mouse_move/baseline", 3, false},
        {"pencil stroke move, zoom 8, Qt window", "mouse_stroke/path", "mouse_stroke/baseline", 6,
         false},
        {"Sharpen 1024x1024 box", "sharpen/path", "sharpen/baseline", 15, false},
        {"Sharpen, box 2000 past the skin", "sharpen_far/path", "sharpen_far/baseline", 2, false},
        {"band move over 1000x1000", "band_move/path", "band_move/baseline", 0.05, false},
    };
    return all;
}

} // namespace tavrin::bench
