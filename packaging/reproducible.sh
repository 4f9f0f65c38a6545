#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# reproducible.sh [--quick]
#
# Builds library and companion twice, from copies of the tree in two folders with names of different
# length, without the compiler's cache. Fails unless all that is installed is equal, byte for byte.
# With --quick nothing is optimised, which takes half the time: a path that gets in does so as well.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
options=()
[ "${1:-}" != --quick ] || options=(-DCMAKE_CXX_FLAGS_RELEASE="-O0 -DNDEBUG")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

tree_of() {
    echo "$scratch/$1/filarix-module"
}

copy() {
    mkdir -p "$(tree_of "$1")"
    # What was removed and not committed is listed, and not there.
    git -C "$root" ls-files -z --cached --others --exclude-standard \
        | tar -C "$root" --null -T - --ignore-failed-read -c 2>/dev/null | tar -C "$(tree_of "$1")" -x
}

build() {
    local tree
    tree=$(tree_of "$1")
    cmake -S "$tree" -B "$tree/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DFILARIX_CCACHE=OFF \
        -DFILARIX_PANEL=OFF -DFILARIX_DESIGNER=OFF -DFILARIX_EXAMPLES=OFF -DFILARIX_TESTS=OFF \
        "${options[@]}" >"$scratch/log" 2>&1 || { cat "$scratch/log" >&2; exit 1; }
    cmake --build "$tree/build" --parallel "$(nproc)" >"$scratch/log" 2>&1 \
        || { tail -n 30 "$scratch/log" >&2; exit 1; }
    DESTDIR=$scratch/$1/image cmake --install "$tree/build" --prefix /usr >/dev/null
}

# Both copies first: nobody's edit comes between them.
copy one
copy another-and-longer
build one
build another-and-longer
files=$(find "$scratch/one/image" -type f | wc -l)
[ "$files" -gt 80 ] || { echo "reproducible: only $files files were installed" >&2; exit 1; }
diff -rq "$scratch/one/image" "$scratch/another-and-longer/image" || {
    echo "reproducible: the files above differ from build to build" >&2
    exit 1
}
echo "$files files are equal, byte for byte"
