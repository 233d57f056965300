#!/bin/sh
# The tool bar's buttons, the brush kinds, the filter bar, menu shortcuts and the canvas's
# popup with the real mouse and keyboard: each command's status text (told apart by the
# pixels of the status panel), the brush kinds panel opening over the tool bar and closing
# at a kind, the line button's message, and Ctrl+P doing nothing.
# Usage: commands_test.sh path/to/tavrin SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
make_work
start_with_skin "$2"

locate_bars

# A checksum of a box of the screen, in pixels from the tool bar's corner.
area() {
    xwd -root -silent | convert xwd:- -crop "$3x$4+$((bar_left + $1))+$((bar_top + $2))" \
        +repage rgb:- | cksum | cut -d' ' -f1
}
status() { area $((195 / 15 + 3)) $((2535 / 15 + 3)) $((1785 / 15 - 6)) $((285 / 15 - 6)); }
# Away from the buttons first: one under the pointer is drawn raised.
kinds_area() {
    xdotool mousemove 5 $((height - 5))
    sleep 0.3
    area $((800 / 15)) $((200 / 15)) $((780 / 15)) $((750 / 15))
}
click_at() { xdotool mousemove "$1" "$2" click 1; sleep 0.4; }
# A tool button by its place in the tool bar, in twips.
button() { click_at $((bar_left + ($1 + 217) / 15)) $((bar_top + ($2 + 202) / 15)); }
no_window() {
    if xdotool search --onlyvisible --name "^Tavrin\$" >/dev/null 2>&1; then
        fail "$1 showed a window"
    fi
}

# Each tool button names its tool; the buttons that name the same text show the same
# pixels, the others differ from all that came before.
seen=""
expect_status() { # TEXT: the status shows it, told by the pixels first seen with it
    now=$(status)
    for pair in $seen; do
        if [ "${pair%%=*}" = "$1" ]; then
            [ "${pair#*=}" = "$now" ] || fail "'$1' is not shown again"
            return 0
        fi
        [ "${pair#*=}" != "$now" ] || fail "'$1' looks like '${pair%%=*}'"
    done
    seen="$seen $1=$now"
}
expect_status Zoom
button 180 390;   expect_status Drawing   # Pencil
button 630 810;   expect_status Eye       # Eye-Dropper
button 1080 810;  expect_status Rect      # Rectangle
button 1530 810;  expect_status RectFill  # Filled Rectangle
button 180 1230;  expect_status Zoom      # Zoom
button 630 1230;  expect_status Pan500    # Pan Some
button 1080 1230; expect_status Pan5000   # Pan Alot
button 180 2070;  expect_status Gradient  # Smudge
button 630 2070;  expect_status Text      # Text
for place in "180 1650" "630 1650" "1080 1650" "1530 1650"; do # the pan arrows
    button $place
    expect_status Text
    no_window "a pan button"
done

# The line button promises the tool and leaves the status.
button 1530 1230
answer "$(wait_window "Tavrin")" Return
sleep 0.3
expect_status Text

# The paint brush opens its kinds over the tool bar, readable, and names the tool; a
# kind closes them and leaves the status.
toolbar_look=$(kinds_area)
button 630 390
expect_status Painting
[ "$(kinds_area)" != "$toolbar_look" ] || fail "the brush kinds did not open"
shot brush-kinds.png
click_at $((bar_left + (800 + 15 + 187) / 15)) $((bar_top + (200 + 15 + 180) / 15)) # Solid
[ "$(kinds_area)" = "$toolbar_look" ] || fail "the brush kinds stayed open"
expect_status Painting

# The filter bar's buttons leave the status as it was.
filter_top=$((surface_top + 7140 / 15))
for n in 1 2 3 4 5; do # Lighten, Sharpen, Blur, Tint, Emboss
    click_at $((4 + (225 + 382 + 765 * n) / 15)) $((filter_top + 32))
    expect_status Painting
done

# The menus' shortcuts: Ctrl+A the pencil, Ctrl+P (the paint brush's item, which has no
# handler) nothing at all, Ctrl+Q the zoom.
xdotool windowfocus --sync "$main" 2>/dev/null || true
xdotool key ctrl+a
sleep 0.4
expect_status Drawing
xdotool key ctrl+p
sleep 0.4
expect_status Drawing
no_window "Ctrl+P"
xdotool key ctrl+q
sleep 0.4
expect_status Zoom

# The canvas's popup, outside the zoom (where the right button zooms out): "Paintbrush",
# the sixth item, names its own tool.
xdotool key ctrl+a
sleep 0.4
xdotool mousemove $((width / 2)) $((surface_top + height / 2)) click 3
sleep 0.5
xdotool key Down Down Down Down Down Down Return
sleep 0.4
expect_status PaintBrush
echo "commands: ok"
