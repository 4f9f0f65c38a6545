#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# clear-packages.sh DIRECTORY CONTROL
#
# Removes from DIRECTORY what a build of the packages that CONTROL names has left there: files by their
# names, and nothing else.
set -euo pipefail
shopt -s nullglob
directory=${1:?}
control=${2:?}

while read -r name; do
    for file in "$directory/$name"_*.{deb,dsc,changes,buildinfo} "$directory/$name"_*.tar.* \
        "$directory/$name-dbgsym"_*.deb; do
        [ -d "$file" ] || rm -f -- "$file"
    done
done < <(sed -n 's/^\(Source\|Package\): *//p' "$control")
