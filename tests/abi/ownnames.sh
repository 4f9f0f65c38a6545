#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# ownnames.sh LIBRARY
#
# Fails where a library leaves it to the loader which of several programs' symbols it uses by one of
# the names that it exports itself: a host's own class of that name would take its place.
set -euo pipefail
library=$1

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# What is instantiated of std's templates is the same wherever it is.
"${NM:-nm}" -D --defined-only --without-symbol-versions "$library" | awk '{ print $NF }' \
    | grep -vE '^_Z+N?K?(T[ISV])?N?K?St' | LC_ALL=C sort -u >"$scratch/own"
"${READELF:-readelf}" -rW "$library" | awk '$3 ~ /^R_/ && NF >= 5 { sub(/@.*/, "", $5); print $5 }' \
    | LC_ALL=C sort -u >"$scratch/looked-up"
for list in own looked-up; do
    [ "$(wc -l <"$scratch/$list")" -gt 50 ] || {
        echo "ownnames: hardly any names in $list" >&2
        exit 1
    }
done
found=$(LC_ALL=C comm -12 "$scratch/own" "$scratch/looked-up")
[ -z "$found" ] || {
    printf 'left to the loader:\n%s\n' "$found" >&2
    exit 1
}
