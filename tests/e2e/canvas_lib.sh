# Shared by the end-to-end tests that work on the canvas with the real mouse and replay
# the same commands in the headless driver: where the bars and the canvas stand, clicks
# on their buttons, menus and the popup, and the replay script those steps write.
# Usage: . lib.sh; . canvas_lib.sh; set TAVRIN, SCRIPT and WORK; open_on_canvas SKIN;
#        steps...; compare_with_replay

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

# The first row from `from` down where column X shows the colour.
colour_top() {
    xwd -root -silent | convert xwd:- -crop "1x2000+$1+$2" txt:- 2>/dev/null |
        awk -F'[,:]' -v from="$2" -v c="$3" '$0 ~ c { print $2 + from; exit }'
}

# Where the bars stand: the palette and the tool bar at the window's right edge, the
# filter bar at its bottom left, found by the navy of their titles and the grey grip.
find_bars() {
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
}

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

# Where the canvas stands: a pencil dot near its middle, saved, shows which skin pixel
# lies under that point of the screen. Sets left and top, the screen's place of skin
# pixel (0, 0), and begins the replay with the dotted skin.
find_canvas() {
    pick 208 # pure green in the game's palette
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
    cat >"$WORK/replay.tvs" <<SCRIPT_END
answer open "$WORK/dot.PCX"
answer msgbox no
click pcxIm
SCRIPT_END
}

# Each step: the command, then a drag from (x1, y1) to (x2, y2) in canvas pixels. The
# same steps, as the driver's commands, go into the script that replays them.
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

# The editor started on a private X server with a copy of the skin open, the bars and
# the canvas found, and the replay begun.
open_on_canvas() {
    start_with_skin "$1"
    find_bars
    find_canvas
}

# Saves the window's skin and the replay's, and compares them.
compare_with_replay() {
    save_skin_as "$main" "$WORK/saved"
    step "answer save \"$WORK/expected.pcx\""
    step "click SKas"
    "$SCRIPT" "$WORK/replay.tvs" >/dev/null
    cmp "$WORK/saved.PCX" "$WORK/expected.PCX" || fail "the saved skin differs from the replay"
}
