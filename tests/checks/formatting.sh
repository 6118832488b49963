#!/usr/bin/env bash
# Every source stands as clang-format puts it.
cd "$1" || exit 2
find src tests tools bench fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
  xargs -0 -r clang-format-14 --dry-run --Werror
