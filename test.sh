#!/usr/bin/env bash
# Sets up what is missing, builds everything with the sanitizers and runs every test and check.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/set_up.sh build test
echo "test.sh: building"
cmake --preset debug >/dev/null
cmake --build --preset debug
ctest --preset debug --parallel "$(nproc)" "$@"
