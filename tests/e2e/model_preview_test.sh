#!/bin/sh
# View > Model Preview on a real model wearing its real skin: the window opens from the
# menu, a stroke painted on the canvas shows on the model at the mouse-up, and a drag in
# the preview turns the model.
# Usage: model_preview_test.sh path/to/tavrin MODEL.md2 SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
make_work
[ -f "$2" ] && [ -f "$3" ] || { echo "no real model and skin: skipped"; exit 77; }
cp "$2" "$WORK/tris.md2"
start_with_skin "$3"

open_menu "$main" 96                             # View
xdotool key Down Down Down Down Down Down Return # Wire Frame
type_in_dialog "Import Base MD2 Wireframe." "$WORK/tris.md2"
sleep 1

pick_green_pencil "$main"
panel_top=$PANEL_TOP

open_menu "$main" 96                             # View
xdotool key Up Return                            # its last item: Model Preview
preview=$(wait_window "Model Preview - tris.md2")
# Beside the canvas, which stands in the middle of the screen (a 256 x 256 skin).
xdotool windowmove "$preview" 775 60 windowsize "$preview" 500 560
sleep 1

# The difference of two pictures of the preview, in pixels.
grab() { import -window "$preview" "$WORK/$1.png"; }
differ() { compare -metric AE "$WORK/$1.png" "$WORK/$2.png" null: 2>&1 || true; }
grab opened
# The model drawn on the picture: more than the background's one colour.
colours=$(identify -format %k "$WORK/opened.png")
[ "$colours" -gt 20 ] || fail "the preview shows no model ($colours colours)"

# One stroke over the skin's middle, to and fro in rows, the button held throughout;
# the pencil marks the pixel of each move, so the moves are a few pixels apart.
surface_top=$((panel_top - 510 / 15))
cy=$((surface_top + ($(xdotool getdisplaygeometry | cut -d' ' -f2)) / 2))
cx=$((width / 2))
moves=""
for dy in $(seq -90 6 90); do
    for dx in $(seq -110 3 110); do moves="$moves mousemove $((cx + dx)) $((cy + dy))"; done
done
xdotool mousemove $((cx - 110)) $((cy - 90)) mousedown 1 $moves mouseup 1
sleep 0.5
grab painted
changed=$(differ opened painted)
[ "$changed" -gt 0 ] || fail "the stroke does not show on the model"

# A drag across the picture turns the model.
xdotool mousemove --window "$preview" 200 250 mousedown 1
for dx in $(seq 0 10 120); do xdotool mousemove --window "$preview" $((200 + dx)) 250; done
xdotool mouseup 1
sleep 0.5
grab turned
turned=$(differ painted turned)
[ "$turned" -gt 0 ] || fail "a drag does not turn the model"

if [ -n "${TAVRIN_SCREENSHOTS:-}" ]; then
    import -window root -crop 810x720+465+0 +repage "$TAVRIN_SCREENSHOTS/model-preview.png"
fi
echo "model preview: ok ($changed pixels changed by the stroke, $turned by the turn)"
