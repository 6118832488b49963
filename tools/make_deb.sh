#!/usr/bin/env bash
# Builds the program as users get it and packs it for Debian: build/release/gullymarkal_VERSION_ARCHITECTURE.deb
#
# The same sources give the same package, wherever and whenever: its dates are that of the last commit, or
# SOURCE_DATE_EPOCH where that is set. tools/try_same_package.sh tries it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

umask 022
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CMakeLists.txt)}
tools/set_up.sh build deb
cmake --preset release >/dev/null
cmake --build --preset release --target GullymarkAL gullymark-review
rm -f build/release/gullymarkal_*.deb
cd build/release
cpack
