#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# teachtask.sh PANEL LOCATOR
#
# Teaches three instructions, copies one, moves one and takes that back, and counts the touches, those to
# the screen among them: twelve at the most, on the smallest panel, too.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

most=12
program=$HOME/hmi/taught/program.teach
touches=0

# touch ARGUMENT...: one of the operator's touches; see touch_text.
touch_once() {
    touch_text "$@"
    touches=$((touches + 1))
}

# first_kinds FILE: the kinds of the first instructions.
first_kinds() { awk -F '\t' '$1 !~ /^#/ { printf "%s ", $1 } ++n == 7 { exit }' "$1"; }

# teach_task SIZE MENU MORE: with "Menu" where the tabs are in a menu, and "More" where keys take turns.
teach_task() {
    local size=$1 menu=$2 more=$3
    touches=0
    [ -z "$menu" ] || touch_once "$menu"
    touch_once Teach
    expect_text "M10 clamp the wire"
    touch_once MoveJ
    touch_once MoveL
    touch_once MoveJ
    desk_until 20 desk_shows "MoveL(↓)" || desk_fail "nothing was taught"
    desk_picture "teachtask-taught-$size.png"
    # By its number, not to open it.
    touch_once 3
    [ -z "$more" ] || touch_once "$more"
    touch_once Copy
    touch_once Paste
    expect_text "MoveL(↓)" "" 2
    desk_picture "teachtask-pasted-$size.png"
    [ -z "$more" ] || touch_once "$more"
    touch_once Down
    touch_once Undo
    desk_picture "teachtask-undone-$size.png"
    [ "$touches" -le "$most" ] || desk_fail "$touches touches at $size"
    echo "$size: $touches touches"
    touch_text Store
    desk_until 20 test -s "$program" || desk_fail "nothing was stored"
    # The sample's first, the three with the copy behind the second of them, and the sample's next.
    [ "$(first_kinds "$program")" = "MJ MJ ML ML MJ MJ " ] \
        || desk_fail "the program holds $(first_kinds "$program")"
}

# The larger panel first: the display has its size.
desk_start 800x480
teach_task 800x480 "" ""
kill "${desk_pids[-1]}"
desk_until 20 desk_has_ended || desk_fail "the panel does not end"
rm "$program"
desk_run 480x272
teach_task 480x272 Menu More

echo "2 passed, 0 failed"
