#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# failures.sh
#
# What support/failures.sh tells of a run of ctest: the failed test with the line that says why, far from
# its end, and not the passed one; nothing of a run that is older than asked for.
set -euo pipefail
told=$(dirname "$(readlink -f "$0")")/support/failures.sh
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/build/some"

fail() {
    echo "failures: $*" >&2
    exit 1
}

cat >"$scratch/build/some/CTestTestfile.cmake" <<'END'
add_test(good sh -c "echo 'FAIL!  : not of a failed test'")
add_test(bad sh -c "echo 'FAIL!  : the reason' && seq 100 199 && echo 'the end' && false")
END
touch "$scratch/before"
! ctest --test-dir "$scratch/build/some" >"$scratch/log" 2>&1 || fail "the bad test passes"
"$told" "$scratch/build" "$scratch/before" >"$scratch/told"
cat "$scratch/told"
grep -q '^-- bad, ' "$scratch/told" || fail "the failed test is not named"
grep -q 'FAIL!  : the reason' "$scratch/told" || fail "the reason is not told"
tail -n 1 "$scratch/told" | grep -q 'the end' || fail "the end is not told"
! grep -q 'not of a failed test' "$scratch/told" || fail "a passed test is told of"
! grep -q 150 "$scratch/told" || fail "all is told"
touch "$scratch/after"
[ -z "$("$told" "$scratch/build" "$scratch/after")" ] || fail "an older run is told of"
