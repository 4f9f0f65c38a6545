#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# holds.sh [--seeded]
#
# A class is found by its name among the tests: each header with a class has its tst_NAME.cpp in
# tests/auto, or the class stands in the first line of another test, "// Holds NAME". A test that no
# header is named like has such a line. With --seeded the tree is a small one with faults in it, and each
# fault has to be found.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

rooms=(base gcode window editor controls list tables transfer device host check panel)

# Prints the words behind "// Holds" in the first lines of the tests given.
held() { awk 'FNR > 6 { nextfile } /^\/\/ Holds / { on = 1 } !/^\/\// { on = 0 } on' "$@"; }

# Prints what is not as it should be below the current folder.
unnamed() {
    local header name test classes class words present=() tests=()
    for name in "${rooms[@]}"; do
        [ ! -d "$name" ] || present+=("$name")
    done
    mapfile -t tests < <(find tests/auto -name 'tst_*.cpp' | sort)
    words=$(held "${tests[@]}")
    local -A names=() tested=()
    for test in "${tests[@]}"; do
        name=${test##*/tst_}
        tested[${name%.cpp}]=$test
    done
    while IFS= read -r header; do
        name=${header##*/}
        name=${name%.h}
        name=${name%_p}
        names[$name]=1
        [ -z "${tested[$name]:-}" ] || continue
        classes=$(sed -nE 's/^(class|struct) ([A-Z_]+ )?([A-Za-z]+)( final)?( :.*)?$/\3/p' "$header")
        for class in $classes; do
            # What a header has beside the class of its name goes with that one.
            if [ "${class,,}" != "$name" ] && grep -qix "$name" <<<"$classes"; then
                continue
            fi
            grep -qw "$class" <<<"$words" || echo "no test holds $class of $header"
        done
    done < <(find "${present[@]}" -name '*.h' | sort)
    for name in "${!tested[@]}"; do
        [ -n "${names[$name]:-}" ] || [ -n "$(held "${tested[$name]}")" ] \
            || echo "${tested[$name]} does not say what it holds"
    done
}

case "$*" in
    '')
        [ "$(find tests/auto -name 'tst_*.cpp' | wc -l)" -gt 100 ] || {
            echo "holds: hardly any tests" >&2
            exit 1
        }
        found=$(unnamed)
        [ -z "$found" ] || { echo "$found" >&2 && exit 1; }
        ;;
    --seeded)
        scratch=$(mktemp -d)
        trap 'rm -rf "$scratch"' EXIT
        cd "$scratch"
        mkdir -p host/base list tests/auto/host
        printf '%s\n' 'class FILARIX_HOST_EXPORT Gate : public QObject' 'struct GateState' >host/base/gate.h
        printf 'class Row;\nclass Row\n' >list/row_p.h
        printf '%s\n' '// licence' '' '// Holds Row, which' '// goes on.' >tests/auto/tst_lines.cpp
        touch tests/auto/host/tst_gate.cpp list/functions.h
        [ -z "$(unnamed)" ] || {
            echo "found where nothing is: $(unnamed)" >&2
            exit 1
        }
        seed() {
            [ "$(unnamed | wc -l)" = 1 ] || { echo "not found: $1" >&2 && exit 1; }
        }
        printf 'struct Knob\n' >list/knob.h
        seed "a class without a test"
        rm list/knob.h
        touch tests/auto/tst_other.cpp
        seed "a test that doesn't say what it holds"
        rm tests/auto/tst_other.cpp
        printf '// Holds\n' >tests/auto/tst_lines.cpp
        [ "$(unnamed | wc -l)" = 2 ] || { echo "not found: a line without a class" >&2 && exit 1; }
        echo "3 faults found"
        ;;
    *) sed -n '5,5p' "$0" | sed 's/^# //' >&2 && exit 2 ;;
esac
