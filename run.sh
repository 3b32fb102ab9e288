#!/bin/sh
# Builds Corvane and starts it; installs missing packages first.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh run
cmake --preset release >/dev/null
cmake --build --preset release --target corvane

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
  echo "Built, but there is no display: start ./run.sh on a desktop, or under Xvfb with" \
    "\"apt-get install -y xvfb xauth && xvfb-run -a ./run.sh\"." >&2
  exit 1
fi
exec build/release/corvane "$@"
