#!/bin/sh
# Builds Corvane and runs all tests; installs missing packages first. Arguments go to ctest, such
# as -R RegularAccount.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh test
cmake --preset dev >/dev/null
cmake --build --preset dev
exec ctest --preset dev -j 2 "$@" </dev/null
