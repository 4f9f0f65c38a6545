#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# program.sh PANEL LOCATOR
#
# The first minutes of an operator: open a long program, go up and down, insert a line, write it on the
# keypad, save it under a new name, and send it to the PLC after a look at its checksum. Then the stored
# file and the PLC's are compared byte by byte with what they have to hold.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

programs=$HOME/cnc
plc=$HOME/plc

mkdir -p "$plc"
desk_start 800x480 --plc "$plc"
expect_text Open

touch_text Open
touch_text stator-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
expect_text stator-coil.cnc

# What a long program becomes when it is read: nothing behind a ";", no empty line.
sed 's/;.*//' "$programs/stator-coil.cnc" | grep -v '^$' >/tmp/read
read_lines=$(wc -l </tmp/read)
expect_text "$read_lines"

# A load leaves the cursor on the last line.
row=$read_lines
for _ in 1 2 3 4; do
    touch_text Up
done
for _ in 1 2; do
    touch_text Down
done
row=$((row - 2))
expect_text "$row"
touch_text Ins
expect_text $((row + 1))
expect_text $((read_lines + 1))

touch_text Edit
type_keys "G01 X12.5"
desk_picture program-keypad.png
touch_named key_ok
expect_gone Cancel

touch_text SaveAs
expect_text OK "Save as"
# The name is typed on the keypad that the field opens: first the proposed name goes.
touch_named QLineEdit
touch_named key_clear
type_keys rotor
desk_picture program-name.png
touch_named key_ok
expect_text rotor "Save as"
touch_text OK "Save as"
# A name without a suffix gets one proposed; a second touch takes it.
expect_text rotor.cnc "Save as"
desk_picture program-suffix.png
touch_text OK "Save as"
expect_gone OK "Save as"
desk_until 20 test -s "$programs/rotor.cnc" || desk_fail "nothing was saved"

{
    head -n "$row" /tmp/read
    echo "G01 X12.5"
    tail -n +$((row + 1)) /tmp/read
} | head -c -1 >/tmp/expected
expect_same /tmp/expected "$programs/rotor.cnc" "the saved program"

touch_text "D/L"
# The question shows what a PC says of the file.
checksum=$(sha256sum /tmp/expected | tr a-f A-F | cut -c1-8)
expect_text "${checksum:0:4} ${checksum:4:4}" Download
desk_picture program-question.png
touch_text Send Download
expect_gone Send Download
desk_until 30 test -s "$plc/rotor.cnc" || desk_fail "nothing arrived at the PLC"
desk_until 30 cmp -s /tmp/expected "$plc/rotor.cnc" || true
expect_same /tmp/expected "$plc/rotor.cnc" "the program in the PLC"
desk_picture program-sent.png

echo "1 passed, 0 failed"
