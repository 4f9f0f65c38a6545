#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Looks at the bill of materials of what install.sh left: it names each file by its checksum and each
# package that a library asks for, is the same the next time, and another one when a file is.
set -euo pipefail
cd "$WORK"
fail() {
    echo "sbom: $*" >&2
    exit 1
}

rm -rf sbom
cp -a companion sbom
"$SOURCE/packaging/sbom.py" sbom sbom.json
"$SOURCE/packaging/sbom.py" sbom sbom-again.json
cmp sbom.json sbom-again.json || fail "another bill of the same files"

while read -r sum file; do
    grep -qF "\"fileName\": \"$file\"" sbom.json || fail "it lacks $file"
    grep -qF "\"checksumValue\": \"$sum\"" sbom.json || fail "another checksum of $file"
done < <(cd sbom && find . -type f -exec sha256sum {} +)

asked=$(readelf -d "sbom/$LIBDIR/libFilarixModule.so.1" | sed -nE 's/.*NEEDED.*\[(libQt5Core\.so\.5)\].*/\1/p')
[ -n "$asked" ] || fail "the library asks for no toolkit"
# shellcheck disable=SC2016 # a placeholder of the tool
qt=$(dpkg-query -W -f '${Version}' libqt5core5a)
grep -qF "\"versionInfo\": \"$qt\"" sbom.json || fail "it does not tell the toolkit's version"
grep -qF '"name": "libc6"' sbom.json || fail "it names the C library of another processor"
grep -qF '"name": "libHMIDevice.so.1"' sbom.json || fail "it does not tell of the device library"

echo >>"sbom/$LIBDIR/libFilarixModule.so.1"
"$SOURCE/packaging/sbom.py" sbom sbom-again.json
! cmp -s sbom.json sbom-again.json || fail "the same bill of another library"
