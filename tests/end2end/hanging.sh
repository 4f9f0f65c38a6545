#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# hanging.sh PANEL LOCATOR FILEWATCH
#
# File systems that hang. The panel starts while the PLC and the stick do, and every screen comes up at
# a touch; then its own storage hangs, too, and every screen still does. When all is well again, so is
# the panel.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

# What an operator takes for an answer at once, on a machine that is busy with other tests.
answer_s=3
hang=/tmp/hang
export FILARIX_HANG_SWITCH=$hang FILARIX_HANGING=$HOME/plc:/mnt/Storage
desk_preload=:$desk_filewatch

# come_up TAB TITLE: a touch of the tab brings its screen.
come_up() {
    touch_text "$1"
    desk_until "$answer_s" desk_shows "$2" || desk_fail "the screen $1 does not come up ($3)"
}

walk() {
    come_up Teach program.teach "$1"
    come_up Variables "Machine variables" "$1"
    come_up Connections "Edit the addresses" "$1"
    come_up Files "Files and stick" "$1"
    come_up Program "$2" "$1"
}

touch "$hang"
: >/tmp/udiskattach
desk_start 800x480 --plc "$HOME/plc"
walk "PLC and stick hang" "New program"
rm "$hang"
expect_text "New program"

touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
expect_text test-coil.cnc

# The program knows the folders by their names: it is the switch that tells when they hang.
kill "${desk_pids[-1]}"
desk_until 20 desk_has_ended || desk_fail "the panel does not end"
export FILARIX_HANGING=$HOME/plc:/mnt/Storage:$HOME/cnc:$HOME/hmi
touch "$hang"
FILARIX_LOCATOR=$desk_map LD_PRELOAD=$desk_locator$desk_preload \
    "$desk_panel" --size 800x480 --plc "$HOME/plc" >/tmp/panel.log 2>&1 &
desk_pids+=($!)
walk "everything hangs" "New program"
rm "$hang"
walk "everything is back" "New program"
touch_text Teach
expect_text Move

echo "1 passed, 0 failed"
