#!/bin/sh
# Drags rectangles, filled rectangles, gradients and each area filter over a skin with the
# real mouse, choosing them from the tool bar, the filter bar, the menus and the canvas's
# popup; saves, and compares the file with what the headless driver writes for the same
# commands and drags.
# Usage: shapes_filters_test.sh path/to/tavrin path/to/tavrin-script SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
SCRIPT="$2"
WORK="$(mktemp -d)"
trap 'finish; rm -rf "$WORK"' EXIT
cp "$3" "$WORK/skin.pcx"
# The file dialogs of lib.sh's open and save, patient on a busy machine: the dialog has
# the keyboard before the name goes in, and the name goes in again while it stays open.
type_in_dialog() {
    dialog=$(wait_window "$1")
    for _ in 1 2 3; do
        sleep 0.5
        xdotool windowfocus --sync "$dialog" 2>/dev/null || true
        xdotool key ctrl+a
        xdotool type --delay 20 "$2"
        xdotool key Return
        sleep 1
        xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1 || return 0
    done
}

start_x

start_tavrin "$TAVRIN"
main=$(press_ok)
open_skin "$main" "$WORK/skin.pcx"

# The first row from `from` down where column X shows the colour.
colour_top() {
    xwd -root -silent | convert xwd:- -crop "1x2000+$1+$2" txt:- 2>/dev/null |
        awk -F'[,:]' -v from="$2" -v c="$3" '$0 ~ c { print $2 + from; exit }'
}

# Where the bars stand: the palette and the tool bar at the window's right edge, the
# filter bar at its bottom left, found by the navy of their titles and the grey grip.
width=$(xdotool getdisplaygeometry | cut -d' ' -f1)
palette_left=$(( (width * 15 - 3275 + 7) / 15 ))
palette_top=$(navy_top $((palette_left + 40)))
[ -n "$palette_top" ] || fail "the palette is not on the screen"
tool_left=$(( (width * 15 - 2405 + 7) / 15 ))
tool_top=$(colour_top $((tool_left + 40)) $((palette_top + 200)) "#000080")
[ -n "$tool_top" ] || fail "the tool bar is not on the screen"
filter_top=$(colour_top 10 500 "#808080")
[ -n "$filter_top" ] || fail "the filter bar is not on the screen"
filter_top=$((filter_top - 4))

click_at() { xdotool mousemove "$1" "$2" click 1; sleep 0.3; }
# A tool button by its place in the tool bar, in twips.
tool_button() { click_at $((tool_left + ($1 + 217) / 15)) $((tool_top + ($2 + 202) / 15)); }
# The filter bar's buttons: Diffuse, Lighten, Sharpen, Blur, Tint, Emboss, from 0.
filter_button() { click_at $((4 + (225 + 382 + 765 * $1) / 15)) $((filter_top + 27)); }
# A menu of the bar by its place in pixels, then keys.
menu() {
    open_menu "$main" "$1"
    shift
    xdotool key "$@"
    sleep 0.3
}

# Palette cell n, by its place in the palette (16 cells a row, 11 pixels apart).
pick() {
    click_at $((palette_left + 13 + 11 * ($1 % 16) + 5)) $((palette_top + 27 + 11 * ($1 / 16) + 5))
}
pick 208 # pure green in the game's palette

# Where the canvas stands: a pencil dot near its middle, saved, shows which skin pixel
# lies under that point of the screen.
menu 140 Down Down Down Return # Tools > Pixel Edit
cx=$((width / 2))
cy=$((palette_top - 34 + $(xdotool getdisplaygeometry | cut -d' ' -f2) / 2))
click_at "$cx" "$cy"
save_skin_as "$main" "$WORK/dot"
cat >"$WORK/dot.tvs" <<SCRIPT_END
answer open "$WORK/skin.pcx"
answer msgbox no
click pcxIm
dump grid "$WORK/before.grid"
answer open "$WORK/dot.PCX"
answer msgbox no
click pcxIm
dump grid "$WORK/dot.grid"
print Skin_Width
SCRIPT_END
skin_width=$("$SCRIPT" "$WORK/dot.tvs" | sed -n 's/^Skin_Width=//p')
cell=$(cmp -l "$WORK/before.grid" "$WORK/dot.grid" | awk 'NR == 1 { print ($1 - 1) / 2 }')
[ -n "$cell" ] || fail "the pencil dot is not in the saved skin"
left=$((cx - cell % skin_width))
top=$((cy - cell / skin_width))

# Each step: the command, then a drag from (x1, y1) to (x2, y2) in canvas pixels. The
# same steps, as the driver's commands, go into the script that replays them.
cat >"$WORK/replay.tvs" <<SCRIPT_END
answer open "$WORK/dot.PCX"
answer msgbox no
click pcxIm
SCRIPT_END
drag() {
    xdotool mousemove $((left + $1)) $((top + $2)) mousedown 1
    sleep 0.1
    for step in 1 2 3; do
        xdotool mousemove $((left + $1 + ($3 - $1) * step / 3)) $((top + $2 + ($4 - $2) * step / 3))
        sleep 0.05
    done
    xdotool mouseup 1
    sleep 0.4
    printf 'mouse down 1 0 %s %s\nmouse move 1 0 %s %s\nmouse up 1 0 %s %s\n' \
        "$1" "$2" "$3" "$4" "$3" "$4" >>"$WORK/replay.tvs"
}
# The canvas's popup, opened by the right button, then its item by keys.
popup() {
    xdotool mousemove $((left + 100)) $((top + 80)) click 3
    sleep 0.4
    xdotool key "$@"
    sleep 0.3
}
step() { echo "$1" >>"$WORK/replay.tvs"; }
# The current colour, in the window and in the replay.
colour() {
    pick "$1"
    at="$((11 * ($1 % 16) + 5)) $((11 * ($1 / 16) + 5))"
    step "palette down 1 0 $at"
    step "palette up 1 0 $at"
}
colour 208

tool_button 1080 810;  step "click SSCommand28"; drag 8 8 30 26         # Rectangle
menu 140 Down Down Down Down Return;           step "click mRect"; drag 66 26 40 8
menu 140 Down Down Down Down Down Return;      step "click mFrect"; drag 72 8 96 26
tool_button 1530 810;  step "click SSCommand29"; drag 104 8 126 26      # Filled Rectangle
colour 8 # a grey: the palette has greys all the way to white and black
menu 140 Down Down Down Down Down Down Return; step "click Grf"; drag 136 8 190 26
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

save_skin_as "$main" "$WORK/saved"
step "answer save \"$WORK/expected.pcx\""
step "click SKas"
"$SCRIPT" "$WORK/replay.tvs" >/dev/null
cmp "$WORK/saved.PCX" "$WORK/expected.PCX" || fail "the saved skin differs from the replay"
echo "shapes and filters: ok"
