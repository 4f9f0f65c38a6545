#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# build-deb.sh [DIRECTORY]
#
# Builds the Debian packages by dpkg-buildpackage and leaves them in DIRECTORY, build/packages if
# none is given. The packages of an earlier build go, and nothing else that lies there. It works on a
# copy of the tree, where packaging/debian is in its place.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
output=$(realpath -m "${1:-$root/build/packages}")

"$root/cmake/ensure-packages.sh" \
    build-essential cmake debhelper dpkg-dev doxygen ninja-build qtbase5-dev \
    qtbase5-private-dev qttools5-dev qttools5-dev-tools

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
copy=$scratch/filarix-module
mkdir "$copy"
if [ -e "$root/.git" ]; then
    git -C "$root" ls-files -z --cached --others --exclude-standard
else
    (cd "$root" && find . -path ./build -prune -o -type f -print0)
fi | tar -C "$root" --null -T - -c | tar -C "$copy" -x
mv "$copy/packaging/debian" "$copy/debian"

cd "$copy"
DEB_BUILD_OPTIONS="terse parallel=$(nproc)" dpkg-buildpackage --no-sign
mkdir -p "$output"
"$root/packaging/clear-packages.sh" "$output" "$root/packaging/debian/control"
find "$scratch" -maxdepth 1 -type f -exec mv -t "$output" {} +
ls -l "$output"
