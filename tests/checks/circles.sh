#!/usr/bin/env bash
# No circle of units in a folder: what NAME.cpp and NAME.h include never leads back to them. In the engine the arrows
# also run down through its rooms.
cd "$1/src" || exit 2
failed=0

# includes_of FOLDER: "unit included-unit" for every include within the folder, a unit being a path without its suffix.
includes_of() {
  grep -rE "^#include \"$1/" "$1" --include='*.cpp' --include='*.h' |
    sed -E 's@^(.*)\.(cpp|h):#include "(.*)\.(h|def)"$@\1 \3@' | awk '$1 != $2' | sort -u
}

for folder in catalogue engine platform reports store; do
  if ! circle=$(includes_of "$folder" | tsort 2>&1 >/dev/null); then
    printf 'src/%s holds a circle:\n%s\n' "$folder" "$circle"
    failed=1
  fi
done

# forbid UNITS OTHERS: none of the units includes one of the others.
forbid() {
  local hits
  if hits=$(includes_of engine | grep -E "^($1) ($2)$"); then
    printf 'an upward arrow in src/engine:\n%s\n' "$hits"
    failed=1
  fi
}

forbid 'engine/[a-z_]+' 'engine/hydraulics/.*'
forbid 'engine/hydraulics/.*' 'engine/(solvers/.*|solve)'
forbid 'engine/solvers/.*' 'engine/(solvers/.*|solve)'
exit $failed
