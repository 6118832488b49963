#!/usr/bin/env bash
# Tries whether the last commit gives the same Debian package wherever and whenever it is built: clones it into another
# folder, builds and packs it there forty days later, and compares the bytes.
#
#   tools/try_same_package.sh [PACKAGE.deb]    PACKAGE.deb: of the same commit; made by tools/make_deb.sh when not given
#
# Needs faketime (tools/set_up.sh release) for the later day.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
if [ $# -eq 0 ]; then
  tools/make_deb.sh >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
  set -- build/release/gullymarkal_*.deb
fi
git clone -q . "$work/another folder of sources"
later=("faketime" "+40 days")
if ! "${later[@]}" "$work/another folder of sources/tools/make_deb.sh" >"$work/log" 2>&1; then
  tail -n 40 "$work/log" >&2
  echo "try_same_package: no second package" >&2
  exit 1
fi
second=$(echo "$work/another folder of sources/build/release"/gullymarkal_*.deb)
if ! cmp "$1" "$second"; then
  echo "try_same_package: built elsewhere and later the package differs" >&2
  exit 1
fi
echo "try_same_package: the same $(stat -c %s "$second") bytes"
