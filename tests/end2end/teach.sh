#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# teach.sh PANEL LOCATOR
#
# Edits a taught program: a row is opened, its Z and one of its values are written on the numeric
# keypad, pages are turned away and back, a row is inserted and another deleted. Then the stored
# program is compared with what it has to hold. It lies in the folder of the taught programs, alone, and a
# program of the place where panels kept them before is found there, too.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

program=$HOME/hmi/taught/program.teach
former=$HOME/hmi/former.teach

mkdir "$HOME/hmi"
printf '# Taught program\nOth\t1\t\tOth\tM05 former\n' >"$former"

desk_start 800x480
desk_until 20 cmp -s "$former" "${program%/*}/former.teach" || desk_fail "the former program is not copied"
[ -s "$former" ] || desk_fail "the former program is gone"
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
touch_text "MoveJ(↓)" "" 2
expect_text "MoveJ(↑)"
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
expect_gone "MoveJ(↑)"

# A movement to the point that the row named when it was touched goes below it, and the note that
# stood there goes away.
touch_text MoveJ
expect_text "P:2"
touch_text Text "" 2
touch_text Delete
expect_gone "M10 clamp the wire"
touch_text Select
touch_text "MoveJ(↓)" "" 2
expect_text "MoveJ(↑)"
desk_picture teach-selection.png
touch_text Select

touch_text Store
inserted=$'MJ\t3\tMoveJ\tP\t2\tV\t1\tZ\t0\tT\t0\tAtt\t\tX\t-6\tY\t14\tZ\t0\tU\t1.5\tV\t0\tW\t0\tV\t120\tA\t20\tD\t20'
awk -F '\t' -v OFS='\t' -v inserted="$inserted" '
    $2 == 2 { $5 = ""; $9 = "12.5"; $15 = "7" }
    $2 == 3 { $0 = inserted }
    { print }' /tmp/original >/tmp/expected
desk_until 20 cmp -s /tmp/expected "$program" || true
expect_same /tmp/expected "$program" "the stored program"

# Under another name, with nothing else in the list that Load shows.
touch_text "Store as"
expect_text OK
touch_named key_clear
type_keys rotor
touch_named key_ok
expect_text rotor.teach
expect_same "$program" "${program%/*}/rotor.teach" "the program under its new name"
# Once more under the old one: that is asked, and No covers nothing.
touch_text Delete
touch_text "Store as"
expect_text OK
touch_named key_clear
type_keys former
touch_named key_ok
touch_text No "Store as"
expect_same "$former" "${program%/*}/former.teach" "the program that stood there"
touch_text Undo
touch_text Load
expect_text rotor.teach "Load a taught program"
desk_picture teach-load.png
desk_hides connections.ini "Load a taught program" || desk_fail "Load shows what is no program"
touch_text former.teach "Load a taught program"
touch_text OK "Load a taught program"
expect_text "M05 former"

echo "1 passed, 0 failed"
