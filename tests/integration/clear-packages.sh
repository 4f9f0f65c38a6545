#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Has the packages of an earlier build removed from a folder in which other things lie, too.
set -euo pipefail
root=$(dirname "$(dirname "$(dirname "$(readlink -f "$0")")")")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

own=(
    filarix-module_1.0.0.dsc filarix-module_1.0.0.tar.xz filarix-module_1.0.0_amd64.changes
    filarix-module_1.0.0_amd64.buildinfo libfilarixmodule1_1.0.0_amd64.deb
    libfilarixmodule1-dbgsym_1.0.0_amd64.deb libhmidevice-sim_1.0.0_armhf.deb filarix-panel_2.0_all.deb
)
others=(
    thesis.odt libfilarixmodule1.txt other_1.0.0_amd64.deb libfilarixmodule_notes.deb.txt
    'filarix-module notes.dsc' .libfilarixmodule1_1.0.0_amd64.deb
)
(cd "$folder" && touch -- "${own[@]}" "${others[@]}" && mkdir filarix-panel_folder.deb sub \
    && touch sub/libfilarixmodule1_1.0.0_amd64.deb filarix-panel_folder.deb/kept)

list() { (cd "$folder" && find . -mindepth 1 -printf '%P\n' | LC_ALL=C sort); }
expected=$(printf '%s\n' "${others[@]}" filarix-panel_folder.deb filarix-panel_folder.deb/kept sub \
    sub/libfilarixmodule1_1.0.0_amd64.deb | LC_ALL=C sort)
"$root/packaging/clear-packages.sh" "$folder" "$root/packaging/debian/control"
diff -u <(echo "$expected") <(list)
# Nothing of ours there, and a folder that is not there.
"$root/packaging/clear-packages.sh" "$folder" "$root/packaging/debian/control"
"$root/packaging/clear-packages.sh" "$folder/none" "$root/packaging/debian/control"
diff -u <(echo "$expected") <(list)

# The one place where the build of the packages removes something of the folder that it was given.
# shellcheck disable=SC2016
! grep -n 'rm .*\$output' "$root/packaging/build-deb.sh"
grep -qF "clear-packages.sh\" \"\$output\"" "$root/packaging/build-deb.sh"
