#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# ontop.sh PANEL LOCATOR
#
# A touch of the panel while a dialog stands on it: the dialog stays on top, and its buttons can be
# pressed. That of a program that is being opened, which is the library's and has no parent, and the
# find dialog; with a window manager, and without one.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

mkdir -p "$HOME/cnc"
# The dialog comes once the toolkit reckons with four seconds.
lines=1500000
yes "G01 X12.5 Y-3.25 F1200" | head -n "$lines" >"$HOME/cnc/long.cnc" || true

# press_panel X Y: a touch of the panel itself, and two looks at the screen later.
press_panel() {
    local map
    desk_click_at "$@"
    map=$(desk_map_time)
    desk_until 20 desk_has_map_since "$map" || desk_fail "the panel stands still"
}

# walk HOW: what is hidden behind the panel gets no press.
walk() {
    touch_text Find
    touch_named key_cancel
    expect_text "Match case"
    press_panel 20 200
    touch_text Close
    expect_gone "Match case"

    touch_text Open
    touch_text long.cnc "Open file"
    touch_text OK "Open file"
    desk_until 60 desk_shows "Abort check" || desk_fail "the dialog of the load never showed ($1)"
    press_panel 20 200
    press_panel 780 240
    desk_picture "ontop-$1.png"
    touch_text "Abort check"
    expect_gone "Abort check"
    desk_hides "$lines" || desk_fail "the press on Abort did not arrive ($1)"
}

desk_start 800x480
walk openbox
kill "${desk_pids[-1]}"
desk_until 20 desk_has_ended || desk_fail "the panel does not end"
kill "${desk_pids[-2]}"
wait "${desk_pids[-2]}" || true
desk_run 800x480
walk alone

echo "1 passed, 0 failed"
