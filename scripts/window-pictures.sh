#!/bin/sh
# Takes pictures of every window in every state, as it stands on a small screen (1024x768), into a
# folder, in what a desktop may ask for: SCALE-POINTS-COLOURS, such as 200-10-light. Without any,
# those that lay the windows out in another way, or colour them. Needs no display.
set -eu
folder=$(mkdir -p "${1:?folder for the pictures}" && cd "$1" && pwd)
shift
[ $# -gt 0 ] || set -- 100-10-light 100-14-light 100-10-dark 200-10-light
cd "$(dirname "$0")/.."

scripts/install-packages.sh test
cmake --preset dev >/dev/null
cmake --build --preset dev --target corvane_help_pictures
for variant; do
  mkdir -p "$folder/$variant"
  echo "$variant" | {
    IFS=- read -r scale points colours
    echo "QT_SCALE_FACTOR=${scale%00} build/dev/corvane_help_pictures" \
      "'$folder/$variant' windows $points $colours"
  }
done | xargs -P "$(nproc)" -d '\n' -n 1 sh -c
