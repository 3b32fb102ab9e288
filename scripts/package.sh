#!/bin/sh
# Builds the archive and the Debian package into build/package; installs missing packages
# first.
set -eu
cd "$(dirname "$0")/.."

scripts/install-packages.sh package
cmake --preset release >/dev/null
cmake --build --preset release
cpack --config build/release/CPackConfig.cmake -B build/package
