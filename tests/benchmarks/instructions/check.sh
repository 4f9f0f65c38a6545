#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# check.sh PROGRAM [--update]
#
# Counts the instructions of four fixed works and compares them with expected.txt beside this
# script: more or less than 5 % off is a failure. Timings are too noisy to judge by; instructions
# come out the same to a few in ten thousand.
#
# The counts hold for x86-64 and the compiler and toolkit of Debian 12. After a change that is meant
# to move them, or with other packages, --update writes them anew.
set -euo pipefail

program=$(readlink -f "$1")
expected=$(dirname "$(readlink -f "$0")")/expected.txt
tolerance=5 # per cent
works=(load colour filter rows)

if ! command -v valgrind >/dev/null; then
    echo "check.sh: valgrind is missing" >&2
    exit 99
fi

# What would choose other code on another processor, or another order of hashes in another run.
export QT_HASH_SEED=0 QT_QPA_PLATFORM=offscreen
export QT_NO_CPU_FEATURE="sse3 ssse3 sse4.1 sse4.2 avx avx2 f16c bmi bmi2 rdrnd"
export GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX,-AVX2,-AVX512F,-ERMS,-SSE4_2,-SSSE3

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
options=(--tool=callgrind "--callgrind-out-file=$folder/out" --collect-atstart=no
    --toggle-collect=count_work --dump-after=count_work)
if ! valgrind "${options[@]}" "$program" 2>"$folder/log"; then
    cat "$folder/log" >&2
    exit 1
fi

failed=0
counts=()
for i in "${!works[@]}"; do
    work=${works[i]}
    count=$(sed -n 's/^\(summary\|totals\): //p' "$folder/out.$((i + 1))" | head -n 1)
    counts+=("$work $count")
    wanted=$(sed -n "s/^$work //p" "$expected" 2>/dev/null || true)
    if [ -z "$count" ] || [ "$count" -eq 0 ]; then
        echo "$work: nothing was counted" >&2
        exit 1
    fi
    [ "${2:-}" != --update ] || continue
    verdict=ok
    if [ -z "$wanted" ] || [ $((100 * count)) -gt $(((100 + tolerance) * wanted)) ] \
        || [ $((100 * count)) -lt $(((100 - tolerance) * wanted)) ]; then
        verdict="NOT within $tolerance %"
        failed=1
    fi
    echo "$work: $count instructions, expected ${wanted:-nothing}: $verdict"
done
if [ "${2:-}" = --update ]; then
    printf '%s\n' "${counts[@]}" >"$expected"
    cat "$expected"
fi
exit "$failed"
