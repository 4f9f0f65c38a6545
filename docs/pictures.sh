#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# docs/pictures.sh
#
# Makes the pictures of the README and of the documentation anew: the panel program walks its screens,
# and the named ones go to docs/images; classpictures leaves one of each class in docs/images/classes, and
# design.py the examples of the page of the design in docs/images/design.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# tour SIZE ROTATION: walks the screens into $scratch/SIZE.
tour() {
    ./run --size "$1" --rotation "$2" --tour "$scratch/$1" >"$scratch/log" 2>&1 \
        || { cat "$scratch/log" >&2; exit 1; }
}

# keep SIZE SCREEN: one picture of a tour, whatever its number.
keep() {
    local found=("$scratch/$1"/*-"$2".png)
    cp "${found[0]}" "docs/images/$2-$1.png"
}

mkdir -p docs/images
tour 800x480 0
keep 800x480 program
keep 800x480 find
tour 480x800 90
keep 480x800 program
keep 480x800 gcode-keypad

docs/pictures/design.py

cmake --preset dev >/dev/null
cmake --build --preset dev --target classpictures >/dev/null
mkdir -p docs/images/classes "$scratch/classes"
FILARIX_SANDBOX_WRITABLE=$scratch/classes \
    tests/support/sandbox.sh build/dev/docs/classpictures "$scratch/classes" 2>"$scratch/log" \
    || { cat "$scratch/log" >&2; exit 1; }
cp "$scratch"/classes/*.png docs/images/classes/
