#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# left-out.sh WHERE REASONS WHOLE OTHER
#
# Says which tests of the build tree WHOLE the build tree OTHER, for WHERE, does not have, and why: by the
# file REASONS. A test without a reason is a failure; so is a reason without a test.
set -euo pipefail
where=$1
reasons=$2
whole=$3
other=$4

tests_of() {
    ctest --test-dir "$1" --show-only=human | sed -n 's/^ *Test *#[0-9]*: //p' | sort
}
missing=$(comm -23 <(tests_of "$whole") <(tests_of "$other"))

status=0
echo "Not run on $where:"
while read -r pattern reason; do
    names=$(grep -xE "${pattern//\*/.*}" <<<"$missing" || true)
    if [ -z "$names" ]; then
        echo "left-out: \"$pattern\" has a reason but is run, or is gone" >&2
        status=1
    fi
    missing=$(grep -vxE "${pattern//\*/.*}" <<<"$missing" || true)
    for name in $names; do
        printf '  %-26s %s\n' "$name" "$reason"
    done
done < <(grep -v '^#' "$reasons")
if [ -n "$missing" ]; then
    echo "left-out: not run on $where, and no reason given:" >&2
    echo "$missing" >&2
    status=1
fi
exit "$status"
