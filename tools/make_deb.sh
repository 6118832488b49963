#!/usr/bin/env bash
# Builds the program as users get it and packs it for Debian: build/release/gullymarkal_VERSION_ARCHITECTURE.deb
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

umask 022
tools/set_up.sh build deb
cmake --preset release >/dev/null
cmake --build --preset release --target GullymarkAL
rm -f build/release/gullymarkal_*.deb
cd build/release
cpack
