#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# run.sh [SECONDS [HARNESS ...]]
#
# Builds the harnesses and tries each for so many seconds (30 by default), as many at a time as there
# are processors. What a run learns stays in build/fuzz/inputs/HARNESS and serves the next one. An
# input with a finding is named on the last lines, and makes the script fail: it belongs into
# tests/auto, as a test.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
cd "$here/../.."

seconds=${1:-30}
[ $# -eq 0 ] || shift
if [ $# -eq 0 ]; then
    for folder in "$here"/corpus/*/; do
        set -- "$@" "$(basename "$folder")"
    done
fi

cmake --preset fuzz
cmake --build --preset fuzz --parallel "$(nproc)"
work=$PWD/build/fuzz/inputs
build=$PWD/build/fuzz/tests/fuzz
mkdir -p "$work"

# Leaks are looked for by ./test --sanitize.
export ASAN_OPTIONS=detect_leaks=0:detect_odr_violation=0:malloc_context_size=6

try() {
    local name=$1
    mkdir -p "$work/$name"
    FILARIX_SANDBOX_WRITABLE=$work/$name "$here/../support/sandbox.sh" "$build/fuzz-$name" \
        -max_total_time="$seconds" -timeout=25 -rss_limit_mb=2048 -max_len=1024 -len_control=0 \
        -detect_leaks=0 -print_final_stats=1 -artifact_prefix="$work/$name/finding-" \
        "$work/$name" "$here/corpus/$name" >"$work/$name.log" 2>&1
}

failed=()
for name; do
    while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do
        wait -n || true
    done
    { try "$name" && echo ok || echo failed; } >"$work/$name.result" &
done
wait || true

for name; do
    progress=$(grep -E 'cov: [0-9]+' "$work/$name.log" | tail -1 || true)
    tries=$(sed -n 's/^stat::number_of_executed_units: *//p' "$work/$name.log")
    printf '%-12s %10s inputs, %s\n' "$name" "${tries:-?}" \
        "$(sed -E 's/.*(cov: [0-9]+ ft: [0-9]+).*/\1/' <<<"$progress")"
    [ "$(cat "$work/$name.result")" = ok ] || failed+=("$name")
done
for name in "${failed[@]}"; do
    echo "== $name"
    grep -vE '^#[0-9]+' "$work/$name.log" | tail -60
done
[ ${#failed[@]} -eq 0 ]
