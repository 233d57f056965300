#!/bin/sh
# File > New Skin from a model through the real dialog, View > Wire Frame with a second
# model, a screenshot of the overlay, and the new skin saved as the headless driver
# saves it.
# Usage: model_test.sh path/to/tavrin path/to/tavrin-script FIRST.md2 SECOND.md2
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
SCRIPT="$2"
make_work
[ -f "$3" ] && [ -f "$4" ] || { echo "no real models: skipped"; exit 77; }
cp "$3" "$WORK/first.md2"
cp "$4" "$WORK/second.md2"
start_x

start_tavrin "$TAVRIN"
main=$(press_ok)

open_menu "$main" 20                     # File
xdotool key Down Return                  # New Skin
type_in_dialog "New Skin From Base MD2 Wireframe." "$WORK/first.md2"
answer "$(wait_window "Tavrin")" Return  # the advice to save the new skin
sleep 0.5

open_menu "$main" 96                     # View
xdotool key Down Down Down Down Down Down Return # Wire Frame
type_in_dialog "Import Base MD2 Wireframe." "$WORK/second.md2"
sleep 1
shot wireframe-overlay.png

save_skin_as "$main" "$WORK/saved"

cat >"$WORK/same.tvs" <<SCRIPT_END
answer open "$WORK/first.md2"
click NewSkin
answer save "$WORK/expected.pcx"
click SKas
SCRIPT_END
"$SCRIPT" "$WORK/same.tvs" >/dev/null
cmp "$WORK/saved.PCX" "$WORK/expected.PCX" || fail "the saved file differs"
echo "new skin and wireframe: ok"
