#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# symbols.sh [--update] LIBRARY
#
# Compares what the library exports with exported-symbols.txt, or writes that file anew. Names are
# demangled and stand once, whatever variants a compiler makes of a constructor: so the list is one
# for all compilers and processors. docs/abi.md tells which changes are fine.
set -euo pipefail

list=$(dirname "$(readlink -f "$0")")/exported-symbols.txt
update=no
if [ "$1" = --update ]; then
    update=yes
    shift
fi

# Undecorated names are the resource functions; those that begin with "_" are the linker's and the
# sanitizers' own.
exported() {
    nm --dynamic --defined-only --demangle "$1" | sed 's/^[0-9a-f]* . //' | grep -v '^_' \
        | LC_ALL=C sort -u
}

if [ "$update" = yes ]; then
    exported "$1" >"$list"
elif ! diff -u "$list" <(exported "$1"); then
    echo "The exported symbols have changed. If docs/abi.md allows it: $0 --update $1" >&2
    exit 1
fi
