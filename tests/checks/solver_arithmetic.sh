#!/usr/bin/env bash
# A solver computes with Real alone: a plain double or a call of the mathematics library would slip past the step rule.
# The march to a sump's depth is the one exception: it reasons about the rounding of its trials.
cd "$1" || exit 2
sheets=$(find src/engine/solvers src/engine/hydraulics -name '*.cpp' ! -name sump_march.cpp) || exit 2
[ -n "$sheets" ] || exit 2
hits=$(grep -nE '\b(double|float|int|long)\b [a-zA-Z_]+ *(=|;|\{)|std::(pow|sqrt|sin|log|exp|fabs|abs)\b' $sheets |
  grep -vE 'constexpr (double|float|int) ')
if [ -n "$hits" ]; then
  printf 'plain arithmetic in a solver:\n%s\n' "$hits"
  exit 1
fi
