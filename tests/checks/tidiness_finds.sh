#!/usr/bin/env bash
# The check of tidiness finds what is planted: in each source of those that the build joins, in a header and in a test. It
# looks again at what a change reaches, and at nothing else.
cd "$1" || exit 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# plant FILE: its text from standard input, in a small project that is built and checked like this one.
plant() {
  mkdir -p "$work/$(dirname "$1")"
  cat >"$work/$1"
}

fail() {
  echo "tidiness_finds: $1" >&2
  cat "$work/log" >&2
  exit 1
}

check() {
  cmake --build "$work/build" >"$work/log" 2>&1 || fail "the planted project is not built"
  "$work/tests/checks/tidiness.sh" "$work" "$work/build" >"$work/log" 2>&1
}
finds() { grep -q "/$1:.*\[$2[],]" "$work/log" || fail "$2 is not found in $1"; }
looked_at() { grep -q "^looked at $1 of 4 sources$" "$work/log" || fail "not $1 of 4 sources were looked at"; }

plant CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(Planted LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
include_directories(src)
add_subdirectory(src/engine)
add_subdirectory(src/editor)
add_subdirectory(tests/engine)
END
plant src/engine/CMakeLists.txt <<'END'
add_library(engine depth.cpp spread.cpp)
set_target_properties(engine PROPERTIES UNITY_BUILD ON)
END
plant src/editor/CMakeLists.txt <<'END'
add_library(editor form.cpp grid.cpp)
END
plant tests/engine/CMakeLists.txt <<'END'
add_executable(test_engine depth_test.cpp spread_test.cpp)
target_link_libraries(test_engine engine)
set_target_properties(test_engine PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 1)
END

plant src/engine/depth.h <<'END'
#pragma once
namespace planted {
int depth(int flow);
inline int* nowhere() {
    return 0;
}
}  // namespace planted
END
plant src/engine/depth.cpp <<'END'
#include "engine/depth.h"
namespace planted {
int depth(int flow) {
    const int* found = nullptr;
    if (flow > 1) {
        found = &flow;
    }
    return *found;
}
}  // namespace planted
END
plant src/engine/spread.cpp <<'END'
#include <memory>
#include <string>
#include "engine/depth.h"
namespace planted {
using std::unique_ptr;
double spread(const std::string& text) {
    const int whole = depth(3);
    if (text.size() == 0) {
        return whole / 2;
    }
    return whole;
}
}  // namespace planted
END
plant src/editor/form.cpp <<'END'
namespace planted {
int form(int fields) {
    if (fields > 1) return 1;
    return fields;
}
}  // namespace planted
END
plant src/editor/grid.cpp <<'END'
namespace planted {
int grid(int rows) {
    return rows;
}
}  // namespace planted
END
plant tests/engine/depth_test.cpp <<'END'
#include <string>
#include "engine/depth.h"
namespace planted {
int tested(std::string text) {
    return static_cast<int>(text.size()) + depth(2);
}
}  // namespace planted
END
plant tests/engine/spread_test.cpp <<'END'
#include "engine/depth.h"
int main() {
    int* found = NULL;
    return found == nullptr ? 0 : planted::depth(1);
}
END
sed -i '1i #include <cstddef>' "$work/tests/engine/spread_test.cpp"
mkdir -p "$work/tests/checks"
cp tests/checks/tidiness.sh tests/checks/tidiness_units.pl "$work/tests/checks"
cp .clang-tidy "$work"
cmake -S "$work" -B "$work/build" -G Ninja >"$work/log" 2>&1 || fail "the planted project is not set up"

check && fail "what is planted passes"
finds src/engine/depth.h modernize-use-nullptr
finds src/engine/depth.cpp clang-analyzer-core.NullDereference
finds src/engine/spread.cpp bugprone-integer-division
finds src/engine/spread.cpp misc-unused-using-decls
finds src/engine/spread.cpp readability-container-size-empty
finds src/editor/form.cpp readability-braces-around-statements
finds tests/engine/depth_test.cpp performance-unnecessary-value-param
finds tests/engine/spread_test.cpp modernize-use-nullptr
looked_at 4

sed -i 's/return 0;/return nullptr;/' "$work/src/engine/depth.h"
sed -i 's/const int\* found = nullptr;/const int* found = \&flow;/' "$work/src/engine/depth.cpp"
sed -i 's/text.size() == 0/text.empty()/; s/whole \/ 2/whole/; /using/d' "$work/src/engine/spread.cpp"
sed -i 's/ return 1;/ {\n        return 1;\n    }/' "$work/src/editor/form.cpp"
sed -i 's/(std::string text)/(const std::string\& text)/' "$work/tests/engine/depth_test.cpp"
sed -i 's/NULL/nullptr/' "$work/tests/engine/spread_test.cpp"
check || fail "what is mended does not pass"
looked_at 3
check || fail "what has not changed does not pass"
looked_at 0
echo '// One line more.' >>"$work/src/engine/depth.h"
check || fail "a comment does not pass"
looked_at 2
