#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# update.sh [--kept | --verify | --seeded]
#
# Takes the pictures that pictures.txt lists, the wanted ones too, and makes the page docs/pictures.md of
# them; with --kept those that are kept already. Each walk is made twice, and where the two differ
# nothing is renewed. With --verify nothing is taken: it fails where list, pictures and page don't have the same, or the pictures are too many bytes.
# With --seeded it does that for a few lists with faults, each of which has to be found.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
root=$(readlink -f "$here/../..")
list=$here/pictures.txt
images=$root/docs/images/golden
page=$root/docs/pictures.md
# What a repository bears, with a new set for each release.
most_bytes=3000000

# Prints "SCREEN SIZE LOOK TEXT", a line a picture, of the letters that match $1.
rows() {
    awk -v letters="$1" '
        /^#/ || NF == 0 { next }
        $1 == "screen" { for (i = 2; i <= 6; ++i) size[i] = $i; next }
        {
            text = $7
            for (i = 8; i <= NF; ++i)
                text = text " " $i
            for (i = 2; i <= 6; ++i)
                for (j = 1; j <= length($i); ++j) {
                    letter = substr($i, j, 1)
                    if (letter !~ letters)
                        continue
                    look = tolower(letter)
                    look = look == "l" ? "light" : look == "d" ? "dark" : "high-contrast"
                    print $1, size[i], look, text
                }
        }' "$list"
}

# The page, made of the list alone.
write_page() {
    cat <<'PAGE'
# Pictures

The panel program's screens as each release keeps them. A test draws each anew and compares the two: an
eye must not see a difference. `tests/golden/update.sh` takes them all, and makes this page.
[How we measure up](peers.md) has ten criteria beside what others say of theirs.
PAGE
    local screen size look text before=
    while read -r screen size look text; do
        if [ "$screen" != "$before" ]; then
            printf '\n## %s\n\n' "${text^}"
            before=$screen
        fi
        printf '![%s, %s, %s](images/golden/%s-%s-%s.png)\n' \
            "${text^}" "$size" "${look/-/ }" "$size" "$look" "$screen"
    done < <(rows '[LDH]')
}

verify() {
    local listed there bytes
    listed=$(rows '[LDH]' | awk '{ print $2 "-" $3 "-" $1 ".png" }' | sort)
    there=$(find "$images" -name '*.png' -printf '%f\n' | sort)
    [ -n "$listed" ] || { echo "golden: no picture is listed" >&2; return 1; }
    [ "$listed" = "$there" ] || {
        echo "golden: listed (<) is not what is there (>); tests/golden/update.sh" >&2
        diff <(echo "$listed") <(echo "$there") >&2
        return 1
    }
    bytes=$(cat "$images"/*.png | wc -c)
    [ "$bytes" -le "$most_bytes" ] || {
        echo "golden: $bytes bytes of pictures, $most_bytes are the most" >&2
        return 1
    }
    write_page | cmp -s - "$page" || {
        echo "golden: docs/pictures.md is another list's; tests/golden/update.sh" >&2
        return 1
    }
}

# Walks one size and look into a folder.
walk() {
    mkdir -p "$3"
    FILARIX_SANDBOX_WRITABLE=$3 TZ=UTC FONTCONFIG_FILE=$here/fonts.conf \
        "$root/tests/support/sandbox.sh" "$root/build/dev/panel/filarix-golden" \
        "$mode" "$list" "$1" "$2" "$3" </dev/null
}

# renew MODE LETTERS: as filarix-golden and rows() know them.
renew() {
    local mode=$1 scratch size look
    cd "$root"
    cmake --preset dev >/dev/null
    cmake --build --preset dev --target filarix-golden >/dev/null
    scratch=$(mktemp -d)
    # shellcheck disable=SC2064 # this folder, whatever the variable is then
    trap "rm -rf '$scratch'" EXIT
    while read -r size look; do
        echo "$size $look"
        # Both at once: what depends on the time that things take shows.
        walk "$size" "$look" "$scratch/once/$size-$look" &
        walk "$size" "$look" "$scratch/twice/$size-$look" || { wait $! || true; return 1; }
        wait $!
    done < <(rows "$2" | awk '{ print $2, $3 }' | sort -u)
    diff -rq "$scratch/once" "$scratch/twice" >&2 || {
        echo "golden: two walks show different pictures, nothing is renewed" >&2
        return 1
    }
    rm -rf "$images"
    mkdir -p "$images"
    cp "$scratch"/once/*/*.png "$images"
    # What was wanted is there now.
    [ "$mode" = retake ] || awk '/^#/ || $1 == "screen" { print; next }
         { text = substr($0, 67); line = substr($0, 1, 21); cells = substr($0, 22, 45)
           print line toupper(cells) text }' "$list" >"$scratch/list"
    [ "$mode" = retake ] || cat "$scratch/list" >"$list"
    write_page >"$page"
    verify
    echo "$(find "$images" -name '*.png' | wc -l) pictures, $(cat "$images"/*.png | wc -c) bytes"
}

# expect WHAT: the check of the folder's list has to fail.
expect() {
    if verify 2>/dev/null; then
        echo "golden: not found: $1" >&2
        exit 1
    fi
}

seeded() {
    local scratch
    scratch=$(mktemp -d)
    # shellcheck disable=SC2064 # this folder, whatever the variable is then
    trap "rm -rf '$scratch'" EXIT
    list=$scratch/pictures.txt
    images=$scratch/images
    page=$scratch/pictures.md
    mkdir "$images"
    printf '%s\n' 'screen   480x272 272x480 480x800 800x480 1024x600 what it shows' \
        'program  Ld      -       -       L       -        a program' >"$list"
    touch "$images"/{480x272,800x480}-light-program.png
    write_page >"$page"
    verify || { echo "golden: a fault is found where none is" >&2; exit 1; }
    grep -q '^!\[A program, 800x480, light\](images/golden/800x480-light-program.png)$' "$page"
    touch "$images/480x272-dark-program.png"
    expect "a picture that nobody lists"
    rm "$images"/*-dark-*
    mv "$images/480x272-light-program.png" "$scratch"
    expect "a picture that is missing"
    mv "$scratch/480x272-light-program.png" "$images"
    truncate -s $((most_bytes + 1)) "$images/480x272-light-program.png"
    expect "too many bytes"
    truncate -s 0 "$images/480x272-light-program.png"
    echo 'by hand' >>"$page"
    expect "a page that was changed by hand"
    write_page >"$page"
    verify
    : >"$list"
    expect "a list of nothing"
    echo "5 faults found"
}

case "$*" in
    '') renew take '[LDHldh]' ;;
    --kept) renew retake '[LDH]' ;;
    --verify) verify ;;
    --seeded) seeded ;;
    *) sed -n '5,5p' "$0" | sed 's/^# //' >&2 && exit 2 ;;
esac
