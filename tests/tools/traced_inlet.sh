#!/usr/bin/env bash
# solve_cases --trace tells an inlet of a table step by step, to the results that the table has.
#
#   traced_inlet.sh SOLVE_CASES FOLDER_OF_TABLES
set -uo pipefail
solve_cases=$1
cd "$2" || exit 2
failed=0

# trace LINE TABLE: the output in $told, its end in $status.
trace() {
  told=$("$solve_cases" --trace "$@" 2>&1)
  status=$?
}
fail() {
  printf 'traced_inlet: %s\n%s\n' "$1" "$told"
  failed=1
}
tells() { grep -qxE "$1" <<<"$told" || fail "no line '$1' in this:"; }

# The curb inlet that the help works out: inputs, quantities of the sheet with all digits, and the columns of the record.
trace 2 solves_help.tsv
[ "$status" -eq 0 ] || fail "ends with $status:"
tells 'solves_help\.tsv:2: Curb Inlet, CONTINUOUS GRADE, ENGLISH'
tells '1  Q = 2\.7 cfs  flow that the inlet must take'
tells '[0-9]+  limit = 8 ft  allowable spread'
tells '[0-9]+  T = 6\.94[67][0-9]+ ft  spread of the gutter flow'
tells '[0-9]+  OPENSPREAD = "6\.94[67][0-9]+" ft  Spread of water at the opening'
tells '[0-9]+  branch entered'
tells '[0-9]+  branch passed by'
tells '[0-9]+  Se = 0\.2555 ft/ft  composite cross slope'
# Each formula with its symbols and with the numbers in their place; a reason for each branch; the column that was read.
tells '      = K_L x Q\^0\.42 x S\^0\.3 x \(1 / \(n x Se\)\)\^0\.6'
tells '      = 0\.6 x 2\.7\^0\.42 x 0\.03\^0\.3 x \(1 / \(0\.016 x 0\.2555\)\)\^0\.6'
tells '      if W > 0 and Sw > Sx'
tells '      if 2 > 0 and 0\.0833 > 0\.0208'
tells '      reads TOTAL_DISCHARGE "2\.700": Flow that the inlet must take'
# The search of the spread: its bounds, its passes, and the answer put back.
tells '      - search of T from 2 to 48: [0-9]+ passes, until the flow is within 0\.0001'
tells '      - residual = -?[0-9.]+(E-[0-9]+)? cfs  .*'
tells 'solved: yes'
tells 'messages: '
tells 'OPENSPREAD = "6\.947" ft  Spread of water at the opening'
tells 'QCARRY = "0\.532" cfs  .*'
tells '      = round\(0\.531837142719848, 3\)'
# A statement of the sheet for each number, in order; what a condition passes by has none.
numbers=$(sed -nE 's/^([0-9]+)  .*/\1/p' <<<"$told")
[ "$(wc -l <<<"$numbers")" -ge 40 ] && sort -nc <<<"$numbers" 2>/dev/null || fail "these steps are not in order:"

# In all of their digits, on request.
told=$("$solve_cases" --trace 2 --digits all solves_help.tsv 2>&1)
tells '      = 0\.6000000238418579 x 2\.7\^0\.42 x .*'

# Every result that a table expects stands at the end as it expects it.
for line in 2 40 400; do
  trace "$line" solves_ordinary.tsv
  while IFS=$'\t' read -r column expected; do
    [ -z "$expected" ] || grep -qF "$column = \"$expected\"" <<<"$told" || fail "no $column of \"$expected\" in this:"
  done < <(awk -F'\t' -v line="$line" '
    NR == 1 { for (i = 1; i <= NF; ++i) name[i] = $i; for (i = 1; i <= NF; ++i) column[$i] = i }
    NR == line { for (i = 1; i <= NF; ++i)
      if (name[i] ~ /^=/ && name[i] !~ /^=(solved|messages)$/ && $i != $column[substr(name[i], 2)]) print substr(name[i], 2) "\t" $i }
  ' solves_ordinary.tsv)
done

# What cannot be told is said so.
for call in "1 solves_help.tsv" "999999 solves_help.tsv" "two solves_help.tsv" "2 no_such_table.tsv" "2" "2 solves_help.tsv solves_deep.tsv" "2 --digits some solves_help.tsv"; do
  # shellcheck disable=SC2086
  trace $call
  [ "$status" -eq 2 ] || fail "--trace $call ends with $status:"
done
exit $failed
