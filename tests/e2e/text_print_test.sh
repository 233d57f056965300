#!/bin/sh
# The text tool in the real window (placed by a click, typed, Enter, the tool bar's
# styles and font, Flip Text, Apply, Close), then printing to a PDF file by the menu and
# by the tool bar, the print preview and its clicks, the printer set-up, Help and About.
# The saved skin may differ from the opened one only in the stamped colour, right of and
# below the clicks.
# Usage: text_print_test.sh path/to/tavrin path/to/tavrin-script SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
SCRIPT="$2"
make_work
cp "$3" "$WORK/skin.pcx"
start_x

# With no printer installed the prints go to tavrin-print.pdf in the home folder.
HOME="$WORK" "$TAVRIN" >"$WORK/tavrin.log" 2>&1 &
TAVRIN_PID=$!
main=$(press_ok)
open_skin "$main" "$WORK/skin.pcx"

width=$(xdotool getdisplaygeometry | cut -d' ' -f1)
height=$(xdotool getdisplaygeometry | cut -d' ' -f2)
palette_left=$(( (width * 15 - 3275 + 7) / 15 ))
palette_top=$(navy_top $((palette_left + 40)))
[ -n "$palette_top" ] || fail "the palette is not on the screen"
surface_top=$((palette_top - 510 / 15))
at() { xdotool mousemove "$1" $((surface_top + $2)) click 1; sleep 0.3; }
pixel_at() { xwd -root -silent | convert xwd:- -crop "1x1+$1+$2" txt:-; }

# Cell 221 (column 13, row 13): a yellow of the game's palette.
xdotool mousemove $((palette_left + 13 + 13 * 11 + 5)) $((palette_top + 27 + 13 * 11 + 5)) click 1
sleep 0.3
# The Text button of the tool bar, which stands at the window's right edge.
toolbar_left=$(( (width * 15 - 2405) / 15 ))
at $((toolbar_left + 56)) $((4650 / 15 + 151))

# The canvas is centred; the text panel covers its left part, so the clicks go right.
canvas_left=$((width / 2 - 99))
canvas_top=$((height / 2 - 80))
text_panel_left=$((5295 / 15))
text_panel_top=$((4680 / 15))
type_and_enter() {
    at $((text_panel_left + 134)) $((text_panel_top + 49)) # Text7
    [ -z "$1" ] || { xdotool key ctrl+a BackSpace; xdotool type --delay 30 "$1"; }
    xdotool key Return
    sleep 0.5
}
apply_at() {
    at $((canvas_left + $1)) $((canvas_top + $2))      # places the text
    at $((text_panel_left + 134)) $((text_panel_top + 183)) # Apply
}
at $((canvas_left + 95)) $((canvas_top + 20))
type_and_enter "Tavrin"
at $((text_panel_left + 134)) $((text_panel_top + 183))

# The tool bar's buttons by their separators: Cut, Copy, Paste | Bold, Italic,
# Underline | Font are the last three groups.
separators=$(xwd -root -silent | convert xwd:- -crop "900x30+0+$((surface_top - 32))" +repage \
    -colorspace Gray -depth 8 gray:- | od -An -v -tu1 -w900 | awk '
    { for (x = 2; x < NF; x++) if ($x + 15 < $(x - 1) && $(x + 1) > $(x - 1)) n[x - 1]++ }
    END { for (x = 1; x < 899; x++) if (n[x] >= 15) printf "%d ", x }')
set -- $separators
[ $# -ge 3 ] || fail "no tool bar separators found ($separators)"
while [ $# -gt 3 ]; do shift; done
sep_print=$1 sep_styles=$2 sep_font=$3
toolbar_y=$((surface_top - 17))
button() { xdotool mousemove "$1" "$toolbar_y" click 1; sleep 0.3; }
button $((sep_styles + 22))                                          # Bold
button $((sep_styles + (sep_font - sep_styles) * 2 / 5))             # Italic
button $((sep_font - 40))                                            # Underline
type_and_enter ""
apply_at 95 60
at $((text_panel_left + 48)) $((text_panel_top + 183))               # Flip Text
apply_at 95 110
shot text-tool.png

button $((sep_font + 25))                                            # Font
answer "$(wait_window "Select Font")" Return
sleep 0.3
# The text panel's title bar is navy while it is open (right of its caption).
title_navy() {
    case "$(pixel_at $((text_panel_left + 200)) $((surface_top + text_panel_top + 5)))" in
    *'#000080'*) return 0 ;;
    esac
    return 1
}
title_navy || fail "the text panel is not open"
at $((text_panel_left + 220)) $((text_panel_top + 183))              # Close
title_navy && fail "Close left the text panel open"

save_skin_as "$main" "$WORK/saved"
dump_grids "$SCRIPT" "$WORK/skin.pcx" "$WORK/saved.PCX"
# cmp -l gives 1-based byte offsets: cell (offset - 1) / 2 of a 200-pixel row.
changed=$(cmp -l "$WORK/before.grid" "$WORK/after.grid" | awk '
    { cell = int(($1 - 1) / 2); x = cell % 200; y = int(cell / 200)
      if ($1 % 2 == 0 || x < 94 || y < 19 || (idx != "" && $3 != idx)) bad = 1
      idx = $3; n++ }
    END { print (bad ? "bad" : n + 0) }')
[ "$changed" != "bad" ] || fail "the saved skin changed by more than the stamps"
[ "$changed" -ge 60 ] || fail "the stamps painted $changed pixels"

# File > Print, then the tool bar's Print: each writes the page with the skin on it.
for how in menu toolbar; do
    rm -f "$WORK/tavrin-print.pdf"
    if [ $how = menu ]; then
        open_menu "$main" 20
        xdotool key Down Down Down Down Down Down Return
    else
        button $((sep_print - 30))
    fi
    for _ in $(seq 50); do [ -s "$WORK/tavrin-print.pdf" ] && break; sleep 0.1; done
    sleep 0.5
    grep -qa "/Width 198" "$WORK/tavrin-print.pdf" || fail "no page with the skin ($how)"
done

# File > Print Preview: a click on the label keeps it, one on the free area ends it.
open_menu "$main" 20
xdotool key Down Down Down Down Down Down Down Return
wait_window "Tavrin PRINT FORM" >/dev/null
sleep 0.5
shot print-preview.png
case "$(pixel_at $((width / 2)) $((height / 2)))" in
*'#FFFFFF'*) fail "the skin is not in the middle of the preview" ;;
esac
xdotool mousemove 30 10 click 1
sleep 0.5
xdotool search --onlyvisible --name "^Tavrin PRINT FORM\$" >/dev/null || fail "a label ended the preview"
xdotool mousemove 20 $((height - 20)) click 1
sleep 0.5
xdotool search --onlyvisible --name "^Tavrin PRINT FORM\$" >/dev/null && fail "the preview stayed"

# File > Print Setup, cancelled.
open_menu "$main" 20
xdotool key Down Down Down Down Down Down Down Down Return
answer "$(wait_window "Print Setup")" Escape
sleep 0.3

# Help > Help and Help > About, each a message box.
for keys in "Return" "Down Return"; do
    xdotool windowfocus --sync "$main" 2>/dev/null || true
    xdotool key alt+h
    sleep 0.3
    xdotool key $keys
    answer "$(wait_window "Tavrin")" Return
    sleep 0.3
done
kill -0 "$TAVRIN_PID" 2>/dev/null || fail "the editor ended"
echo "text, printing, help: ok ($changed pixels stamped)"
