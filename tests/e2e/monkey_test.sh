#!/bin/sh
# The monkey in the real program: the tavrin binary, unchanged, with a library preloaded
# that presses OK, opens a skin and a model through the menus, activates every command it
# finds on the main window in turn and then in a seeded random order with mouse strokes
# between them, answers every dialog, and closes the window at the end. The program must
# be alive then, and end in its own way with no sanitizer report.
# Usage: monkey_test.sh path/to/tavrin path/to/libtavrin_monkey.so SKIN.pcx MODEL.md2
#   TAVRIN_MONKEY_SEED      the random order's seed (default 1)
#   TAVRIN_MONKEY_ACTIONS   actions in the random order (default 3000)
. "$(dirname "$0")/lib.sh"
TAVRIN="$(realpath "$1")"
MONKEY="$(realpath "$2")"
WORK="$(mktemp -d)"
trap 'finish; rm -rf "$WORK"' EXIT
cp "$3" "$WORK/skin.pcx"
cp "$4" "$WORK/model.md2"
# Palettes of both kinds, and a damaged skin for the dialogs to offer now and then.
tail -c 768 "$3" >"$WORK/palette.act"
{
    printf 'JASC-PAL\r\n0100\r\n256\r\n'
    i=0
    while [ "$i" -lt 256 ]; do
        printf '%d %d %d\r\n' "$i" $((255 - i)) $((i / 2))
        i=$((i + 1))
    done
} >"$WORK/palette.pal"
head -c 1500 "$3" >"$WORK/junk.bin"
start_x

# A sanitizer's runtime has to come first among the libraries the program loads.
preload="$MONKEY"
asan=$(ldd "$TAVRIN" | awk '/libasan/ { print $3 }')
[ -z "$asan" ] || preload="$asan:$MONKEY"
[ -z "${TAVRIN_SCREENSHOTS:-}" ] || (sleep 30 && shot monkey.png) &
rc=0
# The working folder and home are the test's: a print to a file lands there.
(cd "$WORK" && HOME="$WORK" TAVRIN_MONKEY_FILES="$WORK" \
    TAVRIN_MONKEY_SEED="${TAVRIN_MONKEY_SEED:-1}" \
    TAVRIN_MONKEY_ACTIONS="${TAVRIN_MONKEY_ACTIONS:-3000}" \
    ASAN_OPTIONS="detect_leaks=0:abort_on_error=1" UBSAN_OPTIONS="print_stacktrace=1" \
    timeout 800 env LD_PRELOAD="$preload" "$TAVRIN" >"$WORK/tavrin.log" 2>&1) || rc=$?

report() {
    echo "--- the monkey's last actions:"
    tail -n 25 "$WORK/monkey.log" 2>/dev/null || true
    echo "--- the program's output:"
    grep -v '^This plugin does not support' "$WORK/tavrin.log" | tail -n 40 || true
}
if [ "$rc" -ne 0 ] || grep -qE 'ERROR: AddressSanitizer|runtime error:' "$WORK/tavrin.log"; then
    report
    fail "the program ended with status $rc (seed ${TAVRIN_MONKEY_SEED:-1})"
fi
grep -q '^monkey: done' "$WORK/monkey.log" && grep -q 'the program ended when asked' "$WORK/monkey.log" ||
    { report; fail "the monkey did not finish (seed ${TAVRIN_MONKEY_SEED:-1})"; }
grep '^monkey: done' "$WORK/monkey.log"
echo "monkey: ok ($(grep -c '^#' "$WORK/monkey.log") commands activated)"
