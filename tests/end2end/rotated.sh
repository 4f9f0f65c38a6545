#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# rotated.sh PANEL LOCATOR
#
# A display that lies while the panel stands: the program turns its picture, and every click and key
# has to arrive where the operator sees it, in the main window, in a dialog, in a question, on a keypad
# and in a window beside the main one. Closing the turned window ends the program.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

programs=$HOME/cnc

desk_start 480x800 --rotation 90 --rotate 90
expect_text Open
geometry=$(xdotool getwindowgeometry "$desk_glass")
[[ "$geometry" == *"Geometry: 800x480"* ]] || desk_fail "the window is not turned: $geometry"
desk_picture rotated.png

touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
expect_text test-coil.cnc

# A line from the keypad, and keys of a keyboard behind it.
touch_text Ins
touch_text Edit
type_keys "G01 X7"
xdotool key period key 5
desk_picture rotated-keypad.png
touch_named key_ok
expect_gone Cancel
touch_save test-coil.cnc
desk_until 20 grep -q '^G01 X7.5$' "$programs/test-coil.cnc" || desk_fail "the line was not saved"

# The find dialog stands beside the main window, which can be used meanwhile.
touch_text Find
touch_named key_cancel
expect_text "Match case"
touch_text "Search backward"
touch_text Ins
touch_text Close
expect_gone "Match case"

# What blocks the panel is answered; until then nothing behind it can be touched.
touch_text New
expect_text Discard
desk_picture rotated-question.png
touch_text Discard
expect_gone Discard
expect_text "New program"

touch_text Variables
expect_text "Machine variables"

# The window manager's way to close a window. Just after a dialog no window may be the active one.
desk_until 20 xdotool getactivewindow || desk_fail "no window is active"
xdotool key alt+F4
desk_until 20 desk_has_ended || desk_fail "the program goes on without its window"
wait "${desk_pids[-1]}" || desk_fail "the program ended with $?"

echo "1 passed, 0 failed"
