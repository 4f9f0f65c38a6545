#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# editing.sh PANEL LOCATOR
#
# Edits without a keyboard: a line on the G-code keypad, a word found and replaced, three lines
# copied and pasted. Then the saved program is compared with what it has to hold.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

program=$HOME/cnc/test-coil.cnc

desk_start 800x480
touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
cp "$program" /tmp/original

# A short program is read as it stands, the cursor on its first line.
for _ in 1 2 3; do
    touch_text Down
done
expect_text 4
touch_text Edit
touch_named key_clear
type_keys "G21 X0.5"
desk_picture editing-gcode-keypad.png
touch_named key_ok
expect_gone Cancel

# The word found without regard to case is replaced once.
speed_line=$(grep -n '^S600$' /tmp/original | cut -d: -f1)
touch_text Find
# The keypad for the text to find opens at once.
type_keys s600
touch_named key_ok
expect_text s600 Find
touch_named LineEdit 2
touch_named key_shift
type_keys s450
touch_named key_ok
expect_text S450 Find
touch_text Find Find
expect_text "$speed_line"
desk_picture editing-find.png
touch_text Replace Find
touch_text Close Find
expect_gone Close Find

# Three lines from the cursor's on; the cursor then stands on the line behind them.
touch_text Copy
expect_text OK Copy
touch_named QLineEdit
touch_named key_clear
type_keys 3
desk_picture editing-copy-count.png
touch_named key_ok
expect_text 3 Copy
touch_text OK Copy
expect_gone OK Copy
expect_text $((speed_line + 3))
touch_text Down
expect_text $((speed_line + 4))
touch_text Paste
expect_text $((speed_line + 7))
desk_picture editing-pasted.png

touch_save test-coil.cnc
sed -e '4s/.*/G21 X0.5/' -e "${speed_line}s/.*/S450/" /tmp/original >/tmp/edited
{
    head -n $((speed_line + 3)) /tmp/edited
    sed -n "${speed_line},$((speed_line + 2))p" /tmp/edited
    tail -n +$((speed_line + 4)) /tmp/edited
} >/tmp/expected
desk_until 20 cmp -s /tmp/expected "$program" || true
expect_same /tmp/expected "$program" "the saved program"

echo "1 passed, 0 failed"
