#!/usr/bin/env bash
# Sets up what is missing, builds everything with the sanitizers and runs the tests and checks: those that have not passed as
# they are now. What comes behind the command goes to ctest, which then runs all that it names. Those of what only the
# optimized build has (tests/install) run in a build without a preset.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/set_up.sh build test
echo "test.sh: building"
cmake --preset debug >/dev/null
cmake --build --preset debug
# Many tests wait for an office, a window or a lock: one more than there are processors.
run() { ctest --preset debug --parallel "$(($(nproc) + 1))" "$@"; }
if [ $# -gt 0 ]; then
  run "$@"
  exit
fi
# What passed, and of which nothing has changed since, need not run again.
tests=$(perl tools/unchanged_tests.pl build/debug)
all=$(ctest --preset debug -N | sed -n 's/^Total Tests: //p')
unchanged=$((all - $(tr ',' '\n' <<<"$tests" | wc -l) + 3))
[ "$unchanged" -eq 0 ] || echo "test.sh: $unchanged of $all tests passed before, and nothing of them has changed"
status=0
run -I "$tests" --output-junit passed.xml || status=$?
perl tools/unchanged_tests.pl build/debug build/debug/passed.xml
exit "$status"
