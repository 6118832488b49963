#!/usr/bin/env bash
# A solver computes with Real alone: a plain double or a call of the mathematics library would slip past the step rule.
cd "$1" || exit 2
hits=$(grep -nE '\b(double|float|int|long)\b [a-zA-Z_]+ *(=|;|\{)|std::(pow|sqrt|sin|log|exp|fabs|abs)\b' \
  src/engine/*_RESULTS.cpp src/engine/Common_Libraries.cpp src/engine/grate_*.cpp 2>/dev/null |
  grep -vE 'constexpr (double|float|int) ')
if [ -n "$hits" ]; then
  printf 'plain arithmetic in a solver:\n%s\n' "$hits"
  exit 1
fi
