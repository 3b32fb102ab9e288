#!/bin/sh
# Installs the Debian 12 packages that building, testing and running need; as root, or with sudo.
# Does nothing when all of them are there.
set -eu

packages="
  cmake ninja-build g++
  qt6-base-dev qt6-webengine-dev libgl-dev libvulkan-dev
  libgtest-dev libbenchmark-dev clang-format
  fontconfig fonts-dejavu-core
"

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
    echo "Missing packages:$missing. Install them as root: apt-get install$missing" >&2
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
