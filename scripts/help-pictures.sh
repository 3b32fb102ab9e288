#!/bin/sh
# Takes the pictures of the help topics anew, from the windows as they are: help/pictures/*.png.
# Needs no display. The same windows and fonts give the same files.
set -eu
cd "$(dirname "$0")/.."

scripts/install-packages.sh test
cmake --preset dev >/dev/null
cmake --build --preset dev --target corvane_help_pictures
mkdir -p help/pictures
build/dev/corvane_help_pictures help/pictures
