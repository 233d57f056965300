# Shared by the end-to-end tests: a private X server, the editor on it, and waits.
# Usage: . lib.sh; start_x; start_tavrin BINARY; ...; finish
set -eu
[ -n "${E2E_TRACE:-}" ] && set -x

fail() { echo "FAIL: $*" >&2; exit 1; }

start_x() {
    # Xvfb picks a free display itself and writes its number once it listens: tests
    # running side by side never race for the same one.
    displayfile="$(mktemp)"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$displayfile" >/dev/null 2>&1 &
    XVFB_PID=$!
    for _ in $(seq 100); do
        [ -s "$displayfile" ] && break
        sleep 0.1
    done
    n=$(cat "$displayfile")
    rm -f "$displayfile"
    [ -n "$n" ] || fail "no X server could be started"
    export DISPLAY=":$n"
    for _ in $(seq 50); do
        xdpyinfo >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    fail "the X server does not answer"
}

start_tavrin() {
    "$1" >"$WORK/tavrin.log" 2>&1 &
    TAVRIN_PID=$!
}

# Waits for a window whose title matches exactly and prints its id.
# A search can end early when a window it looks at goes away meanwhile: it is tried again.
wait_window() {
    deadline=$(($(date +%s) + 20))
    while :; do
        id=$(timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" 2>/dev/null | tail -1) || true
        [ -n "$id" ] && break
        [ "$(date +%s)" -lt "$deadline" ] || fail "no window titled '$1'"
        sleep 0.2
    done
    echo "$id"
}

# Clicks at a point in twips of a window's client area.
click_twips() {
    xdotool mousemove --window "$1" $(($2 / 15)) $(($3 / 15)) click 1
}

# Opens a menu of the bar by a click at x pixels across it; the open menu then has
# the keyboard.
open_menu() {
    xdotool mousemove --window "$1" "$2" 10 click 1
    sleep 0.3
}

# Types into the file dialog of that title and accepts.
type_in_dialog() {
    dialog=$(wait_window "$1")
    xdotool windowfocus --sync "$dialog" 2>/dev/null || true
    xdotool type --delay 20 "$2"
    xdotool key Return
}

# File > Open Skin > PCX File with the path, answering No to the palette question.
open_skin() {
    open_menu "$1" 20
    xdotool key Down Down Right Return
    type_in_dialog "Load Quake 2 PCX Skin Image" "$2"
    answer "$(wait_window "Tavrin")" n
    sleep 1
}

# File > Save Skin As with a name ending in .pcx; waits for the file the save makes.
save_skin_as() {
    open_menu "$1" 20
    xdotool key Down Down Down Down Down Return
    type_in_dialog "Save Skin PCX as Filename:" "$2.pcx"
    for _ in $(seq 50); do [ -s "$2.PCX" ] && return 0; sleep 0.1; done
    fail "no saved file"
}

# Reads two skins with the headless driver SCRIPT and dumps their grids into
# $WORK/before.grid and $WORK/after.grid. Usage: dump_grids SCRIPT BEFORE.pcx AFTER.pcx
dump_grids() {
    cat >"$WORK/grids.tvs" <<SCRIPT_END
answer open "$2"
answer msgbox no
click pcxIm
dump grid "$WORK/before.grid"
answer open "$3"
answer msgbox no
click pcxIm
dump grid "$WORK/after.grid"
SCRIPT_END
    "$1" "$WORK/grids.tvs" >/dev/null
}

# Answers a message box with a key.
answer() {
    [ -n "$1" ] || fail "no message box"
    xdotool windowfocus --sync "$1" 2>/dev/null || true
    xdotool key "$2"
}

# The first row, from the top of the screen, where column X shows the navy of a title
# bar: where the floating bars stand depends on the heights of the menu and tool bars.
navy_top() {
    xwd -root -silent | convert xwd:- -crop "1x400+$1+0" txt:- |
        awk -F'[,:]' '/#000080/ { print $2; exit }'
}

# Where the bars stand, in screen pixels: the palette's title sets the surface's top; the
# tool bar stands at the right edge, 4650 twips down. Sets width, height, palette_left,
# palette_top, surface_top, bar_left and bar_top.
locate_bars() {
    width=$(xdotool getdisplaygeometry | cut -d' ' -f1)
    height=$(xdotool getdisplaygeometry | cut -d' ' -f2)
    palette_left=$(((width * 15 - 3275 + 7) / 15))
    palette_top=$(navy_top $((palette_left + 40)))
    [ -n "$palette_top" ] || fail "the palette is not on the screen"
    surface_top=$((palette_top - 510 / 15))
    bar_left=$(((width * 15 - 2405 + 7) / 15))
    bar_top=$((surface_top + 4650 / 15))
}

# Picks palette cell 208 (column 0, row 13: pure green in the game's palette) and the
# pencil, and sets PANEL_LEFT and PANEL_TOP, the palette's top left; its cells start 13
# pixels in and 27 below its top.
pick_green_pencil() {
    locate_bars
    PANEL_LEFT=$palette_left PANEL_TOP=$palette_top
    xdotool mousemove $((PANEL_LEFT + 13 + 5)) $((PANEL_TOP + 27 + 13 * 11 + 5)) click 1
    sleep 0.3
    open_menu "$1" 140                       # Tools
    xdotool key Down Down Down Return        # Pixel Edit
    sleep 0.3
}

shot() {
    [ -n "${TAVRIN_SCREENSHOTS:-}" ] || return 0
    xwd -root -silent | convert xwd:- "$TAVRIN_SCREENSHOTS/$1"
}

MAIN_TITLE="Tavrin - 256 Color Pixel Editor - Version Beta - Build 033"

# Presses "OK" on the start form and prints the main window's id. The press is
# repeated while the window is slow to come up under load.
press_ok() {
    splash=$(wait_window "Tavrin")
    for _ in 1 2 3; do
        sleep 0.5
        click_twips "$splash" 1250 4560 # OK
        id=$(timeout 10 xdotool search --sync --onlyvisible --name "^$MAIN_TITLE\$" 2>/dev/null | tail -1) || true
        if [ -n "$id" ]; then
            sleep 0.5
            echo "$id"
            return 0
        fi
    done
    fail "no main window"
}

wait_exit() {
    for _ in $(seq 100); do
        kill -0 "$TAVRIN_PID" 2>/dev/null || return 0
        sleep 0.1
    done
    fail "the editor did not end"
}

# A scratch folder in WORK, removed with the editor and the X server when the test ends.
make_work() {
    WORK="$(mktemp -d)"
    trap 'finish; rm -rf "$WORK"' EXIT
}

# Starts the X server and the editor ($TAVRIN), presses OK and opens a copy of the skin
# as $WORK/skin.pcx; sets main to the main window's id.
start_with_skin() {
    cp "$1" "$WORK/skin.pcx"
    start_x
    start_tavrin "$TAVRIN"
    main=$(press_ok)
    open_skin "$main" "$WORK/skin.pcx"
}

finish() {
    [ -z "${TAVRIN_PID:-}" ] || kill "$TAVRIN_PID" 2>/dev/null || true
    [ -z "${XVFB_PID:-}" ] || kill "$XVFB_PID" 2>/dev/null || true
}
