#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# archives.sh FOLDER
#
# Unpacks the builds of Qt 4.8.7 in FOLDER, one for X11 and one for the panels' processor, and passes the
# suite with each. One that is not there is left out, which is said. For .ci/run.
set -euo pipefail
folder=$(realpath -m "${1:?the folder of the archives is missing}")
cd "$(dirname "$(readlink -f "$0")")/../.."

cmake/ensure-packages.sh xz-utils

# unpack NAME: leaves the archive's content in build/qt4-toolkits/NAME, once for each archive.
unpack() {
    local toolkit=build/qt4-toolkits/$1
    local archive=$folder/$1.tar.xz
    if [ "$(cat "$toolkit.from" 2>/dev/null)" = "$(sha256sum <"$archive")" ]; then
        return
    fi
    rm -rf "$toolkit" "$toolkit.from"
    mkdir -p "$toolkit"
    tar -xf "$archive" -C "$toolkit" --strip-components 1 --no-same-owner
    sha256sum <"$archive" >"$toolkit.from"
}

for name in qt-4.8.7-x11-amd64 qt-4.8.7-qws-armhf; do
    if ! [ -f "$folder/$name.tar.xz" ]; then
        echo "Left out: there is no $name.tar.xz in $folder"
        continue
    fi
    echo "-- $name"
    unpack "$name"
    started=$SECONDS
    ./test --qt4 "build/qt4-toolkits/$name"
    echo "-- $name: built and passed in $((SECONDS - started)) s"
done
