#!/bin/sh
# Sets up, builds and runs every test: the core and Qt tests, the end-to-end tests under
# Xvfb, the core tests again under AddressSanitizer and UndefinedBehaviorSanitizer, and
# every file reader fuzzed for a while (scripts/fuzz.sh; TAVRIN_FUZZ_SECONDS per target).
set -eu
cd "$(dirname "$0")/.."
scripts/setup.sh
jobs="$(nproc)"

cmake -S . -B build-test -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAVRIN_WERROR=ON >/dev/null
cmake --build build-test -j"$jobs"
(cd build-test && ctest --output-on-failure -j"$jobs")

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DTAVRIN_SANITIZE=ON -DTAVRIN_QT=OFF \
      -DTAVRIN_BENCH=OFF -DTAVRIN_WERROR=ON >/dev/null
cmake --build build-asan -j"$jobs"
(cd build-asan && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
     ctest --output-on-failure -j"$jobs")

scripts/fuzz.sh
echo "All tests passed."
