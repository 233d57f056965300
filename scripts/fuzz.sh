#!/bin/sh
# Builds the libFuzzer targets with clang (ASan + UBSan) and runs each for a bounded time.
# Fails on any crash, sanitizer report, leak, slow input or out-of-memory; the inputs
# that did it are listed, to be kept in tests/data/regressions/<target>/.
#
#   TAVRIN_FUZZ_SECONDS   seconds per target (default 30)
#   TAVRIN_FUZZ_TARGETS   which targets (default: all of them)
#   TAVRIN_FUZZ_DIR       scratch folder for corpora and findings, kept between runs so
#                         the corpora grow (default $TMPDIR/tavrin-fuzz)
#   TAVRIN_FUZZ_ARGS      more libFuzzer options, e.g. "-max_len=4096"
#   TAVRIN_REALDATA       real files to seed from, when present (default ../shared/realdata)
set -eu
cd "$(dirname "$0")/.."
src="$(pwd)"
seconds="${TAVRIN_FUZZ_SECONDS:-30}"
targets="${TAVRIN_FUZZ_TARGETS:-pcx pal md2_frame md2_import text_palette bmp}"
work="${TAVRIN_FUZZ_DIR:-${TMPDIR:-/tmp}/tavrin-fuzz}"
realdata="${TAVRIN_REALDATA:-$src/../shared/realdata}"

CXX=clang++ CC=clang cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTAVRIN_FUZZ=ON -DTAVRIN_SANITIZE=ON -DTAVRIN_QT=OFF -DTAVRIN_TESTS=OFF \
    -DTAVRIN_BENCH=OFF >/dev/null
# shellcheck disable=SC2086 # one word a target
cmake --build build-fuzz -j"$(nproc)" $(for t in $targets; do printf -- '--target fuzz_%s ' "$t"; done)

# Copies the files under a folder whose names end in the given ending (any case) into a
# corpus, each named by its contents, as libFuzzer names what it adds.
seed() { # corpus folder ending
    [ -d "$2" ] || return 0
    find "$2" -type f -iname "*$3" | while IFS= read -r f; do
        cp "$f" "$1/$(sha1sum <"$f" | cut -c1-40)"
    done
}

status=0
summary=""
for t in $targets; do
    corpus="$work/corpus/$t" found="$work/findings/$t" log="$work/$t.log"
    rm -rf "$found" "$work/tmp"
    mkdir -p "$corpus" "$found" "$work/tmp"
    # Earlier findings too: every run tries them again first.
    seed "$corpus" tests/data/regressions/"$t" ""
    case "$t" in
    pcx) seed "$corpus" tests/data .pcx && seed "$corpus" "$realdata" .pcx ;;
    pal) cp data/Quake2.PAL "$corpus/" && seed "$corpus" tests/data .pcx &&
         seed "$corpus" "$realdata/palettes" "" ;;
    md2_*) seed "$corpus" tests/data .md2 && seed "$corpus" "$realdata/md2" .md2 ;;
    text_palette) seed "$corpus" "$realdata/palettes" .pal ;;
    bmp) if command -v convert >/dev/null; then # a few bitmaps of each kind, made here
             for kind in "-type truecolor" "-type palette" "-type palette -compress none" \
                         "-colors 8 -type palette -depth 4" "-monochrome"; do
                 # shellcheck disable=SC2086 # one option a word
                 convert -size 13x7 plasma:fractal -seed 1 $kind "BMP3:$work/tmp/seed.bmp" &&
                     cp "$work/tmp/seed.bmp" "$corpus/$(sha1sum <"$work/tmp/seed.bmp" | cut -c1-40)"
             done
         fi ;;
    esac

    echo "== fuzz_$t: $seconds s, corpus $corpus"
    rc=0
    # shellcheck disable=SC2086 # TAVRIN_FUZZ_ARGS is a list of options
    TMPDIR="$work/tmp" \
    ASAN_OPTIONS="quarantine_size_mb=16:detect_leaks=1" \
    UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1" \
        build-fuzz/fuzz_"$t" -max_total_time="$seconds" -timeout=10 \
            -rss_limit_mb=512 -malloc_limit_mb=512 -print_final_stats=1 \
            -artifact_prefix="$found/" ${TAVRIN_FUZZ_ARGS:-} "$corpus" >"$log" 2>&1 || rc=$?
    execs="$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)"
    # With -fork the count stands only in the progress lines.
    [ -n "$execs" ] || execs="$(sed -n 's/^#\([0-9]*\): cov:.*/\1/p' "$log" | tail -n 1)"
    rss="$(sed -n 's/^stat::peak_rss_mb: *//p' "$log" | tail -n 1)"
    line="fuzz_$t: ${execs:-?} executions, peak RSS ${rss:-?} MB"
    if [ "$rc" -ne 0 ] || [ -n "$(ls -A "$found")" ] || grep -qE 'ERROR: (libFuzzer|AddressSanitizer|LeakSanitizer)|runtime error:' "$log"; then
        status=1
        line="$line: FAILED (exit $rc)"
        grep -E '^fuzz_|^==[0-9]+== ?ERROR|runtime error:|^SUMMARY|out-of-memory|Timeout|leak' "$log" | head -n 8
        echo "Full log: $log"
        echo "Inputs that failed (move them to tests/data/regressions/$t/ and fix the reader):"
        find "$found" -type f | sed 's/^/  /'
    fi
    summary="$summary$line
"
    rm -rf "$work/tmp"
done
printf '%s' "$summary"
[ "$status" -eq 0 ] && echo "Fuzzing found nothing." || echo "Fuzzing found failures." >&2
exit "$status"
