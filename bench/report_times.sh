#!/usr/bin/env bash
# Times from the accepted file name to the visible sheet, with a real office on a virtual display.
#
#   bench/report_times.sh BIN      BIN: the folder of GullymarkAL and report_times
set -euo pipefail
bin=$(realpath "$1")
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$work"' EXIT
exec {display_number}<> <(:)
Xvfb -noreset -displayfd "$display_number" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
read -r -u "$display_number" number
export DISPLAY=:$number HOME=$work XDG_RUNTIME_DIR=$work
openbox --sm-disable >/dev/null 2>&1 &
"$bin/report_times" "$bin" "$(realpath "$(dirname "$0")/../tests/cases/solves_ordinary.tsv")"
