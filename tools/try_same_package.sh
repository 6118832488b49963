#!/usr/bin/env bash
# Tries whether the sources give the same Debian package wherever and whenever it is built: copies them into another
# folder, builds and packs them there forty days later, and compares the bytes.
#
#   tools/try_same_package.sh [BUILD_FOLDER]    the first of both packages is packed from what was built there
#
# Needs faketime (tools/set_up.sh release) for the later day.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
run() {
  "$@" >"$work/log" 2>&1 || { tail -n 40 "$work/log" >&2; echo "try_same_package: no package from: $*" >&2; exit 1; }
}

export SOURCE_DATE_EPOCH
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CMakeLists.txt)
if [ $# -eq 0 ]; then
  run tools/make_deb.sh
  set -- build/release
else
  (umask 022 && cd "$1" && run cpack)
fi

second="$work/another folder of sources"
mkdir "$second"
tar -c --exclude=./build --exclude=./.git . | tar -x -C "$second"
run faketime '+40 days' "$second/tools/make_deb.sh"

first=("$1"/gullymarkal_*.deb)
second=("$second"/build/release/gullymarkal_*.deb)
if ! cmp "${first[0]}" "${second[0]}"; then
  echo "try_same_package: built elsewhere and later the package differs" >&2
  exit 1
fi
echo "try_same_package: the same $(stat -c %s "${first[0]}") bytes"
