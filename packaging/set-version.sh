#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# set-version.sh [VERSION DATE]
#
# The version is told once, by project() in CMakeLists.txt; packages, header and manual page have it from
# there, and their date from CHANGELOG.md. What a build can't write has it as well: the changelog of the
# Debian packages, the Buildroot package, the Yocto recipe's name. Without arguments this looks whether all
# agree; with a version and its date, 2027-01-31 say, it writes them, for a release.
set -euo pipefail
cd "${ROOT:-$(dirname "$(dirname "$(readlink -f "$0")")")}"
makefile=packaging/integration/buildroot/filarix-module/filarix-module.mk
recipes=packaging/integration/yocto
maintainer=$(sed -n 's/^Maintainer: //p' packaging/debian/control)

told() {
    sed -nE 's/^project\(FilarixModule VERSION ([0-9.]+).*/\1/p' CMakeLists.txt
}

if [ $# -eq 2 ]; then
    version=$1
    old=$(told)
    date=$(LC_ALL=C date -u -R -d "$2 09:00")
    sed -i -E "s/^(project\(FilarixModule VERSION )[0-9.]+/\1$version/" CMakeLists.txt
    sed -i -E "s/^(FILARIX_MODULE_VERSION = ).*/\1$version/" "$makefile"
    [ "$old" = "$version" ] || mv "$recipes/filarix-module_$old.bb" "$recipes/filarix-module_$version.bb"
    sed -i "s/filarix-module_$old\.bb/filarix-module_$version.bb/" packaging/integration/README.md
    grep -q "^## $version, " CHANGELOG.md || sed -i "s/^## Unreleased$/&\n\n## $version, $2/" CHANGELOG.md
    if ! grep -q "^filarix-module ($version)" packaging/debian/changelog; then
        entry=$(printf '%s\n\n' "filarix-module ($version) unstable; urgency=medium" \
            "  * CHANGELOG.md tells what is in it." " -- $maintainer  $date")
        printf '%s\n\n%s\n' "$entry" "$(<packaging/debian/changelog)" >packaging/debian/changelog
    fi
fi

version=$(told)
lacks() {
    echo "set-version: $1 does not say $version" >&2
    status=1
}
status=0
[ -n "$version" ] || lacks CMakeLists.txt
grep -qE "^## $version, [0-9]{4}-[0-9]{2}-[0-9]{2}$" CHANGELOG.md || lacks CHANGELOG.md
head -n 1 packaging/debian/changelog | grep -qF "filarix-module ($version) " || lacks packaging/debian/changelog
grep -qx "FILARIX_MODULE_VERSION = $version" "$makefile" || lacks "$makefile"
[ -f "$recipes/filarix-module_$version.bb" ] || lacks "$recipes"
grep -qF "filarix-module_$version.bb" packaging/integration/README.md || lacks packaging/integration/README.md
exit "$status"
