#!/usr/bin/env bash
# A test that passed runs again when its program, its command or a file of the project has changed, and one that failed runs
# until it passes; a check runs always.
cd "$1" || exit 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "unchanged_tests: $1" >&2
  exit 1
}

mkdir -p "$work/tools" "$work/tests"
cp tools/unchanged_tests.pl "$work/tools"
cat >"$work/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(Planted LANGUAGES NONE)
enable_testing()
add_test(NAME "depth: <first> & \"second\"" COMMAND ${CMAKE_BINARY_DIR}/test_depth)
add_test(NAME "depth: case" COMMAND /bin/grep -q right ${CMAKE_SOURCE_DIR}/tests/case.tsv)
add_test(NAME "spread" COMMAND ${CMAKE_BINARY_DIR}/test_spread)
add_test(NAME "check: sources" COMMAND /bin/true)
END
echo right >"$work/tests/case.tsv"
cmake -S "$work" -B "$work/build" >/dev/null || fail "the planted project is not set up"
cp /bin/true "$work/build/test_depth"
cp /bin/false "$work/build/test_spread"

# runs COUNT WHY: as many run, as test.sh runs them.
runs() {
  local tests found
  tests=$(perl "$work/tools/unchanged_tests.pl" "$work/build") || fail "$2: the tests are not told"
  found=$(ctest --test-dir "$work/build" -I "$tests" --output-junit passed.xml 2>/dev/null | grep -c '^ *[0-9]*/[0-9]* Test')
  perl "$work/tools/unchanged_tests.pl" "$work/build" "$work/build/passed.xml" || fail "$2: what passed is not noted"
  [ "$found" -eq "$1" ] || fail "$2: $found run and not $1"
}

runs 4 "at first"
runs 2 "only what failed, and the check"
cp /bin/true "$work/build/test_spread"
runs 2 "the program that failed is mended"
runs 1 "nothing has changed"
echo >>"$work/build/test_depth"
runs 2 "one program has changed"
echo wrong >"$work/tests/case.tsv"
runs 4 "a file that tests read has changed"
runs 2 "a test that had passed has failed"
echo right >"$work/tests/case.tsv"
runs 4 "and is mended"
runs 1 "nothing has changed since"
