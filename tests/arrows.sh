#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# arrows.sh [FOLDER]
#
# Fails where a source of the library, of host/, of check/ or of panel/ includes a header that stands above it, and
# where a header of host/ or of a folder of panel/ is not included by its folder and its name. FOLDER holds the sources; without it
# they are this project's.
set -euo pipefail
cd "${1:-$(dirname "$(readlink -f "$0")")/..}"

# Ground first: a file may include what stands in its own line and in the lines before. A file belongs to
# the longest name with which its path begins. The library's folders lean on one another both ways, its
# files never do: so some of them stand apart from their folder.
mapfile -t lines <<'END'
base/
controls/
window/waqp window/gcodesymbols transfer/dialog transfer/messagebox transfer/hmidirmodel
gcode/
list/label list/combolineedit base/row list/rowfield list/rowgeometry list/rowstyle
transfer/
editor/
tables/dataeditor
list/
tables/
window/
host/base/
host/storage/
host/winding/
check/
host/programs/
host/stick/
host/guards/
panel/look/
panel/display/
panel/shell/
panel/screens/
panel/
END

mapfile -t folders < <(printf '%s\n' "${lines[@]}" | tr ' ' '\n' | cut -d / -f 1 | sort -u)
existing=()
for folder in "${folders[@]}"; do
    [ -d "$folder" ] && existing+=("$folder")
done
mapfile -t files < <(find "${existing[@]}" -name '*.h' -o -name '*.cpp' | sort)

{
    printf 'line %s\n' "${lines[@]}"
    printf 'file %s\n' "${files[@]}"
    grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<]' "${files[@]}" /dev/null | tr -d '\r' \
        | sed -E 's/^([^:]*):([0-9]+):[^"<]*["<]([^">]*)[">].*/include \1 \2 \3/'
} | awk '
    function lineOf(path,    name, longest, found) {
        found = 0
        longest = 0
        for (name in place)
            if (index(path, name) == 1 && length(name) > longest) {
                longest = length(name)
                found = place[name]
            }
        return found
    }
    function nameOf(path) {
        sub(/.*\//, "", path)
        return path
    }
    function isNamedWithFolder(path) { return path ~ /^host\// || path ~ /^panel\/.*\// }
    # Empty for a header of somebody else.
    function pathOf(included) {
        if (("host/" included) in known)
            return "host/" included
        if (("panel/" included) in known)
            return "panel/" included
        return byName[nameOf(included)]
    }
    function rightWay(path) {
        return isNamedWithFolder(path) ? substr(path, index(path, "/") + 1) : nameOf(path)
    }
    function fault(text) {
        print $2 ":" $3 ": " text
        ++faults
    }

    $1 == "line" {
        ++count
        for (i = 2; i <= NF; ++i)
            place[$i] = count
    }
    $1 == "file" {
        ++sources
        known[$2] = 1
        name = nameOf($2)
        # One that may be included without a folder goes before one that may not.
        if (!(name in byName) || !isNamedWithFolder($2))
            byName[name] = $2
        if (!lineOf($2)) {
            print $2 ": stands in no line of the table"
            ++faults
        }
    }
    $1 == "include" {
        path = pathOf($4)
        if (path == "")
            next
        ++includes
        if (lineOf(path) > lineOf($2))
            fault("includes \"" $4 "\", which stands above it")
        else if ($4 != rightWay(path))
            fault("includes \"" $4 "\" instead of \"" rightWay(path) "\"")
    }
    END {
        # A table or a search that finds nothing would find no fault either.
        if (!sources || !includes) {
            print "no sources or no includes found"
            ++faults
        }
        printf "%d sources, %d includes, %d faults\n", sources, includes, faults
        exit faults > 0
    }'
