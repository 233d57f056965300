#!/bin/sh
# Works a skin with the real mouse using the airbrush, the blur and tint brushes, the
# fill, Diffuse, Lighten Image and the colour replace, each chosen from the tool bar, the
# menus, the canvas's popup, the brush kinds and the filter bar; saves, and compares the
# file with what the headless driver writes for the same commands and strokes.
# Usage: soft_tools_test.sh path/to/tavrin path/to/tavrin-script SKIN.pcx
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/canvas_lib.sh"
TAVRIN="$1"
SCRIPT="$2"
make_work
open_on_canvas "$3"

# A press at (x1, y) and four moves with the button held to (x2, y): the brushes paint at
# each event, so the replay gets every one of them.
stroke() {
    xdotool mousemove $((left + $1)) $((top + $3)) mousedown 1
    sleep 0.15
    printf 'mouse down 1 0 %s %s\n' "$1" "$3" >>"$WORK/replay.tvs"
    for i in 1 2 3 4; do
        x=$(($1 + ($2 - $1) * i / 4))
        xdotool mousemove $((left + x)) $((top + $3))
        sleep 0.15
        printf 'mouse move 1 0 %s %s\n' "$x" "$3" >>"$WORK/replay.tvs"
    done
    xdotool mouseup 1
    sleep 0.3
    printf 'mouse up 1 0 %s %s\n' "$2" "$3" >>"$WORK/replay.tvs"
}
# A click on the canvas at skin pixel (x, y).
press() {
    click_at $((left + $1)) $((top + $2))
    printf 'mouse down 1 0 %s %s\nmouse up 1 0 %s %s\n' "$1" "$2" "$1" "$2" >>"$WORK/replay.tvs"
}
# The mask panel's buttons, from the panel's place in twips below the window's bars.
client_top=$((palette_top - 510 / 15))
mask_button() { click_at $(((1020 + $1 + 847) / 15)) $((client_top + (4290 + 3540 + 202) / 15)); }

colour 208
tool_button 1080 390;               step "click SSCommand13"; stroke 10 60 20  # Air
menu 243 Down Down Return;          step "click AirBrush";    stroke 10 60 35
popup Down Down Down Return;        step "click aPop";        stroke 10 60 50
tool_button 1530 390;               step "click SSCommand16"; stroke 80 130 20 # Blur
menu 243 Down Down Down Return;     step "click BlurBrush";   stroke 80 130 35
popup Down Down Down Down Return;   step "click bPop";        stroke 80 130 50
colour 15 # a light grey
menu 243 Down Down Down Down Return; step "click tnnt";       stroke 140 190 20 # Tint
tool_button 630 390;                step "click SSCommand12"
click_at $((tool_left + (800 + 390 + 187) / 15)) $((tool_top + (200 + 375 + 180) / 15))
step "click SSCommand33";           stroke 140 190 35
popup Down Down Down Down Down Return; step "click tPop";     stroke 140 190 50
colour 208
menu 140 Down Down Down Down Return # Tools > Fill, which says it is for later first
answer "$(wait_window "Tavrin")" Return
step "click mFill";                 press 100 70
filter_button 0;                    step "click SSCommand43"; drag 10 110 60 150 # Diffuse
menu 188 Down Down Down Down Down Down Down Return; step "click Diffuse"; drag 140 110 190 150
popup Down Down Down Down Down Down Down Down Down Return; step "click difPop"; drag 70 120 130 155
menu 188 Down Down Down Return;     step "click Lightt" # Lighten Image, at once
popup Down Down Down Down Down Down Down Down Down Down Down Down Down Return
step "click liPop"
tool_button 180 810;                step "click SSCommand15"; press 150 100 # Colour replace
colour 208
mask_button 240;                    step "click SSCommand5"  # the colour it had
mask_button 2160;                   step "click SSCommand6"  # the current colour
menu 96 Down Down Down Return;      step "click Mask"        # View > Mask: hidden
menu 188 Down Return;               step "click Masked"      # Filters > Masked Image
sleep 0.3
shot soft-tools.png

compare_with_replay
echo "soft tools: ok"
