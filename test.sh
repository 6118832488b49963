#!/usr/bin/env bash
# Sets up what is missing, builds everything with the sanitizers and runs the tests and checks. Those of what only the
# optimized build has (tests/install) run in a build without a preset.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/set_up.sh build test
echo "test.sh: building"
cmake --preset debug >/dev/null
cmake --build --preset debug
# Many tests wait for an office, a window or a lock: one more than there are processors.
ctest --preset debug --parallel "$(($(nproc) + 1))" "$@"
