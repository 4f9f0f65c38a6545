#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# update.sh [--check]
#
# Brings the .ts files up to what the sources send through tr(): new texts come in unfinished, texts
# that are gone go. With --check nothing is changed; fails if a file differs from what it would
# become. Run it after a text was added, then translate with Linguist or an editor.
#
# Needs lupdate and lconvert (Debian: qttools5-dev-tools); the variable LUPDATE names another lupdate,
# beside which the other one lies.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

languages=(de it tr zh_CN)
declare -A sources=(
    [filarix]="base gcode window editor controls list tables transfer"
    [filarixhost]="host"
    [filarix-panel]="panel"
    [hmidevice-sim]="device/simulator"
)

# Where a text may come from that moves from one of them to the other: its translations move along.
declare -A siblings=([filarixhost]=filarix-panel [filarix-panel]=filarixhost)

check=no
case "$*" in
    '') ;;
    --check) check=yes ;;
    *) sed -n '5,7s/^# \?//p' "$0" >&2 && exit 2 ;;
esac

lupdate=${LUPDATE:-lupdate}
lconvert=${lupdate%lupdate}lconvert
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/known"
cp translations/*.ts "$scratch/known"

failures=0
for name in "${!sources[@]}"; do
    # Line numbers would change with every edit of a source.
    read -ra folders <<<"${sources[$name]}"
    for language in "${languages[@]}"; do
        known=()
        for origin in "$name" ${siblings[$name]:-}; do
            before=$scratch/known/${origin}_$language.ts
            [ ! -e "$before" ] || known+=(-i "$before")
        done
        file=${name}_$language.ts
        [ "${#known[@]}" -eq 0 ] || "$lconvert" "${known[@]}" -o "$scratch/$file"
        "$lupdate" -silent -locations none -no-obsolete -source-language en \
            -target-language "$language" "${folders[@]}" -ts "$scratch/$file"
        if [ "$check" = no ]; then
            cp "$scratch/$file" "translations/$file"
        elif ! diff -u "translations/$file" "$scratch/$file"; then
            failures=$((failures + 1))
        fi
    done
done
if [ "$failures" -gt 0 ]; then
    echo "$failures .ts files are not what the sources ask for; run translations/update.sh" >&2
    exit 1
fi
