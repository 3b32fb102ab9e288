#!/bin/sh
# Builds all with coverage, runs all tests and prints lines and branches of the core by folder, then
# the lines that no test reaches: scripts/coverage.sh [build folder]
# Fails where a test fails or a line of src/formulas is not reached.
set -eu
cd "$(dirname "$0")/.."

# Where it stops, gcovr leaves its files here.
trap 'rm -f ./*.gcov' EXIT
build=${1:-build/coverage}
folders="support formulas account disclosure statement reports portfolio"

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS="--coverage -fprofile-update=atomic" >/dev/null
cmake --build "$build"
find "$build" -name '*.gcda' -delete
ctest --test-dir "$build" -j 2 -E TirelessPerson --output-on-failure </dev/null \
  >"$build/tests.log" || { cat "$build/tests.log"; exit 1; }

report() { # folder, further options
  folder=$1
  shift
  # Branches that only an exception takes are not counted: the core throws for defects alone.
  gcovr --root . --filter "src/$folder/" --exclude-throw-branches --exclude-unreachable-branches \
    "$@" "$build"
}
for folder in $folders; do
  echo "== $folder"
  report "$folder" --print-summary --json-summary "$build/$folder.json" | grep -E '^(lines|branches):'
  report "$folder" | awk '$NF ~ /^[0-9,-]+$/ && $(NF - 1) ~ /%$/ { print "  " $1 ": " $NF }'
done
report formulas --fail-under-line 100 >/dev/null
