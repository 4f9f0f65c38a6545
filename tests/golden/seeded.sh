#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# seeded.sh PROGRAM LIST KEPT
#
# Lets filarix-golden compare a walk with a kept picture that has a key too many: it has to fail, to say
# where, and to leave both pictures. The sandbox runs it.
set -euo pipefail
program=$1
list=$2
kept=$3
name=480x272-light-program.png

mkdir -p seeded/kept seeded/found
cp "$kept/$name" seeded/kept
convert "seeded/kept/$name" -fill '#f7f9fb' -stroke '#9fb0c2' -draw 'rectangle 200,200 239,239' \
    "seeded/kept/$name"
grep -E '^(#|screen|program )' "$list" >seeded/list
if "$program" check "$PWD/seeded/list" 480x272 light "$PWD/seeded/found" "$PWD/seeded/kept" \
    2>seeded/told; then
    echo "golden: another picture is taken for the kept one" >&2
    exit 1
fi
cat seeded/told
grep -qE "seeded/found/$name: [1-9][0-9]* pixels differ, most around 2[0-9][0-9],2[0-9][0-9]" seeded/told
[ -s "seeded/found/$name" ] && [ -s "seeded/found/differs-$name" ]
