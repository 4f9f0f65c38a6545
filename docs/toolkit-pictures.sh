#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# docs/toolkit-pictures.sh DIR
#
# Makes the pictures of the page "On Qt 4.8" anew: the library's screens as the whole display shows them,
# with Qt 5 and with the Qt for Embedded Linux 4.8 in DIR, in both sizes of small panels. They go to
# docs/images/toolkits.
set -euo pipefail
toolkit=$(readlink -f "${1:?the folder of a Qt for Embedded Linux 4.8 is missing}")
cd "$(dirname "$(readlink -f "$0")")/.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
images=docs/images/toolkits
mkdir -p "$images"

cmake --preset dev >/dev/null
cmake --build --preset dev --target screenpictures >/dev/null
"$PWD/test" --qt4 "$toolkit" -N >/dev/null
cmake --build --preset qt4-arm --target screenpictures >/dev/null

# take NAME SIZE LAUNCHER ...: the program's pictures, named NAME-SIZE-SCREEN.png.
take() {
    local name=$1 size=$2
    shift 2
    mkdir "$scratch/$name-$size"
    FILARIX_SANDBOX_SCREEN=$size FILARIX_SANDBOX_WRITABLE=$scratch/$name-$size \
        "$@" "$scratch/$name-$size" >"$scratch/log" 2>&1 || { cat "$scratch/log" >&2; exit 1; }
    local picture
    for picture in "$scratch/$name-$size"/*.png; do
        cp "$picture" "$images/$name-$size-${picture##*/}"
    done
}

for size in 480x272 800x480; do
    # The display of Qt 5 takes its dots for very small ones; those of Qt 4 are told 96 an inch.
    take qt5 "$size" env QT_FONT_DPI=96 tests/support/sandbox.sh "$PWD/build/dev/docs/screenpictures"
    take qt4 "$size" tests/qt4/qws.sh "$toolkit/lib" "$PWD/tests/arm/emulate.sh" \
        "$PWD/build/qt4-arm-root" "$PWD/build/qt4-arm/docs/screenpictures"
done
