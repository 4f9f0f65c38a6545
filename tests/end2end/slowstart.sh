#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# slowstart.sh PANEL LOCATOR FILEWATCH
#
# The panel's own files hang while it starts: its window comes up all the same, answers a touch, and says
# what it waits for. When they answer, the message goes, and the panel speaks the language that the
# operator chose.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

hang=/tmp/hang
export FILARIX_HANG_SWITCH=$hang FILARIX_HANGING=$HOME/hmi
desk_preload=:$desk_filewatch
mkdir "$HOME/hmi"
printf '[General]\nlanguage=de\n' >"$HOME/hmi/panel.ini"

touch "$hang"
desk_start 800x480
expect_text "The panel's storage does not answer. The programs come once it does."
desk_picture slowstart.png
touch_text Variables
expect_text "Machine variables"
touch_text Program
expect_text Open
[ ! -e "$HOME/cnc/test-coil.cnc" ] || desk_fail "nothing hung"

rm "$hang"
expect_gone "The panel's storage does not answer. The programs come once it does."
expect_text Programm
desk_until 20 test -e "$HOME/cnc/test-coil.cnc" || desk_fail "the samples do not come"
grep -qx language=de "$HOME/hmi/panel.ini" || desk_fail "the operator's choice is gone"

# A second panel that learns late that the home is taken says so and ends.
touch "$hang"
status=0
QT_QPA_PLATFORM=offscreen FILARIX_LOCATOR=/tmp/second-widgets LD_PRELOAD=$desk_locator$desk_preload \
    "$desk_panel" >/tmp/second.log 2>&1 &
second=$!
desk_until 30 test -s /tmp/second-widgets || desk_fail "the second panel shows nothing"
rm "$hang"
wait "$second" || status=$?
[ "$status" = 3 ] || desk_fail "the second panel ended with $status: $(cat /tmp/second.log)"

echo "1 passed, 0 failed"
