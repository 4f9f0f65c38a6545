#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# fulldisk.sh PANEL LOCATOR
#
# A save that finds the disk full: it is told, with this program's name and the system's reason, the
# program stays modified and open, and is stored as a whole once there is room.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

programs=$HOME/cnc

says() { grep -qF -- "$1" "$desk_map"; }
expect_words() { desk_until 20 says "$1" || desk_fail "nothing says \"$1\""; }

[ "$(stat -f -c %T "$HOME")" = tmpfs ] || desk_fail "the home has no limit"

desk_start 800x480
touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
expect_text test-coil.cnc
lines=$(($(wc -l <"$programs/test-coil.cnc") + 1))

# More than the room that the library makes when it empties the file.
touch_text Copy
expect_text OK Copy
touch_named QLineEdit
touch_named key_clear
type_keys $((lines - 1))
touch_named key_ok
touch_text OK Copy
expect_gone OK Copy
for _ in 1 2 3 4 5 6; do
    touch_text Paste
done
expect_text "test-coil.cnc*"
dd if=/dev/zero of="$HOME/filling" bs=4096 2>/dev/null || true

touch_text Save
expect_text "Try again" Save
expect_words "test-coil.cnc is not stored. The whole program is only in the editor."
expect_text "No space left on device" Save
desk_picture fulldisk-question.png
touch_text Later Save
expect_gone "Try again"
expect_text "test-coil.cnc*"
expect_text "test-coil.cnc is not stored: No space left on device"
desk_picture fulldisk.png

# Closing objects. Just after a dialog no window may be the active one.
desk_until 20 xdotool getactivewindow || desk_fail "no window is active"
xdotool key alt+F4
expect_text Discard
touch_text Cancel
expect_gone Discard

# With room again, all of it is stored.
rm "$HOME/filling"
touch_text Save
expect_words "test-coil.cnc saved"
expect_gone "test-coil.cnc*"
[ "$(wc -c <"$programs/test-coil.cnc")" -gt 4096 ] || desk_fail "the program is not whole"

echo "1 passed, 0 failed"
