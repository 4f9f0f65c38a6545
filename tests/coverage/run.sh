#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# run.sh [--update]
#
# Builds library, companion and panel program with counters, passes their tests and compares the branches
# that none of them takes with docs/coverage.md (branches.py). The library is to be covered by its own
# tests, so they come first and are counted alone.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
build=$PWD/build/coverage
export FILARIX_SANDBOX_WRITABLE=$build

library=(base gcode window editor controls list tables transfer)
# What counts branches, and no more. The program itself is the tour's.
targets=(panel/filarix-panel tests/robustness/all)
for folder in "${library[@]}" host panel; do
    [ ! -e "tests/auto/$folder/CMakeLists.txt" ] || targets+=("tests/auto/$folder/all")
done
# A program that is killed has counted nothing. The walks of the smallest and of the largest screen take
# the ways that those of the others take.
left_out='^tst_unsavedkill$|^(tour|tst_textfit|tst_textfit_titles)_([0-9x]+)(_de)?$'
walks='^(tour|tst_textfit)_(480x272|1280x800)$'
# What counts the bytes of a library that comes and goes finds some of the counters' own.
counts_bytes='^tst_unloading$'

# pass CTEST OPTION ...
pass() {
    ctest --preset coverage --parallel "$((2 * $(nproc)))" --no-tests=error "$@"
}

# count REPORT FOLDER ...: what was run since the counters were at zero, of these folders.
count() {
    local report=$1 filters=() folder
    shift
    for folder; do
        filters+=(--filter "$PWD/$folder/")
    done
    # gcov leaves its files where it is started.
    (cd "$build" && gcovr --root ../.. "${filters[@]}" --exclude-unreachable-branches \
        --json "$report" -j "$(nproc)" .)
    # The counters add up, from run to run too. The tests leave them beside the object files.
    find "$build" -name '*.gcda' -delete
}

cmake --preset coverage
cmake --build --preset coverage --parallel "$(nproc)" --target "${targets[@]}"

find "$build" -name '*.gcda' -delete
pass --label-regex "^(robustness|$(IFS='|' && echo "${library[*]}"))\$" --exclude-regex "$counts_bytes"
count library.json "${library[@]}"
pass --label-regex '^(host|panel)$' --exclude-regex "$left_out"
pass --tests-regex "$walks"
count hosts.json host panel

exec tests/coverage/branches.py docs/coverage.md "$@" "$build/library.json" "$build/hosts.json"
