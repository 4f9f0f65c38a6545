#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Compiles every installed header alone, twice in one file, with the switches of strict hosts. The
# environment is set by CMakeLists.txt.
set -euo pipefail

cd "$WORK"
rm -rf headers
mkdir headers
folders=(companion/include/filarix)
fewest=20
if [ "$HOST" = 1 ]; then
    folders+=(companion/include/filarix/host/*)
    fewest=50
fi
for folder in "${folders[@]}"; do
    for header in "$folder"/*.h; do
        name=${header#companion/include/filarix/}
        name=${name#host/}
        printf '#include "%s"\n#include "%s"\n' "$name" "$name" >"headers/${name//\//-}.cpp"
    done
done
[ "$(find headers -name '*.cpp' | wc -l)" -gt "$fewest" ] || {
    echo "headers: hardly any" >&2
    exit 1
}

qt_flags=$(pkg-config --cflags "$QT_GUI_PACKAGE" | sed 's/-I/-isystem /g')
# shellcheck disable=SC2086 # flags are words
printf '%s\0' headers/*.cpp | xargs -0 -P 2 -n 1 -I{} \
    $CCACHE "$CXX" -std=c++11 -fPIC -Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Werror \
    -DQT_NO_KEYWORDS -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII \
    -Icompanion/include/filarix -Icompanion/include/filarix/host $qt_flags -c {} -o {}.o
