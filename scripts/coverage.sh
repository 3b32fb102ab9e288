#!/bin/sh
# Builds the core with coverage, runs its tests and prints lines and branches by folder, then the
# lines that no test reaches: scripts/coverage.sh [build folder]
# Fails where a line of src/formulas is not reached.
set -eu
cd "$(dirname "$0")/.."

# Where it stops, gcovr leaves its files here.
trap 'rm -f ./*.gcov' EXIT
build=${1:-build/coverage}
folders="support formulas account disclosure statement reports portfolio"
targets=corvane-check
for folder in $folders; do targets="$targets corvane_${folder}_tests"; done

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS="--coverage -fprofile-update=atomic" >/dev/null
# shellcheck disable=SC2086  # one word per target
cmake --build "$build" --target $targets
find "$build" -name '*.gcda' -delete
for folder in $folders; do "$build/tests/corvane_${folder}_tests" --gtest_brief=1 >/dev/null; done
# The program for whole files is held to the reference by every kind of account.
python3 tests/reference/check_random.py --program "$build/corvane-check" --count 3000

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
