#!/bin/sh
# Sets up, builds and runs every test: the style check, the core and Qt tests, the
# end-to-end tests under Xvfb, the speed budgets and the peak memory, the core tests again
# under AddressSanitizer and UndefinedBehaviorSanitizer, clang-tidy, and every file reader
# fuzzed for a while (scripts/fuzz.sh; TAVRIN_FUZZ_SECONDS per target).
# The Qt tests and the monkey in the real program run under both sanitizers as well.
set -eu
cd "$(dirname "$0")/.."
scripts/setup.sh
jobs="$(nproc)"
scripts/lint.sh format

cmake -S . -B build-test -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAVRIN_WERROR=ON >/dev/null
cmake --build build-test -j"$jobs"
(cd build-test && ctest --output-on-failure -j"$jobs")
# The speed budgets, briefly, with room for a busy machine; then the peak memory.
build-test/tavrin-bench --benchmark_min_time=0.1 --check 3 >build-test/bench.log 2>&1 ||
    { cat build-test/bench.log; exit 1; }
sed -n '/^hot path/,$p' build-test/bench.log
bench/peak_memory.sh build-test

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DTAVRIN_SANITIZE=ON -DTAVRIN_QT=OFF \
      -DTAVRIN_BENCH=OFF -DTAVRIN_WERROR=ON >/dev/null
cmake --build build-asan -j"$jobs"
(cd build-asan && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
     ctest --output-on-failure -j"$jobs")

# The Qt layer under the sanitizers too: its widget tests, and the real program with the
# monkey that activates every command it finds on the window.
cmake -S . -B build-asan-qt -DCMAKE_BUILD_TYPE=Debug -DTAVRIN_SANITIZE=ON -DTAVRIN_QT=ON \
      -DTAVRIN_BENCH=OFF -DTAVRIN_WERROR=ON >/dev/null
cmake --build build-asan-qt -j"$jobs" --target tavrin tavrin_monkey tavrin_qt_tests
(cd build-asan-qt && ASAN_OPTIONS=detect_leaks=1 QT_QPA_PLATFORM=offscreen tests/tavrin_qt_tests &&
     ctest --output-on-failure -R '^e2e_monkey$')

# clang-tidy runs beside the fuzzers, which keep one processor busy at a time.
TAVRIN_TIDY_JOBS=1 scripts/lint.sh tidy build-test &
tidy=$!
fuzz=0
scripts/fuzz.sh || fuzz=$?
wait "$tidy"
[ "$fuzz" -eq 0 ]
echo "All tests passed."
