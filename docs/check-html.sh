#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# check-html.sh FOLDER QCH
#
# Fails if a page in FOLDER links to a page, an anchor or a picture that isn't there or to another
# machine, if a class has no picture on its page, if one of the companion is in no group, or if the help file QCH is missing.
set -euo pipefail
export LC_ALL=C

qch=$(readlink -f "$2")
cd "$1"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# What can be linked to: files, and each page's anchors.
find . -type f -printf '%P\n' >"$scratch/targets"
grep -oE '(id|name)="[^"]+"' -- *.html \
    | sed -E 's/:(id|name)="/#/; s/"$//' >>"$scratch/targets"
sort -u "$scratch/targets" -o "$scratch/targets"

# What is linked to; "#x" means the page itself.
grep -oE '(href|src)="[^"]*"' -- *.html | sed -E 's/:(href|src)="/ /; s/"$//' \
    | sed -E 's/&amp;/\&/g' \
    | awk '$2 ~ /^javascript:/ { next }
           $2 ~ /^#/ { print $1 $2; next }
           { sub(/\?.*/, "", $2); print $2 }' \
    | sort -u >"$scratch/links"

broken=$(comm -13 "$scratch/targets" "$scratch/links" | grep -vE '^https://www\.doxygen\.org/' || true)
if [ -n "$broken" ]; then
    echo "Links that lead nowhere:" >&2
    echo "$broken" >&2
    exit 1
fi
if ! [ -s "$scratch/links" ]; then
    echo "No page has a link: $PWD holds no documentation" >&2
    exit 1
fi

# Those of the companion are included by their folder; they have nothing to show, and groups.
mapfile -t companions < <(grep -lE '#include &lt;[a-z]+/' -- {class,struct}[A-Z]*.html)
bare=$(grep -L '<img src="[a-z]*\.png"' -- class[A-Z]*.html \
    | grep -vE -- '-members\.html|classFilarixRows' \
    | grep -vxF -f <(printf '%s\n' "${companions[@]}") || true)
if [ -n "$bare" ]; then
    echo "Classes without a picture:" >&2
    echo "$bare" >&2
    exit 1
fi
stray=$(grep -L 'class="ingroups"' -- "${companions[@]}" | grep -E '^[a-z]+[A-Z][A-Za-z_]*\.html$' \
    | grep -vE -- '_1_1|-members' || true)
if [ -n "$stray" ]; then
    echo "Classes of the companion in no group of docs/pages/companion.dox:" >&2
    echo "$stray" >&2
    exit 1
fi

if ! [ -s "$qch" ]; then
    echo "$qch was not made" >&2
    exit 1
fi
