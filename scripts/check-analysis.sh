#!/bin/sh
# Fails where clang-tidy (by .clang-tidy) or cppcheck (all of src) finds something. Of the core
# clang-tidy looks at what has changed since main, on main in the last change: several seconds a
# file. scripts/check-analysis.sh --all looks at the whole core.
#
# What cppcheck is not asked for: loops that an algorithm could replace, and what it gets wrong:
# members that are filled as aggregates, functions of templates, members that signals change,
# pointers to members, structured bindings.
set -eu
cd "$(dirname "$0")/.."

cppcheck --quiet --enable=warning,performance,portability,style --std=c++20 --library=qt -I src \
  -j 2 --error-exitcode=1 --suppress=useStlAlgorithm --suppress=unusedStructMember \
  --suppress=unusedPrivateFunction --suppress=knownConditionTrueFalse \
  --suppress=constParameter:src/account/Field.h --suppress=variableScope:src/portfolio/CellEntry.cpp \
  src

# Without precompiled headers, which are those of another compiler.
build=build/analysis
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
  -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >/dev/null
base=$(git merge-base HEAD main 2>/dev/null || echo HEAD~1)
[ "$(git rev-parse "$base")" != "$(git rev-parse HEAD)" ] || base=HEAD~1
core="support formulas account disclosure statement reports portfolio check.cpp"
changed() { # of a header its source is looked at, and so are files that are not committed yet
  [ "${1:-}" = --all ] && { find src -name '*.cpp'; return; }
  { git diff --name-only --diff-filter=d "$base" -- src; git ls-files -o --exclude-standard src; } |
    sed -n 's/\.\(h\|cpp\)$/.cpp/p' | sort -u
}
for part in $core; do changed "$@" | grep "^src/$part" || true; done | while read -r file; do
  [ ! -f "$file" ] || echo "$file"
done | xargs -r -P "$(nproc)" -n 1 clang-tidy -p "$build" --quiet 2>/dev/null
