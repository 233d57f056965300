#!/bin/sh
# Opens a skin through the real menus and file dialog, saves it under a new name, and
# compares the file with what the headless driver writes for the same two commands.
# Usage: open_save_test.sh path/to/tavrin path/to/tavrin-script SKIN.pcx
. "$(dirname "$0")/lib.sh"
TAVRIN="$1"
SCRIPT="$2"
SKIN="$3"
make_work
cp "$SKIN" "$WORK/skin.pcx"
start_x

start_tavrin "$TAVRIN"
main=$(press_ok)

open_skin "$main" "$WORK/skin.pcx"
shot main-window-skin.png

save_skin_as "$main" "$WORK/saved"

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
