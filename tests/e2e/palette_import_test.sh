#!/bin/sh
# Imports an ACT table and then a text palette through the real menus and file dialog,
# saving the skin after each, and compares the saved files with what the headless driver
# writes for the same commands; the saved palette is the imported one. "&Import Image",
# whose menu item is hidden, is reached through the driver with a bitmap made here.
# Usage: palette_import_test.sh path/to/tavrin path/to/tavrin-script SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
SCRIPT="$2"
make_work
cp "$3" "$WORK/skin.pcx"

# An ACT table: 768 bytes, byte k being (7k + 3) mod 256.
k=0
while [ "$k" -lt 768 ]; do
    # shellcheck disable=SC2059 # the byte's octal escape is the format
    printf "\\$(printf %o $(((7 * k + 3) % 256)))"
    k=$((k + 1))
done >"$WORK/table.act"
[ "$(wc -c <"$WORK/table.act")" -eq 768 ] || fail "the ACT table was not made whole"
# A text palette: the header, then 256 lines of red, green and blue.
{
    printf 'JASC-PAL\r\n0100\r\n256\r\n'
    k=0
    while [ "$k" -lt 256 ]; do
        printf '%d %d %d\r\n' "$k" $(((k * 3) % 256)) $((255 - k))
        k=$((k + 1))
    done
} >"$WORK/colours.pal"

start_x
start_tavrin "$TAVRIN"
main=$(press_ok)
open_skin "$main" "$WORK/skin.pcx"

# File > Import Palette > the item the keys reach, then the file into the dialog of that
# title. Under load the menu may take the keys before it is open: then again.
import_palette() { # keys title path
    for _ in 1 2 3; do
        open_menu "$main" 20
        # shellcheck disable=SC2086 # one key a word
        xdotool key $1
        timeout 5 xdotool search --sync --onlyvisible --name "^$2\$" >/dev/null 2>&1 && break
        xdotool key Escape Escape Escape
    done
    type_in_dialog "$2" "$3"
    sleep 0.5
}
import_palette "Down Down Down Right Return" "Load ACT Color Table Palette" "$WORK/table.act"
save_skin_as "$main" "$WORK/act"
import_palette "Down Down Down Right Down Return" ".PAL 256 Color Palette" "$WORK/colours.pal"
shot palette-imported.png
save_skin_as "$main" "$WORK/pal"

cat >"$WORK/same.tvs" <<SCRIPT_END
answer open "$WORK/skin.pcx"
answer msgbox no
click pcxIm
answer open "$WORK/table.act"
click ACT
answer save "$WORK/expected-act.pcx"
click SKas
answer open "$WORK/colours.pal"
click PAL2
answer save "$WORK/expected-pal.pcx"
click SKas
SCRIPT_END
"$SCRIPT" "$WORK/same.tvs" >/dev/null
cmp "$WORK/act.PCX" "$WORK/expected-act.PCX" || fail "the skin saved after the ACT import differs"
cmp "$WORK/pal.PCX" "$WORK/expected-pal.PCX" || fail "the skin saved after the PAL import differs"
tail -c 768 "$WORK/act.PCX" | cmp - "$WORK/table.act" || fail "the saved palette is not the ACT table"
# Record 1 of the text palette is 1, 3, 254.
[ "$(tail -c 765 "$WORK/pal.PCX" | head -c 3 | od -An -tu1 | tr -s ' ')" = " 1 3 254" ] ||
    fail "the saved palette is not the text palette"

# A bitmap of 4 x 2 pixels, red, made here.
convert -size 4x2 xc:red "BMP3:$WORK/picture.bmp"
cat >"$WORK/image.tvs" <<SCRIPT_END
answer open "$WORK/picture.bmp"
click OpenSkin
print picture1.Point 3 1
print picture1.Point 4 1
print picture1.Visible
SCRIPT_END
out=$("$SCRIPT" "$WORK/image.tvs")
expected='dialog open "Load Skin Image" -> '"$WORK/picture.bmp"'
picture1.Point(3,1)=255
picture1.Point(4,1)=0
picture1.Visible=True'
[ "$out" = "$expected" ] || fail "the driver's picture import gave: $out"
echo "palette and picture import: ok"
