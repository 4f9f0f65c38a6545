#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# left-out.sh NATIVE ARM
#
# Says which tests of the build tree NATIVE the build tree ARM does not have, and why (left-out.txt). A
# test without a reason is a failure; so is a reason without a test.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")

tests_of() {
    ctest --test-dir "$1" --show-only=human | sed -n 's/^ *Test *#[0-9]*: //p' | sort
}
missing=$(comm -23 <(tests_of "$1") <(tests_of "$2"))

status=0
echo "Not run on ARM:"
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
done < <(grep -v '^#' "$here/left-out.txt")
if [ -n "$missing" ]; then
    echo "left-out: not run on ARM, and no reason given:" >&2
    echo "$missing" >&2
    status=1
fi
exit "$status"
