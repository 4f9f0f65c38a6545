#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# baseline.sh [--update] LIBRARY BASELINE FOLDER HEADER ...
#
# Compares the interface of a library with that of the last release, BASELINE: what it exports, and how
# the types of its installed HEADERs, included from FOLDER, lie in memory and in their tables of virtual
# functions. What is added passes; docs/abi.md tells what else does. With --update BASELINE is written
# anew, which a release does. CXX and FLAGS are the compiler and its flags, those of the toolkit among them.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")

update=no
if [ "$1" = --update ]; then
    update=yes
    shift
fi
library=$1
baseline=$2
folder=$3
shift 3

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "baseline: $*" >&2
    exit 1
}
command -v abidw >/dev/null || fail "abidw is missing: install abigail-tools"

# The library itself is asked for its names alone: of its types the tool tells but those that its own
# sources happen to complete.
printf '#include <%s>\n' "$@" >"$scratch/probe.cpp"
echo 'int filarixProbe;' >>"$scratch/probe.cpp"
# shellcheck disable=SC2153 # the environment's
read -ra flags <<<"$FLAGS"
"$CXX" -std=c++11 -fPIC -shared -g -femit-class-debug-always -fno-eliminate-unused-debug-types \
    -fno-eliminate-unused-debug-symbols -I"$folder" "${flags[@]}" "$scratch/probe.cpp" -o "$scratch/probe.so"
"${OBJCOPY:-objcopy}" --strip-debug "$library" "$scratch/library.so"

dump() {
    abidw --load-all-types --short-locs --no-corpus-path --no-comp-dir-path --no-parameter-names \
        --no-elf-needed --type-id-style hash "$scratch/$1.so" >"$scratch/$1.abi"
}
dump probe
dump library
printf '%s\n' "${@##*/}" >"$scratch/headers"
"$here/interface.py" "$scratch/probe.abi" "$scratch/library.abi" "$scratch/headers" >"$scratch/interface.abi"

if [ "$update" = yes ]; then
    cp "$scratch/interface.abi" "$baseline"
    exit
fi
[ -s "$baseline" ] || fail "there is no $baseline"
abidiff --no-added-syms "$baseline" "$scratch/interface.abi" \
    || fail "hosts of the last release would have to be compiled again; see docs/abi.md"
