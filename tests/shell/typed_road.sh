#!/usr/bin/env bash
# The built program on a virtual display, driven by typed keys: a new project, its details, one curb inlet added, its
# discharge typed, solved and saved, the program left and started again, the same inlet on the screen. The saved row is
# then read with the database's own command.
#
#   typed_road.sh PROGRAM
set -uo pipefail

program=$1
work=$(mktemp -d)
started=()
finish() {
  for process in "${started[@]}"; do kill "$process" 2>/dev/null; done
  wait 2>/dev/null
  rm -rf "$work"
}
trap finish EXIT

fail() {
  echo "typed_road: $1" >&2
  xdotool search --onlyvisible --name '.' getwindowname %@ 2>/dev/null | grep . >&2
  cat "$work/log" >&2
  exit 1
}

# A window of that title with the focus, waited for.
await() {
  for _ in $(seq 300); do
    [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ] && sleep 0.3 && return
    sleep 0.1
  done
  fail "no window '$1'"
}
press() { for key in "$@"; do xdotool key --delay 40 "$key"; sleep 0.2; done; }
type_text() { xdotool type --delay 20 "$1"; sleep 0.2; }

start_display() {
  exec {display_number}<> <(:)
  Xvfb -displayfd "$display_number" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
  started+=($!)
  read -r -t 30 -u "$display_number" number || fail "no virtual display"
  export DISPLAY=:$number HOME=$work XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
  unset WAYLAND_DISPLAY QT_QPA_PLATFORM
  chmod 700 "$work"
  openbox --sm-disable >/dev/null 2>&1 &
  started+=($!)
}

start_program() {
  "$program" >>"$work/log" 2>&1 &
  running=$!
  started+=("$running")
  await Gullymark
}

create_project() {
  press alt+f c
  await "Enter New Project Database File Name"
  type_text "$work/road"
  press Return
  await "Tarnel Brook" # New Project Database has been created.  Please Add Project Details
  press Return
  await Project
  type_text "P-1"
  press Tab
  type_text "Oak Street"
  press ctrl+s
  await GullymarkAL # Project Details are Saved!
  press Return
  sleep 1
  await GullymarkAL # the workspace
}

add_inlet() {
  press ctrl+n
  type_text "I-1"
  press Tab
  type_text "10+50"
  press alt+l Tab space Tab # flow data; the discharge typed by hand
  type_text "2.5"
  press F9
  sleep 0.5
  press ctrl+s
  sleep 0.5
  press Return # Record Saved
  sleep 0.5
}

leave_program() {
  press ctrl+q
  await Gullymark
  press ctrl+q
  for _ in $(seq 100); do kill -0 "$running" 2>/dev/null || return 0; sleep 0.1; done
  fail "the program does not end"
}

start_display
start_program
create_project
add_inlet
leave_program

row=$(sqlite3 "$work/road.gmk" "SELECT INLET_NUMBER, STATION, DISCHARGE1, LDISCHARGE_OVERRIDE, TOTAL_DISCHARGE, OPENSPREAD,
  EFFICIENCY, QINT, QCARRY FROM INLET")
# The results are those of solve_cases for the same inlet: the defaults of a curb inlet on grade with 2.5 cfs.
expected='I-1|10+50|2.500|YES|2.500|8.813|0.479|1.198|1.302'
[ "$row" = "$expected" ] || fail "saved $row, expected $expected"
[ "$(sqlite3 "$work/road.gmk" 'SELECT PROJECT_ID, PROJECT_NAME, STATE, UNITS FROM PROJECT')" = 'P-1|Oak Street|AL|ENGLISH' ] ||
  fail "the project's details differ"

# Opened again, and saved again after a Solve without a change: the same texts.
before=$(sqlite3 "$work/road.gmk" 'SELECT * FROM INLET')
start_program
press ctrl+o
await Open
type_text "$work/road.gmk"
press Return
await "Tarnel Brook" # Project Name: Oak Street
press Return
await GullymarkAL
press ctrl+e F9
sleep 0.5
press ctrl+s
sleep 0.5
press Return
sleep 0.5
leave_program
after=$(sqlite3 "$work/road.gmk" 'SELECT * FROM INLET')
[ "$before" = "$after" ] || fail "another row after opening, solving and saving: $after"
echo "typed_road: the saved row is $row"
