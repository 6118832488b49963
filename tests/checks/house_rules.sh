#!/usr/bin/env bash
# What no other check holds of the sources: short files, file names, nothing included twice and no source by another, a word
# on what each header is for, one way for a text to the toolkit and back, and nothing left for later.
cd "$1" || exit 2
failed=0
complain() {
  echo "$1"
  failed=1
}

sources() {
  find src tests tools bench fuzz \( -name '*.cpp' -o -name '*.h' -o -name '*.sh' -o -name '*.pl' \) "$@"
}

while read -r file; do
  [ "$(wc -l <"$file")" -le 400 ] || complain "$file is longer than 400 lines"
  base=${file##*/}
  # The solvers and what they share have prescribed names.
  [[ $base =~ ^[a-z0-9_]+\.[a-z]+$ || $base =~ ^[A-Z]+(_[A-Z]+)*_RESULTS\.|^Common_Libraries\. ]] ||
    complain "$file is not named in small letters"
done < <(sources)

twice=$(awk '/^#include .*(\.h"|>)$/ && seen[FILENAME, $0]++ { print FILENAME ": " $0 }' \
  $(sources | grep -E '\.(cpp|h)$'))
[ -z "$twice" ] || complain "included twice: $twice"
joined=$(grep -nE '^#include .*\.cpp[">]' $(sources)) && complain "a source includes another: $joined"

while read -r header; do
  head -n 1 "$header" | grep -q '^#pragma once$' || complain "$header does not begin with #pragma once"
  grep -q '^ *///' "$header" || complain "$header does not tell what it is for"
done < <(sources -path 'src/*' -name '*.h')

spelled=$(grep -rnE 'fromUtf8|fromStdString|toStdString|toUtf8' src/shell --include='*.cpp' --include='*.h' |
  grep -v '^src/shell/binding/qt_text\.h:') && complain "a text goes to the toolkit or back by another way: $spelled"

later='TO''DO|FIX''ME|XX''X:|HA''CK'
unfinished=$(grep -nE "\b($later)\b" $(sources)) && complain "left for later: $unfinished"
exit $failed
