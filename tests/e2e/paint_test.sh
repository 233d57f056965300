#!/bin/sh
# Picks a colour in the palette, draws a pencil stroke across the canvas with the real
# mouse, saves, and checks that the saved skin differs from the opened one only in
# pixels of the picked colour's index.
# Usage: paint_test.sh path/to/tavrin path/to/tavrin-script SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
SCRIPT="$2"
make_work
start_with_skin "$3"

pick_green_pencil "$main"
panel_top=$PANEL_TOP

# The canvas is centred on the window's working area.
surface_top=$((panel_top - 510 / 15))
cy=$((surface_top + ($(xdotool getdisplaygeometry | cut -d' ' -f2)) / 2))
cx=$((width / 2))
xdotool mousemove $((cx - 40)) "$cy" mousedown 1
for dx in $(seq -40 2 40); do xdotool mousemove $((cx + dx)) "$cy"; done
xdotool mouseup 1
sleep 0.5
shot painted.png

save_skin_as "$main" "$WORK/saved"

dump_grids "$SCRIPT" "$WORK/skin.pcx" "$WORK/saved.PCX"
# cmp -l gives offset, old byte, new byte (octal); 208 is 320 in octal.
changed=$(cmp -l "$WORK/before.grid" "$WORK/after.grid" | awk '
    $1 % 2 == 0 || $3 != 320 { bad = 1 } { n++ } END { print (bad ? "bad" : n + 0) }')
[ "$changed" != "bad" ] || fail "the saved skin changed by more than the stroke"
[ "$changed" -ge 20 ] || fail "the stroke painted $changed pixels"
echo "paint: ok ($changed pixels)"
