#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# teach.sh PANEL LOCATOR
#
# Edits a taught program: a row is opened, its Z and one of its values are written on the numeric
# keypad, pages are turned away and back, a row is inserted and another deleted. Then the stored
# program is compared with what it has to hold.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

program=$HOME/hmi/program.teach

desk_start 800x480
touch_text Teach
expect_text "M10 clamp the wire"
touch_text Store
desk_until 20 test -s "$program" || desk_fail "nothing was stored"
cp "$program" /tmp/original
# The message lies over the first row for a while.
expect_text "program.teach stored, instructions: 72."
expect_gone "program.teach stored, instructions: 72."
desk_picture teach-closed.png

# The second row, a movement to point 2.
touch_text "Move(↓)" "" 2
expect_text "Move(↑)"
expect_text "X:-6"
desk_picture teach-open-row.png
touch_text "Z:0" "" 2
expect_text OK
touch_named key_clear
type_keys 12.5
desk_picture teach-keypad.png
touch_named key_ok
expect_text "Z:12.5"
expect_text "P:2"
touch_text "X:-6"
expect_text OK
touch_named key_clear
type_keys 7
touch_named key_ok
# With a value of its own the row no longer stands for the point.
expect_text "X:7"
expect_text "P:"

touch_text Page "" 2
expect_gone "Z:12.5"
expect_gone "M10 clamp the wire"
touch_text Page "" 1
expect_text "Z:12.5"
expect_text "P:"
expect_gone "Move(↑)"

# A movement to the point that the row named when it was touched goes below it, and the note that
# stood there goes away.
touch_text Joint
expect_text "P:2"
touch_text Oth
touch_text Delete
expect_gone "M10 clamp the wire"
touch_text Select
touch_text "Move(↓)" "" 2
expect_text "Move(↑)"
desk_picture teach-selection.png
touch_text Select

touch_text Store
inserted=$'MJ\t3\tMove\tP\t2\tV\t1\tZ\t0\tT\t0\tAtt\t\tX\t-6\tY\t14\tZ\t0\tU\t1.5\tV\t0\tW\t0\tV\t120\tA\t20\tD\t20'
awk -F '\t' -v OFS='\t' -v inserted="$inserted" '
    $2 == 2 { $5 = ""; $9 = "12.5"; $15 = "7" }
    $2 == 3 { $0 = inserted }
    { print }' /tmp/original >/tmp/expected
desk_until 20 cmp -s /tmp/expected "$program" || true
expect_same /tmp/expected "$program" "the stored program"

echo "1 passed, 0 failed"
