#!/usr/bin/env bash
# Both reports from the key to the visible sheet of a real office: a copy of the program's folder on a virtual display, a
# project opened, Print Report and Inlet Design Form. The office has a profile and a pipe of its own; it stays open when
# the program has gone.
#
#   printed_report.sh PROGRAM MAKE_PROJECT TABLE
set -uo pipefail

. "$(dirname "$0")/typing.sh"
make_project=$2
table=$3

# The program's folder, with the office's small program told to keep away from the user's own office.
copy_program() {
  local folder
  folder=$(realpath "$(dirname "$program")")
  mkdir "$work/bin"
  cp "$program" "$folder"/*.xlr "$folder"/*.rdb "$work/bin"
  cat >"$work/bin/gullymark-office" <<END
#!/bin/sh
{ printf 'profile\t%s\n' "$work/profile"; cat; } | "$folder/gullymark-office"
END
  chmod +x "$work/bin/gullymark-office"
  program=$work/bin/GullymarkAL
}

end_office() {
  for process in $(grep -lsa "UserInstallatio[n]=file://$work/profile" /proc/[0-9]*/cmdline | cut -d/ -f3); do
    kill -KILL "$process" 2>/dev/null
  done
  finish
}

# print_sheet NAME TEMPLATE: names the file in the dialog that is up, waits for the sheet, and goes back to the program.
print_sheet() {
  type_text "$work/$1"
  press Return
  await "$1.xls - LibreOffice Calc"
  cmp -s "$work/$1.xls" "$work/bin/$2" || fail "$1.xls is no bare copy of $2"
  xdotool windowminimize "$(xdotool getactivewindow)"
  xdotool search --name '^GullymarkAL$' windowactivate >/dev/null 2>&1
  await GullymarkAL
}

trap end_office EXIT
copy_program
"$make_project" "$work/bin/GullymarkAL10.rdb" "$table" "$work/road.gmk" 30 || fail "no project"
start_display
start_program
open_project
print_both_sheets
leave_program
for name in report form; do
  xdotool search --name "^$name.xls - LibreOffice Calc" >/dev/null || fail "$name.xls has gone with the program"
done
echo "printed_report: both sheets stay open"
