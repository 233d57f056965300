#!/bin/sh
# Peak memory of the editor with a 1501 x 1501 skin at zoom 16: a new skin from a model of
# that size, four zoom steps, a pencil stroke across the canvas, the wireframe laid over
# it and a save, run by tavrin-script under /usr/bin/time -v. Fails above LIMIT_MB.
#   bench/peak_memory.sh [BUILD_DIR] [LIMIT_MB]
set -eu
here="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$here/build}"
limit_mb="${2:-250}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# The test model with the skin size of its header made 1501 x 1501.
python3 - "$here/tests/data/tetra-32x24.md2" "$work/big.md2" <<'PY'
import struct, sys
model = bytearray(open(sys.argv[1], "rb").read())
struct.pack_into("<2i", model, 8, 1501, 1501)
open(sys.argv[2], "wb").write(model)
PY

cat > "$work/script" <<EOF
answer open $work/big.md2
click NewSkin
click SSCommand19
mouse down 1 0 100 80
mouse up 1 0 100 80
mouse down 1 0 100 80
mouse up 1 0 100 80
mouse down 1 0 100 80
mouse up 1 0 100 80
mouse down 1 0 100 80
mouse up 1 0 100 80
print Zoom_Factor
click SSCommand4
mouse down 1 0 40 40
mouse move 1 0 6000 4000
mouse move 1 0 20000 18000
mouse up 1 0 20000 18000
answer open $work/big.md2
click wF
answer save $work/out.pcx
click SKas
EOF

/usr/bin/time -v "$build/tavrin-script" "$work/script" >"$work/out" 2>"$work/time"
if ! grep -q "Zoom_Factor=16" "$work/out"; then
    echo "peak memory: zoom 16 not reached" >&2
    cat "$work/out" "$work/time" >&2
    exit 1
fi
kb="$(sed -n 's/.*Maximum resident set size (kbytes): //p' "$work/time")"
mb=$((kb / 1024))
echo "peak memory, 1501 x 1501 skin at zoom 16: $mb MB (limit $limit_mb MB)"
[ "$mb" -lt "$limit_mb" ]
