#!/usr/bin/env bash
# Sets up what is missing, builds the program and that of the reviewer, and starts the program.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "run.sh: no display: start it from a desktop session, or under a virtual one with 'xvfb-run ./run.sh'." >&2
  exit 1
fi

tools/set_up.sh build
echo "run.sh: building"
cmake --preset release >/dev/null
cmake --build --preset release --target GullymarkAL gullymark-review
exec build/release/bin/GullymarkAL
