#!/bin/sh
# Installs what building and testing Tavrin needs, on Debian or Ubuntu, when missing.
#   scripts/setup.sh        everything the tests need
#   scripts/setup.sh run    only what building and running the editor needs
set -eu
packages="cmake g++ make qt6-base-dev qt6-qpa-plugins libgl-dev"
# clang and libclang-rt-dev (libFuzzer for the default clang) build the fuzz targets;
# clang-format and clang-tidy are the style and static checks.
[ "${1:-}" = run ] || packages="$packages libgtest-dev libgmock-dev libbenchmark-dev xvfb
          xdotool x11-apps imagemagick time python3 clang libclang-rt-dev clang-format
          clang-tidy git"
missing=""
for p in $packages; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing="$missing $p"
done
[ -z "$missing" ] && exit 0
if ! command -v apt-get >/dev/null; then
    echo "Please install:$missing" >&2
    exit 1
fi
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
echo "Installing:$missing"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq $missing >/dev/null
