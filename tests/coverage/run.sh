#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# run.sh [--update]
#
# Builds the library with counters, passes the tests of its folders and compares the branches that
# none of them takes with docs/coverage.md (branches.py).
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
build=$PWD/build/coverage

cmake --preset coverage
cmake --build --preset coverage --parallel "$(nproc)"

# The counters add up, from run to run too. The tests leave them beside the object files.
find "$build" -name '*.gcda' -delete
FILARIX_SANDBOX_WRITABLE=$build ctest --preset coverage --parallel "$(nproc)" --no-tests=error

# gcov leaves its files where it is started.
filters=()
for folder in base gcode window editor controls list tables transfer; do
    filters+=(--filter "$PWD/$folder/")
done
(cd "$build" && gcovr --root ../.. "${filters[@]}" --exclude-unreachable-branches \
    --json branches.json -j "$(nproc)" .)
exec tests/coverage/branches.py "$build/branches.json" docs/coverage.md "$@"
