#!/bin/sh
# Draws the desktop's icons anew from their SVG: packaging/icons/corvane-*.png. Needs the package
# librsvg2-bin, which nothing else does.
set -eu
cd "$(dirname "$0")/../packaging/icons"

draw() { # drawing, sizes
  drawing=$1
  shift
  for size in "$@"; do
    rsvg-convert -w "$size" -h "$size" "$drawing" -o "corvane-$size.png"
  done
}

draw corvane-small.svg 16 22 24 32
draw corvane.svg 48 64 128 256 512
