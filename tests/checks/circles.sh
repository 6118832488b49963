#!/usr/bin/env bash
# A unit is NAME.cpp with NAME.h: one room, whose header tells what its source does. What the units of src include never
# leads back to them, and inside engine and editor the arrows run down through the rooms; boundaries.sh holds those of shell.
cd "$1/src" || exit 2
failed=0
complain() {
  printf '%s\n%s\n' "$1" "$2"
  failed=1
}

# "unit included-unit" for every include within src, a unit being a path without its suffix.
includes=$(grep -rE '^#include "[a-z_]+/' . --include='*.cpp' --include='*.h' |
  sed -E 's@^\./(.*)\.(cpp|h):#include "(.*)\.(h|def)"$@\1 \3@' | awk '$1 != $2' | sort -u)

circle=$(tsort <<<"$includes" 2>&1 >/dev/null) || complain "src holds a circle:" "$circle"

# forbid UNITS OTHERS: none of the units includes one of the others.
forbid() {
  local hits
  hits=$(grep -E "^($1) ($2)$" <<<"$includes") && complain "an upward arrow:" "$hits"
}

forbid 'engine/[a-z_]+' 'engine/hydraulics/.*'
forbid 'engine/hydraulics/.*' 'engine/(solvers/.*|solve)'
forbid 'engine/solvers/.*' 'engine/(solvers/.*|solve)'
forbid 'editor/state/.*' 'editor/(form|records|windows)/.*'
forbid 'editor/form/.*' 'editor/(records|windows)/.*'
forbid 'editor/records/.*' 'editor/windows/.*'

# A program's main file alone is declared in no header.
while read -r source; do
  [[ -e ${source%.cpp}.h || ${source##*/} == main.cpp ]] || complain "has no header of its name:" "src/$source"
done < <(find . -name '*.cpp' -printf '%P\n')
exit $failed
