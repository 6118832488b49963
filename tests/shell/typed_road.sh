#!/usr/bin/env bash
# The built program on a virtual display, driven by typed keys: a new project, its details, one curb inlet added, its
# discharge typed, solved and saved, the program left and started again, the same inlet on the screen. The saved row is
# then read with the database's own command.
#
#   typed_road.sh PROGRAM
set -uo pipefail

. "$(dirname "$0")/typing.sh"

type_details() {
  type_text "P-1"
  press Tab
  type_text "Oak Street"
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
