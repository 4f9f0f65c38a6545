#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# releasehost.sh LIBRARY COMPANION
# releasehost.sh --update FOLDER HEADER ...
#
# Compiles releasehost/main.cpp with the headers of the last release, release-headers.txt, links it with the
# names that its libraries had, interface.abi and interface-host.abi, as a host was built then, and runs it with the two libraries. With --update that file is written anew, from the
# HEADERs that a host includes from FOLDER. CXX, FLAGS, LAUNCHER and DEVICE_LIBRARY come from the
# environment; EDIT is a script for sed that the headers go through first, and SCRATCH a
# folder that the host may see, both for faults.sh.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
bundle=$here/release-headers.txt
mark='== '

if [ "$1" = --update ]; then
    cd "$2"
    for header in "${@:3}"; do
        echo "$mark$header"
        # As they are for the compiler: without their comments.
        "$CXX" -w -fpreprocessed -dD -E -P "$header"
    done >"$bundle"
    exit
fi

scratch=$(mktemp -d -p "${SCRATCH:-/tmp}")
trap 'rm -rf "$scratch"' EXIT
grep "^$mark" "$bundle" | sed "s,^$mark,$scratch/," | xargs dirname | sort -u | xargs mkdir -p
sed "${EDIT:-}" "$bundle" \
    | awk -v folder="$scratch/" '$1 == "==" { file = folder $2; next } { print >file }'

# stub LIBRARY BASELINE: what the linker saw of a library then, its names.
stub() {
    local name=${1##*/}
    sed -nE 's/.*<elf-symbol name="(_Z[^"]*)" (size="[0-9]+" )?type="(func|object)-type".*/\1 \3/p' "$2" \
        | awk '{ sub("func", "function", $2); printf ".globl %s\n.type %s, @%s\n%s: .byte 0\n", $1, $1, $2, $1 }' \
            >"$scratch/$name.s"
    "$CXX" -shared -nostdlib -Wl,-soname,"$name" "$scratch/$name.s" -o "$scratch/$name"
}
stub "$1" "$here/interface.abi"
stub "$2" "$here/interface-host.abi"

paths=()
for library in "$@" "$DEVICE_LIBRARY"; do
    paths+=("-Wl,-rpath,$(dirname "$library")")
done
# shellcheck disable=SC2153 # the environment's
read -ra flags <<<"$FLAGS"
"$CXX" -std=c++11 -fPIC -I"$scratch" "${flags[@]}" "$here/releasehost/main.cpp" -o "$scratch/host" \
    "$scratch/${1##*/}" "$scratch/${2##*/}" "${paths[@]}" -lQt5Widgets -lQt5Gui -lQt5Core
# The stubs lie where the host does, and are not to be found.
rm "$scratch/${1##*/}" "$scratch/${2##*/}"
FILARIX_SANDBOX_WRITABLE=${SCRATCH:-$scratch} LD_BIND_NOW=1 "$LAUNCHER" "$scratch/host"
