#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# literals.sh [--seeded]
#
# The stick's folder and marker, the room for programs and the sizes where screens change their
# layout stand once, in base/filarixpanel.h. Fails where a source of the library, of host/ or of
# panel/ spells one of them again. With --seeded the sources are a few of its own with faults in
# them, and each fault has to be found.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

rooms=(base gcode window editor controls list tables transfer host check panel)
home=base/filarixpanel.h
literals='/mnt/Storage|/tmp/udiskattach|31457280|30 *\* *1024 *\* *1024|30 *<< *20|\b(400|760)[uUlL]*\b'
# The same digits, meant otherwise.
otherwise=(
    'tables/filedialog.cpp:    return screenHeight > 450 ? 400 : 200;' # the height of a dialog
)

# Prints what spells a literal again below the current folder, comments apart.
spelled() {
    local room present=()
    for room in "${rooms[@]}"; do
        [ ! -d "$room" ] || present+=("$room")
    done
    # shellcheck disable=SC2016 # awk's own
    find "${present[@]}" \( -name '*.cpp' -o -name '*.h' \) ! -path "$home" -print0 | sort -z \
        | xargs -0 -r awk '{
            code = $0
            sub(/^[ \t]*\/\/.*/, "", code)
            sub(/[ \t]\/\/.*/, "", code)
            print FILENAME ":" code
        }' \
        | grep -E ":.*($literals)" | grep -vxF -f <(printf '%s\n' "${otherwise[@]}") || true
}

case "$*" in
    '')
        [ "$(find "${rooms[@]}" -name '*.cpp' 2>/dev/null | wc -l)" -gt 20 ] || {
            echo "literals: hardly any sources" >&2
            exit 1
        }
        found=$(spelled)
        [ -z "$found" ] || {
            printf 'spelled again, see %s:\n%s\n' "$home" "$found" >&2
            exit 1
        }
        ;;
    --seeded)
        scratch=$(mktemp -d)
        trap 'rm -rf "$scratch"' EXIT
        cd "$scratch"
        mkdir -p base list host/stick panel/screens tests
        echo 'const char stickDir[] = "/mnt/Storage";' >"$home"
        echo 'QDir stick("/mnt/Storage/programs");' >tests/outside.cpp
        cat >list/innocent.cpp <<'SOURCE'
// The stick is at "/mnt/Storage", on a screen of 400.
const int delay = 4000; // 400 would be too soon
SOURCE
        [ -z "$(spelled)" ] || {
            echo "found where nothing is: $(spelled)" >&2
            exit 1
        }
        seeds=('QDir stick("/mnt/Storage/programs");' 'QFile marker("/tmp/udiskattach");'
            'const qint64 room = 31457280;' 'const qint64 room = 30 * 1024 * 1024;'
            'if (width < 760)' 'const int narrow = 400;' 'return height < 400u; // small')
        for seed in "${seeds[@]}"; do
            for file in base/a.h list/a.cpp host/stick/a.cpp panel/screens/a.h; do
                echo "$seed" >"$file"
                [ "$(spelled | wc -l)" = 1 ] || {
                    echo "not found in $file: $seed" >&2
                    exit 1
                }
                rm "$file"
            done
        done
        echo "${#seeds[@]} faults found in each of four rooms"
        ;;
    *) sed -n '5,5p' "$0" | sed 's/^# //' >&2 && exit 2 ;;
esac
