#!/bin/sh
# Builds the libFuzzer targets with clang (ASan + UBSan) and runs each for a bounded time,
# or in the long mode to a number of inputs. Fails on any crash, sanitizer report, leak,
# slow input, out-of-memory or check that finds fault; the inputs that did it are listed,
# to be kept in tests/data/regressions/<target>/.
#
#   scripts/fuzz.sh            each target for TAVRIN_FUZZ_SECONDS (the test command's run)
#   scripts/fuzz.sh long [N]   each target to N inputs (default 1000000), with no time limit
#
#   TAVRIN_FUZZ_SECONDS   seconds per target (default 30)
#   TAVRIN_FUZZ_TARGETS   which targets (default: all in the table below)
#   TAVRIN_FUZZ_DIR       scratch folder for corpora and findings, kept between runs so
#                         the corpora grow (default $TMPDIR/tavrin-fuzz)
#   TAVRIN_FUZZ_ARGS      more libFuzzer options, e.g. "-max_len=4096"
#   TAVRIN_REALDATA       real files to seed from, when present (default ../shared/realdata)
set -eu
cd "$(dirname "$0")/.."
src="$(pwd)"

# One line a target: fuzz_<name>, then what seeds its corpus: endings (any case) of the
# files under tests/data and the real data, or files of the source tree by path.
TABLE='
pcx          .pcx
pal          .pcx .pal .act data/Quake2.PAL
md2_frame    .md2
md2_import   .md2
pcx_runs     .pcx
md2_format   .md2
md2_mesh     .md2
raw_palette  .pcx .pal .act data/Quake2.PAL
text_palette .pal
bmp          .bmp
'

limit="-max_total_time=${TAVRIN_FUZZ_SECONDS:-30}"
if [ "${1:-}" = long ]; then
    limit="-runs=${2:-1000000}"
fi
targets="${TAVRIN_FUZZ_TARGETS:-$(echo "$TABLE" | awk 'NF { print $1 }')}"
work="${TAVRIN_FUZZ_DIR:-${TMPDIR:-/tmp}/tavrin-fuzz}"
realdata="${TAVRIN_REALDATA:-$src/../shared/realdata}"

CXX=clang++ CC=clang cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTAVRIN_FUZZ=ON -DTAVRIN_SANITIZE=ON -DTAVRIN_QT=OFF -DTAVRIN_TESTS=OFF \
    -DTAVRIN_BENCH=OFF >/dev/null
# shellcheck disable=SC2086 # one word a target
cmake --build build-fuzz -j"$(nproc)" $(for t in $targets; do printf -- '--target fuzz_%s ' "$t"; done)

# Copies files into a corpus, each named by its contents, as libFuzzer names what it adds:
# those under the folders whose names end in the ending (any case), or the one file.
seed() { # corpus ending-or-path folder...
    corpus="$1" what="$2"
    shift 2
    case "$what" in
    .*) for folder in "$@"; do
            [ -d "$folder" ] && find "$folder" -type f -iname "*$what" -not -path '*/regressions/*'
        done ;;
    *) echo "$what" ;;
    esac | while IFS= read -r f; do
        cp "$f" "$corpus/$(sha1sum <"$f" | cut -c1-40)"
    done
}

# No bitmaps lie among the test files: a few of each kind are made here.
bitmap_seeds() { # corpus
    command -v convert >/dev/null || return 0
    for kind in "-type truecolor" "-type palette" "-type palette -compress none" \
                "-colors 8 -type palette -depth 4" "-monochrome"; do
        # shellcheck disable=SC2086 # one option a word
        convert -size 13x7 plasma:fractal -seed 1 $kind "BMP3:$work/tmp/seed.bmp" &&
            cp "$work/tmp/seed.bmp" "$1/$(sha1sum <"$work/tmp/seed.bmp" | cut -c1-40)"
    done
}

status=0
summary=""
for t in $targets; do
    corpus="$work/corpus/$t" found="$work/findings/$t" log="$work/$t.log"
    rm -rf "$found" "$work/tmp"
    mkdir -p "$corpus" "$found" "$work/tmp"
    # Earlier findings too: every run tries them again first.
    for f in tests/data/regressions/"$t"/*; do
        [ -f "$f" ] && seed "$corpus" "$f"
    done
    seeds="$(echo "$TABLE" | awk -v t="$t" '$1 == t { $1 = ""; print }')"
    [ -n "$seeds" ] || { echo "fuzz.sh: no target $t in the table" >&2; exit 2; }
    for s in $seeds; do
        seed "$corpus" "$s" tests/data "$realdata"
    done
    [ "$t" != bmp ] || bitmap_seeds "$corpus"

    echo "== fuzz_$t: $limit, corpus $corpus"
    rc=0
    started=$(date +%s)
    # shellcheck disable=SC2086 # TAVRIN_FUZZ_ARGS is a list of options
    TMPDIR="$work/tmp" \
    ASAN_OPTIONS="quarantine_size_mb=16:detect_leaks=1" \
    UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1" \
        build-fuzz/fuzz_"$t" "$limit" -timeout=10 \
            -rss_limit_mb=512 -malloc_limit_mb=512 -print_final_stats=1 \
            -artifact_prefix="$found/" ${TAVRIN_FUZZ_ARGS:-} "$corpus" >"$log" 2>&1 || rc=$?
    seconds=$(($(date +%s) - started))
    execs="$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)"
    # With -fork the count stands only in the progress lines.
    [ -n "$execs" ] || execs="$(sed -n 's/^#\([0-9]*\).*cov:.*/\1/p' "$log" | tail -n 1)"
    rate="$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -n 1)"
    cov="$(sed -n 's/^#[0-9]*.*cov: \([0-9]*\) ft: \([0-9]*\) corp: \([0-9]*\).*/\1 edges, \2 features, \3 inputs kept/p' "$log" | tail -n 1)"
    rss="$(sed -n 's/^stat::peak_rss_mb: *//p' "$log" | tail -n 1)"
    line="fuzz_$t: ${execs:-?} executions in $seconds s (${rate:-?} a second), coverage ${cov:-?}, peak RSS ${rss:-?} MB"
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
