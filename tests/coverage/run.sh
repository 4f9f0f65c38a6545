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
cmake --build --preset coverage --parallel "$(nproc)"

find "$build" -name '*.gcda' -delete
ctest --preset coverage --parallel "$(nproc)" --no-tests=error --label-exclude 'host|panel'
count library.json base gcode window editor controls list tables transfer
ctest --preset coverage --parallel "$(nproc)" --no-tests=error --label-regex 'host|panel'
count hosts.json host panel

exec tests/coverage/branches.py docs/coverage.md "$@" "$build/library.json" "$build/hosts.json"
