#!/bin/sh
# Sets up, builds and starts the editor.
set -eu
cd "$(dirname "$0")/.."
scripts/setup.sh run
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAVRIN_TESTS=OFF >/dev/null
cmake --build build --target tavrin -j"$(nproc)"
exec build/tavrin "$@"
