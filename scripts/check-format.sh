#!/bin/sh
# Fails when a source file is not laid out as .clang-format says. With --fix it lays them out.
set -eu
cd "$(dirname "$0")/.."

how="--dry-run --Werror"
[ "${1:-}" = --fix ] && how=-i
# shellcheck disable=SC2086  # one word per option
find src tests bench tools \( -name '*.cpp' -o -name '*.h' \) -exec clang-format $how {} +
