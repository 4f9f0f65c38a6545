#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# arrows.sh lets a tree pass that is as it should be, and finds each kind of wrong include in it.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
tree=$scratch/tree
log=$scratch/log

fail() {
    echo "FAIL: $1"
    cat "$log"
    exit 1
}

# include FILE INCLUDED ...: a file of the tree, with these in its text.
include() {
    mkdir -p "$tree/${1%/*}"
    printf '#include %s\n' "${@:2}" >"$tree/$1"
}

include base/compat.h '<QtGlobal>'
include controls/lineedit.h '"compat.h"'
include window/waqp.h '"compat.h"'
include transfer/dialog.h '<QDialog>' '"compat.h"'
include transfer/importmanage.h '"waqp.h"' '"dialog.h"'
include editor/wfinddialog.h '"dialog.h"' '"lineedit.h"' '"hmidevice/gcodekeypad.h"'
include list/combolineedit.h '<QLineEdit>'
include tables/dataeditor.h '"combolineedit.h"'
include list/mjline.h '"dataeditor.h"'
include tables/conneditor.h '"mjline.h"'
include window/wmmainwindow.h '"wfinddialog.h"' '"waqp.h"'
include host/base/message.h '<QString>'
include host/storage/filejob.h '"base/message.h"' '"waqp.h"'
include host/programs/programname.h '"storage/filejob.h"'
include host/stick/stick.h '"programs/programname.h"'
include host/guards/programguard.h '"stick/stick.h"' '"wmmainwindow.h"'
include panel/look/look.h '"base/message.h"'
include panel/display/panelglass.h '"look/look.h"'
include panel/shell/panelwindow.h '"display/panelglass.h"'
include panel/screens/filesscreen.h '"shell/panelwindow.h"' '"guards/programguard.h"'
include panel/options.h '"look/look.h"'
include panel/main.cpp '"options.h"' '"screens/filesscreen.h"' '"main.moc"'

"$here/arrows.sh" "$tree" >"$log" 2>&1 || fail "a tree without a fault does not pass"

mkdir "$scratch/empty"
if "$here/arrows.sh" "$scratch/empty" >"$log" 2>&1; then fail "an empty tree passes"; fi

# fault FILE INCLUDED WORDS: with this in that file the script fails, and says WORDS of it alone.
count=0
fault() {
    cp "$tree/$1" "$scratch/kept"
    printf '#include %s\n' "$2" >>"$tree/$1"
    if "$here/arrows.sh" "$tree" >"$log" 2>&1; then fail "$2 passes in $1"; fi
    grep -qE "^$1:[0-9]+: includes .*$3" "$log" || fail "$2 in $1 is not named"
    grep -q ' 1 faults$' "$log" || fail "$2 in $1 is not the only fault"
    mv "$scratch/kept" "$tree/$1"
    count=$((count + 1))
}

above='which stands above it'
fault base/compat.h '"lineedit.h"' "$above"
fault transfer/dialog.h '"importmanage.h"' "$above"
fault editor/wfinddialog.h '"wmmainwindow.h"' "$above"
fault list/combolineedit.h '"dataeditor.h"' "$above"
fault tables/dataeditor.h '"mjline.h"' "$above"
fault list/mjline.h '<conneditor.h>' "$above"
fault editor/wfinddialog.h '"storage/filejob.h"' "$above"
fault window/wmmainwindow.h '"panel/options.h"' "$above"
fault window/wmmainwindow.h '"shell/panelwindow.h"' "$above"
fault host/base/message.h '"storage/filejob.h"' "$above"
fault host/storage/filejob.h '"programs/programname.h"' "$above"
fault host/programs/programname.h '"stick/stick.h"' "$above"
fault host/stick/stick.h '"guards/programguard.h"' "$above"
fault host/guards/programguard.h '"screens/filesscreen.h"' "$above"
fault host/guards/programguard.h '"options.h"' "$above"
fault panel/look/look.h '"display/panelglass.h"' "$above"
fault panel/display/panelglass.h '"shell/panelwindow.h"' "$above"
fault panel/shell/panelwindow.h '"screens/filesscreen.h"' "$above"
fault panel/screens/filesscreen.h '"options.h"' "$above"
fault host/storage/filejob.h '"message.h"' 'instead of "base/message.h"'
fault panel/main.cpp '"panel/options.h"' 'instead of "options.h"'
fault panel/main.cpp '"panelwindow.h"' 'instead of "shell/panelwindow.h"'
fault host/guards/programguard.h '"../stick/stick.h"' 'instead of "stick/stick.h"'

echo "$count faults found, 0 missed"
