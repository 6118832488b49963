#!/usr/bin/env bash
# The reviewer's program on a virtual display, as an ordinary user on a read-only file in a read-only folder: it shows what
# another program saves within a second, and nothing is written, made or deleted by it.
#
#   live_window.sh PROGRAM FILES
set -uo pipefail

. "$(dirname "$0")/../shell/typing.sh"
files=$2
road=$(mktemp -d)
clean_up() {
  chmod -R u+w "$road"
  rm -rf "$road"
  finish
}
trap clean_up EXIT
touch "$work/log"

# What lies in the folder: names, times, sums.
look() { (cd "$road" && find . -printf '%P %T@ %m %s\n' | LC_ALL=C sort && find . -type f -exec sha256sum {} +); }
allow_writing() { chmod "$1" "$road" && chmod "$2" "$road/road.gmk"; }
counted() { "$program" --check "$road/road.gmk" 2>&1 >/dev/null | sed -n 's/^gullymark-review: \([0-9]* findings\?\) .*/\1/p'; }
shows() { xdotool search --onlyvisible --name "^road\.gmk - $1 - GullymarkAL Review$"; }

# Root may write everywhere: then the program runs as a user who may not, where that one reaches it.
start_review() {
  local as=()
  if [ "$(id -u)" = 0 ] && setpriv --reuid=65534 --regid=65534 --clear-groups test -x "$program"; then
    as=(setpriv --reuid=65534 --regid=65534 --clear-groups env HOME=/nonexistent XDG_RUNTIME_DIR=/nonexistent)
  fi
  "${as[@]}" "$program" "$road/road.gmk" >>"$work/log" 2>&1 &
  running=$!
  started+=("$running")
}

cp "$files/metric.gmk" "$road/road.gmk"
allow_writing 555 444
before=$(look)
first=$(counted)
[ -n "$first" ] || fail "the project cannot be read"
start_display
start_review
comes 100 shows "$first" || fail "the window does not tell $first"
xdotool search --onlyvisible --name '^road\.gmk' windowactivate
press F5 alt+Right alt+k ctrl+f
[ "$(look)" = "$before" ] || fail "something was written, made or deleted"

allow_writing 755 644
sqlite3 "$road/road.gmk" "UPDATE INLET SET PREINLET1 = 'NOWHERE'" || fail "the designer cannot save"
saved=$(date +%s%N)
second=$(counted)
[ "$second" != "$first" ] || fail "the change makes no other finding"
allow_writing 555 444
before=$(look)
comes 30 shows "$second" || fail "the window does not tell $second"
echo "live_window: as $(ps -o user= -p "$running"): $first, then $second after $((($(date +%s%N) - saved) / 1000000)) ms"
sleep 1
[ "$(look)" = "$before" ] || fail "something was written, made or deleted after the save"

press ctrl+q
comes 100 has_ended || fail "the program does not end"
wait "$running" || fail "the program ends with status $?"
