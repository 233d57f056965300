#!/bin/sh
# Opens a skin through the real menus and file dialog, saves it under a new name, and
# compares the file with what the headless driver writes for the same two commands.
# Usage: open_save_test.sh path/to/tavrin path/to/tavrin-script SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
SCRIPT="$2"
SKIN="$3"
WORK="$(mktemp -d)"
trap 'finish; rm -rf "$WORK"' EXIT
cp "$SKIN" "$WORK/skin.pcx"
start_x

start_tavrin "$TAVRIN"
main=$(press_ok)

open_menu "$main" 20                     # File
xdotool key Down Down Right Return       # Open Skin > PCX File
dialog=$(wait_window "Load Quake 2 PCX Skin Image")
xdotool windowfocus --sync "$dialog" 2>/dev/null || true
xdotool type --delay 20 "$WORK/skin.pcx"
xdotool key Return
answer "$(wait_window "Tavrin")" n       # Import Palette From Skin? No
sleep 1
shot main-window-skin.png

open_menu "$main" 20                     # File
xdotool key Down Down Down Down Down Return # Save Skin As
dialog=$(wait_window "Save Skin PCX as Filename:")
xdotool windowfocus --sync "$dialog" 2>/dev/null || true
xdotool type --delay 20 "$WORK/saved.pcx"
xdotool key Return
for _ in $(seq 50); do [ -s "$WORK/saved.PCX" ] && break; sleep 0.1; done
[ -s "$WORK/saved.PCX" ] || fail "no saved file"

cat >"$WORK/same.tvs" <<SCRIPT_END
answer open "$WORK/skin.pcx"
answer msgbox no
click pcxIm
answer save "$WORK/expected.pcx"
click SKas
SCRIPT_END
"$SCRIPT" "$WORK/same.tvs" >/dev/null
cmp "$WORK/saved.PCX" "$WORK/expected.PCX" || fail "the saved file differs"
echo "open and save: ok"
