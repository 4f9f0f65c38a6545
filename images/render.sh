#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Renders the icons from src/*.svg into the PNGs that robot.qrc compiles in, and those of the Designer
# plugin likewise. The PNGs are kept in the tree so that a build needs no SVG renderer; run this
# after editing a drawing.
#
#   render.sh          renders every icon
#   render.sh --check  changes nothing; fails if a PNG is missing, stale or without a drawing
#
# Needs rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail

# Four times the tool bars' 36 px, so that 36 and 72 divide it without a remainder.
readonly size=144

usage() {
    echo "usage: ${0##*/} [--check]" >&2
    exit 2
}

check=false
case $# in
0) ;;
1) [[ $1 == --check ]] || usage
    check=true ;;
*) usage ;;
esac

if ! command -v rsvg-convert >/dev/null; then
    echo "${0##*/}: rsvg-convert not found; install librsvg2-bin" >&2
    exit 1
fi

cd "$(dirname "${BASH_SOURCE[0]}")/.."
shopt -s nullglob

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

failures=0
for folder in images designer/icons; do
    mkdir -p "$scratch/$folder"
    for drawing in "$folder"/src/*.svg; do
        name=$(basename "$drawing" .svg)
        rsvg-convert --width=$size --height=$size --output="$scratch/$folder/$name.png" "$drawing"
    done
    if ! $check; then
        cp "$scratch/$folder"/*.png "$folder"
        continue
    fi
    for rendered in "$scratch/$folder"/*.png; do
        name=${rendered##*/}
        if ! cmp --silent "$rendered" "$folder/$name"; then
            echo "$folder/$name is missing or out of date; run images/render.sh" >&2
            failures=$((failures + 1))
        fi
    done
    for image in "$folder"/*.png; do
        if [[ ! -e $scratch/$image ]]; then
            echo "$image has no drawing in $folder/src" >&2
            failures=$((failures + 1))
        fi
    done
done
((failures == 0))
