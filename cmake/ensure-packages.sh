#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# ensure-packages.sh PACKAGE ...
#
# Installs those of the Debian packages that are missing, as root or through sudo, and says which.
set -euo pipefail

# One question for all of them: what asks each time is in the way of every start.
installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
missing=()
for package in "$@"; do
    [[ $'\n'$installed$'\n' == *$'\n'"installed $package"$'\n'* ]] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing ${#missing[@]} missing Debian packages: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "They need root, and there is no sudo here. As root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0 \
        -o Acquire::Retries=3 "$@" </dev/null
}
apt_get update
apt_get install --yes --no-install-recommends "${missing[@]}" >/dev/null
