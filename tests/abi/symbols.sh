#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# symbols.sh [--update] LIBRARY [LIST]
#
# Compares what a library exports with a list, exported-symbols.txt without another, or writes that
# file anew. Names are demangled and stand once, whatever variants a compiler makes of a constructor:
# so the list is one for all compilers and processors. docs/abi.md tells which changes are fine.
set -euo pipefail

update=no
if [ "$1" = --update ]; then
    update=yes
    shift
fi
list=${2:-$(dirname "$(readlink -f "$0")")/exported-symbols.txt}

# Undecorated names are the resource functions; those that begin with "_" are the linker's and the
# sanitizers' own. What a compiler makes of the standard library's templates is its own as well.
exported() {
    "${NM:-nm}" --dynamic --defined-only --demangle "$1" | sed 's/^[0-9a-f]* . //' | grep -v '^_' \
        | grep -vE '^([a-z ]+ )?std::' | LC_ALL=C sort -u
}

if [ "$update" = yes ]; then
    exported "$1" >"$list"
elif ! diff -u "$list" <(exported "$1"); then
    echo "The exported symbols have changed. If docs/abi.md allows it: $0 --update $*" >&2
    exit 1
fi
