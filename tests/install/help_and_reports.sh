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
  for _ in $(seq 600); do
    window=$(xdotool search --onlyvisible --name "^$1" 2>/dev/null | head -n 1)
    [ -n "$window" ] && break
    sleep 0.1
  done
  [ -n "$window" ] || fail "no window '$1'"
  sleep 1
  echo "help_and_reports: $(xdotool getwindowname "$window")"
  xdotool windowminimize "$window"
  xdotool search --name '^GullymarkAL$' windowactivate >/dev/null 2>&1
  await GullymarkAL
}

# The program's boxes and its workspace have the same title.
await_windows() {
  for _ in $(seq 100); do
    [ "$(xdotool search --onlyvisible --name '^GullymarkAL$' 2>/dev/null | wc -l)" = "$1" ] && sleep 0.3 && return
    sleep 0.1
  done
  fail "not $1 windows 'GullymarkAL'"
}

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
press ctrl+p
await "Enter New File Name for Inlet Report"
print_sheet report INLET_REPORTAL.xlr
press alt+f Up Up Return
await "Enter New File Name for Inlet Design Form"
print_sheet form INLETDESIGNFORMAL.xlr
leave_program
echo "help_and_reports: both reports are written"
