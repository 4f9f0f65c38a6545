#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# ownfiles.sh PANEL LOCATOR FILEWATCH
#
# A walk over all screens, with a stick that comes and goes, a save, a download and the stores of the
# lists. The thread that serves the screen may call for no program, no stick, no PLC and none of the
# panel's own files, but for the library's own calls.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

log=/tmp/calls
stick=/mnt/Storage.stick
export FILARIX_WATCHED=$HOME/cnc:$HOME/hmi:$HOME/plc:/mnt:/tmp/udiskattach FILARIX_WATCH_LOG=$log
desk_preload=:$desk_filewatch

desk_start 800x480 --plc "$HOME/plc" --stick "$stick"
mkdir -p "$HOME/plc"

touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
touch_text Ins
touch_save test-coil.cnc
touch_text "D/L"
touch_text Send Download
desk_until 30 cmp -s "$HOME/cnc/test-coil.cnc" "$HOME/plc/test-coil.cnc" \
    || desk_fail "nothing arrived at the PLC"

touch_text Teach
touch_text Delete
touch_text Store
desk_until 20 test -s "$HOME/hmi/program.teach" || desk_fail "the taught program is not stored"
touch_text Variables
touch_text Store
desk_until 20 test -s "$HOME/hmi/variables.txt" || desk_fail "the variables are not stored"
touch_text Connections
expect_text "Edit the addresses"
touch_text Files
touch_text Plug
# The stand-in for the stick brings a name that is not safe.
touch_text Yes "File names"
touch_text History
touch_text Close History
touch_text Pull
# A few rounds of whatever looks by itself.
sleep 5
touch_text Program

[ ! -s "$log" ] || desk_fail "files called for by the thread of the screen: $(sort "$log" | uniq -c)"

# Nor was the watch blind.
FILARIX_WATCH_LOG=/tmp/check LD_PRELOAD=$desk_filewatch cat "$HOME/cnc/test-coil.cnc" >/dev/null
grep -q "$HOME/cnc/test-coil.cnc" /tmp/check || desk_fail "the watch on files sees nothing"

echo "1 passed, 0 failed"
