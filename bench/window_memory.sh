#!/usr/bin/env bash
# Peak memory of the program with a project of INLETS inlets open in the workspace, on a virtual display.
#
#   bench/window_memory.sh BIN INLETS      BIN: the folder of GullymarkAL and make_project
set -euo pipefail
bin=$1
inlets=$2
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$work"' EXIT
"$bin/make_project" "$bin/GullymarkAL10.rdb" "$(dirname "$0")/../tests/cases/solves_ordinary.tsv" "$work/road.gmk" "$inlets"
exec {display_number}<> <(:)
Xvfb -noreset -displayfd "$display_number" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
read -r -u "$display_number" number
export DISPLAY=:$number HOME=$work XDG_RUNTIME_DIR=$work
openbox --sm-disable >/dev/null 2>&1 &
"$bin/GullymarkAL" 2>/dev/null &
program=$!
sleep 8 # the splash takes 3 seconds
memory() { grep -E 'VmHWM|VmRSS' "/proc/$program/status" | tr '\n' ' '; }
echo "main window: $(memory)"
xdotool key ctrl+o; sleep 2; xdotool type "$work/road.gmk"; xdotool key Return; sleep 3; xdotool key Return; sleep 5
echo "workspace, $inlets inlets: $(memory)"
xdotool key ctrl+l; sleep 3
echo "with the listing: $(memory)"
