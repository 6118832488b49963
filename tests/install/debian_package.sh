#!/usr/bin/env bash
# The Debian package: packed from a build, twice with the same bytes, its dates those that were asked for, its files those
# of the installed program, and nothing that Debian's checker warns of (left out where lintian is not installed).
#
#   debian_package.sh BUILD_FOLDER
set -uo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
  echo "debian_package: $1" >&2
  cat "$work/log" >&2
  exit 1
}

# pack NAME: with the date of the first of May 2024, in a time zone of its own.
pack() {
  (cd "$work" && umask 077 && SOURCE_DATE_EPOCH=1714521600 TZ=$2 cpack --config "$1/CPackConfig.cmake" -B "$work/$3") \
    >"$work/log" 2>&1 || fail "cpack failed"
}
pack "$1" UTC first
sleep 1.1 # The clock of an archive has whole seconds.
pack "$1" Asia/Tokyo second
package=$(echo "$work"/first/*.deb)
cmp "$package" "$work"/second/*.deb >"$work/log" 2>&1 || fail "the same build packed again differs"

dpkg-deb --fsys-tarfile "$package" >"$work/data.tar" || fail "the package cannot be read"
tar tvf "$work/data.tar" --utc >"$work/log"
others=$(grep -v ' root/root .* 2024-05-01 00:00 ' "$work/log")
[ -z "$others" ] || fail "of another owner or date: $others"
grep -q './usr/lib/gullymarkal/GullymarkAL$' "$work/log" || fail "the program is not packed"
dpkg-deb --ctrl-tarfile "$package" | tar tv --utc >"$work/log"
others=$(grep -v ' 2024-05-01 00:00 ' "$work/log")
[ -z "$others" ] || fail "of another date: $others"
tar xOf "$work/data.tar" ./usr/share/doc/gullymarkal/changelog.gz | gunzip >"$work/log"
grep -q 'Wed, 01 May 2024 00:00:00 +0000$' "$work/log" || fail "the changelog has another date"

if command -v lintian >/dev/null; then
  lintian --fail-on error,warning "$package" >"$work/log" 2>&1 || fail "lintian complains"
else
  echo "debian_package: lintian is not installed, left out"
fi
echo "debian_package: the same twice, dated, clean"
