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
# Needs lupdate (Debian: qttools5-dev-tools); the variable LUPDATE names another one.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

languages=(de it tr zh_CN)
declare -A sources=(
    [filarix]="base gcode window editor controls list tables transfer"
    [filarix-panel]="host panel"
    [hmidevice-sim]="device/simulator"
)

check=no
case "$*" in
    '') ;;
    --check) check=yes ;;
    *) sed -n '5,7s/^# \?//p' "$0" >&2 && exit 2 ;;
esac

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

failures=0
for name in "${!sources[@]}"; do
    # Line numbers would change with every edit of a source.
    read -ra folders <<<"${sources[$name]}"
    for language in "${languages[@]}"; do
        file=${name}_$language.ts
        [ ! -e "translations/$file" ] || cp "translations/$file" "$scratch/$file"
        "${LUPDATE:-lupdate}" -silent -locations none -no-obsolete -source-language en \
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
