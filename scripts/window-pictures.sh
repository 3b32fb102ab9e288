#!/bin/sh
# Takes pictures of every window in every state, as it stands on a small screen (1024x768), into a
# folder: at 100 and 200 %, in fonts of 10 and 14 points, light and dark. Needs no display.
set -eu
folder=$(mkdir -p "${1:?folder for the pictures}" && cd "$1" && pwd)
cd "$(dirname "$0")/.."

scripts/install-packages.sh test
cmake --preset dev >/dev/null
cmake --build --preset dev --target corvane_help_pictures
for scale in 1 2; do
  for points in 10 14; do
    for colours in light dark; do
      mkdir -p "$folder/${scale}00-percent-$points-points-$colours"
      echo "QT_SCALE_FACTOR=$scale build/dev/corvane_help_pictures" \
        "'$folder/${scale}00-percent-$points-points-$colours' windows $points $colours"
    done
  done
done | xargs -P "$(nproc)" -d '\n' -n 1 sh -c
