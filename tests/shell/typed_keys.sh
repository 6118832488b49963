#!/usr/bin/env bash
# The keys that edit a text, as a real window system sends them: the built program on a virtual display, each key struck
# in a field of each family, and what then stands there read from the saved row.
#
#   typed_keys.sh PROGRAM
set -uo pipefail

. "$(dirname "$0")/typing.sh"

# in_field TEXT KEY...: types the text in place of what stands in the field, strikes the keys, and goes on to the next field
in_field() {
  press ctrl+a
  type_text "$1"
  press "${@:2}" Tab
}

type_details() {
  in_field "P-19" BackSpace
  in_field "xOak Street" Home Delete
}

# Behind each field's keys stands what they leave in its column.
fill_details_page() {
  in_field "I-12" BackSpace                        # INLET_NUMBER I-1
  press ctrl+a
  type_text "1e5"
  press ctrl+a ctrl+x                              # for the pastes into numbers below
  in_field "1a0+50" Home Right Delete              # STATION 10+50
  press Tab Tab Tab Tab
  in_field "925.5" Home Delete ctrl+v shift+Insert # OFFSET 25.500: the paste is refused
  press Tab
  in_field "UPx" BackSpace                         # FLOW_DIRECTION UP
  in_field "1234" Left Left BackSpace Delete       # TOP_ELEVATION 14.000
  in_field "6.59" End shift+Left Delete            # CURB_HEIGHT 6.5
  press ctrl+a
  type_text "82.5"
  press Home Right KP_Delete                       # ALLOWABLE_SPREAD 8.5
}

fill_flow_page() {
  press alt+l
  in_field "102" Left Left Delete                  # STORM_FREQUENCY 12
  press space Tab                                  # the discharge typed by hand
  press ctrl+a
  type_text "2.5"
  press ctrl+a ctrl+x ctrl+v ctrl+a shift+Delete shift+Insert ctrl+a ctrl+Insert BackSpace shift+Insert
  type_text "9"
  press ctrl+z Tab                                 # DISCHARGE1 2.500
  in_field "x" ctrl+a Delete                       # PREINLET1 empty
  press ctrl+a
  type_text "0.55"
  press Home Right Right Delete                    # OVERLAND_FLOW 0.500
}

fill_inlet_page() {
  press alt+i
  in_field "90.02" Home Delete                     # LONGSLOPE 0.0200
  press Tab Tab Tab Tab Tab Tab Tab
  in_field "125" Home Delete                       # GRATEPERCLOG 25
}

start_display
start_program
create_project
press ctrl+n
fill_details_page
fill_flow_page
fill_inlet_page
press F9
sleep 0.5
press ctrl+s
sleep 0.5
press Return # Record Saved
sleep 0.5
leave_program

row=$(sqlite3 "$work/road.gmk" "SELECT INLET_NUMBER, STATION, OFFSET, FLOW_DIRECTION, TOP_ELEVATION, CURB_HEIGHT,
  ALLOWABLE_SPREAD, STORM_FREQUENCY, DISCHARGE1, PREINLET1, OVERLAND_FLOW, LONGSLOPE, GRATEPERCLOG FROM INLET")
expected='I-1|10+50|25.500|UP|14.000|6.5|8.5|12|2.500||0.500|0.0200|25'
[ "$row" = "$expected" ] || fail "saved $row, expected $expected"
project=$(sqlite3 "$work/road.gmk" 'SELECT PROJECT_ID, PROJECT_NAME FROM PROJECT')
[ "$project" = 'P-1|Oak Street' ] || fail "the project's details are $project"
echo "typed_keys: the saved row is $row"
