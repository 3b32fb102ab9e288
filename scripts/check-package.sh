#!/bin/sh
# Fails when the archive or the Debian package of a build folder lacks something, or when the
# program does not run from where it was unpacked: check-package.sh [build/release]
set -eu
cd "$(dirname "$0")/.."

build=${1:-build/release}
work=$(mktemp -d)
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
fail() {
  echo "$*" >&2
  exit 1
}

cpack --config "$build/CPackConfig.cmake" -B "$work/package" >"$work/log" 2>&1 ||
  { cat "$work/log"; fail "The packages cannot be built."; }

# A folder whose name needs care, and which nobody may write.
place="$work/Prüf Ordner, 100 %"
mkdir "$place"
tar -xzf "$work"/package/*.tar.gz -C "$place"
chmod -R a-w "$place"
program="$place/corvane/corvane"
share="$place/corvane/share"
dpkg-deb --contents "$work"/package/*.deb >"$work/contents"
version=$(sed -n 's/^project(corvane VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

for file in corvane-browser.so LICENSE THIRD-PARTY.txt README.txt CorvaneWin.chm \
  Disclosed_Report_template.txt \
  Interest_Report_template.txt Periodic_Statement_Report_template.txt \
  Portfolio_Report_template.txt; do
  [ -s "$place/corvane/$file" ] || fail "The archive lacks $file."
done
for file in applications/corvane.desktop metainfo/org.example.corvane.metainfo.xml \
  icons/hicolor/scalable/apps/corvane.svg icons/hicolor/16x16/apps/corvane.png \
  icons/hicolor/512x512/apps/corvane.png; do
  [ -s "$share/$file" ] || fail "The archive lacks share/$file."
  grep -q " ./usr/share/$file$" "$work/contents" ||
    fail "The package lacks /usr/share/$file."
done
for name in corvane corvane-check; do
  grep -q " ./usr/bin/$name -> ../lib/corvane/$name$" "$work/contents" || fail "/usr/bin lacks $name."
done
# A library that came in newly wants its licence told, and maybe its package in README.txt.
objdump -p "$program" | grep -q WebEngine && fail "The program links the browser engine itself."
libraries=$(dpkg-deb --field "$work"/package/*.deb Depends | sed 's/([^)]*)//g; s/,/ /g')
case "$libraries" in
  *libqt6webenginewidgets6*) ;;
  *) fail "The package does not depend on its libraries." ;;
esac
for library in $libraries; do
  grep -qwF -- "$library" packaging/THIRD-PARTY.txt ||
    fail "packaging/THIRD-PARTY.txt lacks $library."
done
desktop-file-validate "$share/applications/corvane.desktop"
appstreamcli validate --no-net "$share/metainfo/org.example.corvane.metainfo.xml" ||
  fail "The description for software centres is not valid."

# Both answers need no display and no home.
[ "$(env -i "$program" --version)" = "corvane $version" ] || fail "--version does not answer."
[ "$(env -i "$program-check" --version)" = "corvane-check $version" ] ||
  fail "corvane-check --version does not answer."
env -i "$program" --help | grep -q '^Usage: corvane' || fail "--help does not answer."
# The program itself stays until it is ended.
status=0
env -i HOME="$work" XDG_RUNTIME_DIR="$work" QT_QPA_PLATFORM=offscreen timeout 3 "$program" || status=$?
[ "$status" -eq 124 ] || fail "The program does not stay: $status"
