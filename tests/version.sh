#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Shows that packaging/set-version.sh finds each place that tells another version, and writes all of them.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

copy() {
    rm -rf "$scratch/tree"
    mkdir "$scratch/tree"
    cp -r "$root/CMakeLists.txt" "$root/CHANGELOG.md" "$root/packaging" "$scratch/tree"
}
agree() {
    ROOT=$scratch/tree "$root/packaging/set-version.sh" "$@" 2>"$scratch/said"
}
fail() {
    echo "version: $*" >&2
    exit 1
}

version=$(sed -nE 's/^project\(FilarixModule VERSION ([0-9.]+).*/\1/p' "$root/CMakeLists.txt")
for file in CHANGELOG.md packaging/debian/changelog packaging/integration/README.md \
    packaging/integration/buildroot/filarix-module/filarix-module.mk; do
    copy
    sed -i "s/${version//./\\.}/9.9.9/" "$scratch/tree/$file"
    ! agree || fail "$file may say 9.9.9"
    grep -qF "$file" "$scratch/said" || fail "$(<"$scratch/said")"
done
copy
rm "$scratch/tree/packaging/integration/yocto/"*.bb
! agree || fail "the recipe may be missing"

copy
agree 9.8.7 2031-02-03 || fail "$(<"$scratch/said")"
agree || fail "after a change: $(<"$scratch/said")"
grep -qx '## 9.8.7, 2031-02-03' "$scratch/tree/CHANGELOG.md" || fail "the changelog has no such section"
agree 9.8.7 2031-02-03 || fail "a second time: $(<"$scratch/said")"
[ "$(grep -c '9\.8\.7' "$scratch/tree/packaging/debian/changelog")" = 1 ] || fail "the entry stands twice"
