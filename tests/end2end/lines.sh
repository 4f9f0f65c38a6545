#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# lines.sh PANEL LOCATOR
#
# The ways through a program of 100000 lines, counted in touches: any line by its number, the ends, a
# page, and a word that is searched for behind the load.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

lines=100000
most_touches=8

mkdir -p "$HOME/cnc"
seq 1 "$lines" | sed 's/.*/G01 X&/' | sed 's/X500$/X500 S450/' >"$HOME/cnc/long.cnc"

# walk_to LINE: from wherever the cursor is.
walk_to() {
    local before=$desk_touches touches
    touch_text Row:
    type_keys "$1"
    touch_named key_ok
    # The read-out, and the text of the line itself.
    expect_text "$1"
    expect_text "G01 X$1"
    touches=$((desk_touches - before))
    echo "line $1: $touches touches"
    [ "$touches" -le "$most_touches" ] || desk_fail "line $1 took $touches touches"
}

desk_start 800x480
touch_text Open
touch_text long.cnc "Open file"
touch_text OK "Open file"
# The read-out's Count; the line behind the last end of line does not go in.
desk_until 90 desk_shows "$lines" || desk_fail "the program was not loaded"
expect_text long.cnc

# Before anything else was touched: the load leaves the cursor at the end.
touch_text Find
type_keys s450
touch_named key_ok
expect_text s450 Find
touch_text Find Find
expect_text 500
expect_text "G01 X500 S450"
desk_picture lines-found.png
# There is no other one.
touch_text Find Find
expect_text "End reached, went on at the top: line 500."
desk_picture lines-wrapped.png
touch_text Close Find
expect_gone "Match case"

for line in 54321 1 99999 "$lines" 7; do
    walk_to "$line"
done
desk_picture lines-walked.png

touch_text Last
expect_text "G01 X$lines"
touch_text First
expect_text "G01 X1"
# Up and down again, by the keys of that name.
touch_text Page "" 2
expect_gone "G01 X1"
touch_text Page "" 1
expect_text "G01 X1"
touch_text Line
type_keys 4
touch_named key_ok
expect_text "G01 X4"

echo "1 passed, 0 failed"
