#!/bin/sh
# The style and static checks.
#
#   scripts/lint.sh format          clang-format over every tracked C++ file
#   scripts/lint.sh tidy [BUILD]    clang-tidy (.clang-tidy's checks; findings are errors)
#                                   over src/ with BUILD's compile commands (build-test)
#   TAVRIN_TIDY_JOBS                parallel clang-tidy runs (default: the processors)
set -eu
cd "$(dirname "$0")/.."

case "${1:-}" in
format)
    # shellcheck disable=SC2046 # one word a file
    clang-format --dry-run --Werror $(git ls-files '*.cpp' '*.h')
    echo "clang-format: clean."
    ;;
tidy)
    build="${2:-build-test}"
    log="$build/clang-tidy.log"
    # The build's warning flags are GCC's; clang-tidy parses with clang.
    if ! run-clang-tidy -p "$build" -quiet -j "${TAVRIN_TIDY_JOBS:-$(nproc)}" \
            -extra-arg=-Wno-unknown-warning-option "$(pwd)/src/" >"$log" 2>&1; then
        grep -E "(warning|error):" -A3 "$log" || tail -n 20 "$log"
        echo "clang-tidy found problems (full log: $log)" >&2
        exit 1
    fi
    echo "clang-tidy: clean."
    ;;
*)
    echo "usage: scripts/lint.sh format | tidy [BUILD_DIR]" >&2
    exit 2
    ;;
esac
