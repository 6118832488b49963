#!/usr/bin/env bash
# Measures which lines and branches of each folder of src the test run goes through. Builds without the sanitizers, into
# build/coverage.
#
#   tools/coverage.sh [--gaps]     --gaps: also names the files with the most lines that no test runs
#
# Needs gcovr (Debian package gcovr).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

if ! command -v gcovr >/dev/null; then
  echo "coverage: gcovr is missing; install the package gcovr" >&2
  exit 1
fi

build=build/coverage
cmake -S . -B $build -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O0 --coverage -fprofile-update=atomic" >/dev/null
cmake --build $build
find $build -name '*.gcda' -delete
ctest --test-dir $build --parallel "$(nproc)" -E '^check:' | tail -n 5

# summary FOLDER: its lines and branches; those of a throw that no statement makes do not count.
summary() {
  gcovr --root . --filter "$1/" --exclude-throw-branches --exclude-unreachable-branches \
    --print-summary --output /dev/null "$build" 2>/dev/null |
    awk -v folder="$1" '/^lines/ { lines = $2 " " $3 $4 $5 $6 } /^branches/ { branches = $2 " " $3 $4 $5 $6 }
      END { printf "%-24s lines %-22s branches %s\n", folder, lines, branches }'
}
for folder in src/*/ src/platform/office/ src/; do
  summary "${folder%/}"
done

if [ "${1:-}" = --gaps ]; then
  gcovr --root . --filter src/ --sort-uncovered "$build" 2>/dev/null | head -n 30
fi
