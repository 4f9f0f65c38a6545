#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# lines.sh [--seeded]
#
# A recipe of the documentation is read at a glance: a snippet of docs/recipes has ten lines of code at
# the most, comments, empty lines and lone braces not counted. The page of recipes shows each snippet, and
# no code stands outside of them. The examples are as short as examples/README.md says. With --seeded the
# tree is a small one with faults in it, and each fault has to be found.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."

most=10
page=docs/pages/recipes.md

# Prints what is not as it should be below the current folder.
faults() {
    local file name
    for file in docs/recipes/*.h; do
        awk -v most="$most" -v file="$file" '
            /^\/\/! \[/ {
                if (name != "" && lines > most)
                    print file ": " lines " lines of code in [" name "]"
                match($0, /\[.*\]/)
                name = name == "" ? substr($0, RSTART + 1, RLENGTH - 2) : ""
                lines = 0
                next
            }
            { code = $0; sub(/\/\/.*/, "", code) }
            code !~ /[A-Za-z0-9_]/ { next }
            name != "" { ++lines; next }
            code !~ /^(#|class [A-Za-z]+;)/ { print file ": code outside of a snippet: " $0 }
            END {
                if (name != "")
                    print file ": [" name "] does not end"
            }' "$file"
        while IFS= read -r name; do
            grep -qxF "\\snippet ${file##*/} $name" "$page" || echo "$page does not show [$name] of $file"
        done < <(sed -nE 's/^\/\/! \[(.*)\]$/\1/p' "$file" | sort -u)
        grep -q '^//! \[' "$file" || echo "$file: no snippet"
    done
    while IFS= read -r file; do
        name=80
        [ "$file" != examples/safe-host/main.cpp ] || name=150
        [ "$(wc -l <"$file")" -lt "$name" ] || echo "$file has $name lines or more"
    done < <(find examples -name '*.cpp' | sort)
}

case "$*" in
    '')
        [ "$(find docs/recipes -name '*.h' | wc -l)" -gt 10 ] || {
            echo "recipes: hardly any" >&2
            exit 1
        }
        found=$(faults)
        [ -z "$found" ] || { echo "$found" >&2 && exit 1; }
        ;;
    --seeded)
        scratch=$(mktemp -d)
        trap 'rm -rf "$scratch"' EXIT
        cd "$scratch"
        mkdir -p docs/recipes docs/pages examples/one examples/safe-host
        recipe=docs/recipes/one.h
        lines() { for ((i = 0; i < $1; ++i)); do echo "    a$i();"; done; }
        make_tree() {
            {
                printf '%s\n' '// licence' '#include "a.h"' 'class B;' '' '//! [one]' '/// What it does.' '{'
                lines 10
                printf '%s\n' '    // why' '' '}' '//! [one]' '//! [two]' 'b();' '//! [two]'
            } >"$recipe"
            printf '\\snippet one.h %s\n' one two >"$page"
            lines 79 >examples/one/main.cpp
            lines 149 >examples/safe-host/main.cpp
        }
        make_tree
        [ -z "$(faults)" ] || {
            echo "found where nothing is: $(faults)" >&2
            exit 1
        }
        seed() {
            [ "$(faults | wc -l)" = 1 ] || { echo "not found: $1" >&2 && exit 1; }
            make_tree
        }
        sed -i 's/^    a0();/&\n    more();/' "$recipe"
        seed "a line too many"
        sed -i '$d' "$recipe"
        seed "a snippet without an end"
        echo 'c();' >>"$recipe"
        seed "code outside"
        sed -i '/two/d' "$page"
        seed "a snippet that is not shown"
        echo '#define NONE' >docs/recipes/none.h
        seed "a recipe without a snippet"
        rm docs/recipes/none.h
        lines 80 >examples/one/main.cpp
        seed "a long example"
        lines 150 >examples/safe-host/main.cpp
        seed "a long safe host"
        ;;
esac
