#!/bin/sh
# Drags rectangles, filled rectangles, gradients and each area filter over a skin with the
# real mouse, choosing them from the tool bar, the filter bar, the menus and the canvas's
# popup; saves, and compares the file with what the headless driver writes for the same
# commands and drags.
# Usage: shapes_filters_test.sh path/to/tavrin path/to/tavrin-script SKIN.pcx
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/canvas_lib.sh"
TAVRIN="$1"
SCRIPT="$2"
make_work
open_on_canvas "$3"
colour 208

tool_button 1080 810;  step "click SSCommand28"; drag 8 8 30 26         # Rectangle
menu 140 Down Down Down Down Down Return;      step "click mRect"; drag 66 26 40 8
menu 140 Down Down Down Down Down Down Return; step "click mFrect"; drag 72 8 96 26
tool_button 1530 810;  step "click SSCommand29"; drag 104 8 126 26      # Filled Rectangle
colour 8 # a grey: the palette has greys all the way to white and black
menu 140 Down Down Down Down Down Down Down Return; step "click Grf"; drag 136 8 190 26
menu 306 Down Down Down Right Return;          step "click gd"; # Options > Gradient Fill > Dark
tool_button 180 2070;  step "click SSCommand17"; drag 8 34 70 52        # Gradient
menu 306 Down Down Down Right Down Return;     step "click gl"
colour 208
filter_button 2;       step "click SSCommand40"; drag 76 34 104 60      # Sharpen
filter_button 1;       step "click SSCommand37"; drag 110 34 136 60     # Lighten
filter_button 3;       step "click SSCommand41"; drag 142 34 170 60     # Blur
filter_button 4;       step "click SSCommand36"; drag 8 66 34 92        # Tint
filter_button 5;       step "click SSCommand38"; drag 40 66 68 92       # Emboss
menu 188 Down Down Down Down Down Down Return; step "click Sharpen"; drag 100 92 74 66
menu 188 Down Down Down Down Down Return;      step "click Blur"; drag 108 66 134 92
menu 188 Down Down Down Down Return;           step "click Emboss"; drag 140 66 168 92
menu 188 Down Down Return;                     step "click Tint"; drag 8 100 34 126
popup Down Down Down Down Down Down Down Down Down Down Down Down Down Down Return
step "click shPop"; drag 40 100 68 126
popup Down Down Down Down Down Down Down Down Down Down Return
step "click blPop"; drag 74 100 102 126
popup Down Down Down Down Down Down Down Down Down Down Down Return
step "click emPop"; drag 108 100 136 126
popup Down Down Down Down Down Down Down Down Down Down Down Down Return
step "click tiPop"; drag 142 100 170 126

tool_button 1530 1230 # Line: only a promise
answer "$(wait_window "Tavrin")" Return
step "click SSCommand18"
sleep 0.3
shot shapes-filters.png

compare_with_replay
echo "shapes and filters: ok"
