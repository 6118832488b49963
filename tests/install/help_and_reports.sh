#!/usr/bin/env bash
# The installed program on a virtual display, asked for its help and for both reports. Where the viewer and the office are
# installed ("all") they come up; where they are not ("alone") the missing viewer is told, a report is the bare copy of its
# template, and the program goes on.
#
#   help_and_reports.sh PROGRAM PROJECT TEMPLATES all|alone
set -uo pipefail

. "$(dirname "$0")/../shell/typing.sh"
project=$2
templates=$3
beside=$4

# A window whose title begins so, waited for, and put away.
await_other() {
  local window
  comes 600 xdotool search --onlyvisible --name "^$1" || fail "no window '$1'"
  sleep 1
  window=$(xdotool search --onlyvisible --name "^$1" | head -n 1)
  echo "help_and_reports: $(xdotool getwindowname "$window")"
  xdotool windowminimize "$window"
  xdotool search --name '^GullymarkAL$' windowactivate >/dev/null 2>&1
  await GullymarkAL
}

# The program's boxes and its workspace have the same title.
await_windows() {
  comes 100 are_windows "$1" || fail "not $1 windows 'GullymarkAL'"
  sleep 0.3
}
are_windows() { [ "$(xdotool search --onlyvisible --name '^GullymarkAL$' | wc -l)" = "$1" ]; }

ask_for_help() {
  press F1
  if [ "$beside" = all ]; then
    await_other xCHM
  else
    await_windows 2 # the box: No help viewer is installed that opens ...
    press Return
    await_windows 1
  fi
}

# print_sheet NAME TEMPLATE, from the dialog that is up
print_sheet() {
  type_text "$work/$1"
  press Return
  [ "$beside" = alone ] || await_other "$1.xls - LibreOffice Calc"
  await GullymarkAL
  cmp "$work/$1.xls" "$templates/$2" || fail "$1.xls is no copy of $2"
}

cp "$project" "$work/road.gmk"
touch "$work/log"
start_display
start_program
open_project
ask_for_help
print_both_sheets
leave_program
echo "help_and_reports: both reports are written"
