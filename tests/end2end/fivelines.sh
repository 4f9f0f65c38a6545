#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# fivelines.sh PANEL LOCATOR
#
# A new program without a keyboard: five lines by keypad alone, stored under a name of its own and opened
# again. Each touch is counted.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

lines=("G21 G90 T1" "G00 X0 Y25" "S300 M03" "G33 X12 K0.3" "M05 M30")
program=$HOME/cnc/coil.cnc
most_touches=60

touches=0
eval "uncounted_$(declare -f desk_click_at)"
desk_click_at() {
    touches=$((touches + 1))
    uncounted_desk_click_at "$@"
}

# type_line LINE: the blanks come by themselves.
type_line() {
    type_keys "${1// /}"
    desk_until 20 desk_line_reads "$1" || desk_fail "the keypad does not read \"$1\""
}

# desk_line_reads TEXT: on the keypad.
desk_line_reads() {
    awk -F '\t' -v text="$1" '$3 == "value" && $4 == text { found = 1 } END { exit !found }' "$desk_map"
}

desk_start 800x480
expect_text Open

touch_text Edit
for i in "${!lines[@]}"; do
    type_line "${lines[i]}"
    desk_picture "fivelines-keypad-$i.png"
    if [ "$i" -lt $((${#lines[@]} - 1)) ]; then
        touch_named key_next
        # The keypad comes up again for the next line.
        desk_until 20 desk_line_reads "" || desk_fail "no next line after \"${lines[i]}\""
    else
        touch_named key_ok
        expect_gone Cancel
    fi
done
desk_picture fivelines-written.png

touch_text Save
expect_text OK "Save as"
touch_named QLineEdit
touch_named key_clear
type_keys coil
touch_named key_ok
expect_text coil "Save as"
touch_text OK "Save as"
# A name without a suffix gets one proposed; a second touch takes it.
expect_text coil.cnc "Save as"
touch_text OK "Save as"
expect_gone OK "Save as"
expect_text coil.cnc
desk_until 20 test -s "$program" || desk_fail "nothing was saved"
printf '%s\n' "${lines[@]}" >/tmp/expected
expect_same /tmp/expected "$program" "the saved program"

touch_text Open
touch_text coil.cnc "Open file"
touch_text OK "Open file"
# It is the program that is open already.
touch_text Yes Application
expect_gone Yes Application
# The five lines, and the empty one behind the last line end.
expect_text $((${#lines[@]} + 1))
expect_text "${lines[0]}"
desk_picture fivelines-opened.png

echo "touches: $touches"
[ "$touches" -le "$most_touches" ] || desk_fail "$touches touches, and $most_touches are the most"
echo "1 passed, 0 failed"
