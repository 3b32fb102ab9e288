#!/bin/sh
# Installs the Debian 12 packages that are still missing, as root or with sudo:
#   scripts/install-packages.sh run       to build and start the program
#   scripts/install-packages.sh test      to build and run the tests as well
#   scripts/install-packages.sh package   to build the archive and the Debian package
#   scripts/install-packages.sh ci        for all that .ci/run does; also without an argument
set -eu

for_run="cmake ninja-build g++ qt6-base-dev qt6-pdf-dev qt6-webengine-dev libgl-dev libvulkan-dev
  libqpdf-dev libtbb-dev libcli11-dev
  libchm-dev fp-utils fontconfig fonts-dejavu-core"
for_test="$for_run libgtest-dev"
for_package="$for_run dpkg-dev file"
for_ci="$for_test dpkg-dev file libbenchmark-dev clang-format clang-tidy cppcheck gcovr python3
  desktop-file-utils appstream clang libclang-rt-dev
  xvfb dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi"

case "${1:-ci}" in
  run) packages=$for_run ;;
  test) packages=$for_test ;;
  package) packages=$for_package ;;
  ci) packages=$for_ci ;;
  *)
    echo "Usage: $0 [run|test|package|ci]" >&2
    exit 2
    ;;
esac

# shellcheck disable=SC2086  # one word per package
installed=" $(dpkg-query -W -f='${Package}=${db:Status-Status} ' $packages 2>/dev/null || true)"
missing=
for package in $packages; do
  case "$installed" in
    *" $package=installed "*) ;;
    *) missing="$missing $package" ;;
  esac
done
[ -n "$missing" ] || exit 0

as_root=
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Missing packages:$missing" >&2
    echo "Install them as root, then start again: $(realpath "$0") ${1:-ci}" >&2
    exit 1
  fi
  as_root=sudo
fi
apt() {
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

echo "Installing:$missing"
apt update
# shellcheck disable=SC2086  # one word per package
apt install -y --no-install-recommends $missing
