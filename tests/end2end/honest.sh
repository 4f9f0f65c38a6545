#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# honest.sh PANEL LOCATOR
#
# What an operator could lose by one touch while the screen looked healthy: the end of a program by
# Undo, its comments by Save, its rest after an abort, and another program by Save as.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

programs=$HOME/cnc
long_lines=600000

# says TEXT: whether the text is part of what stands on the screen.
says() { grep -qF -- "$1" "$desk_map"; }
expect_words() { desk_until 20 says "$1" || desk_fail "nothing says \"$1\""; }

# open_program NAME
open_program() {
    touch_text Open
    touch_text "$1" "Open file"
    touch_text OK "Open file"
    expect_gone OK "Open file"
}

# slow_down PID: gives a program a fifth of the time, until this is killed. A load takes so long then
# that its dialog comes up, which it does after four seconds, on the quickest machine, too.
slow_down() {
    trap 'kill -CONT "$1"; exit' TERM
    while kill -STOP "$1"; do
        sleep 0.08
        kill -CONT "$1"
        sleep 0.02
    done
}

desk_start 800x480
panel=${desk_pids[-1]}
expect_text Open
# First in the list of the picker.
awk -v n="$long_lines" 'BEGIN { for (i = 1; i <= n; ++i) print "G01 X" i " Y" i " F120" }' \
    >"$programs/abort.cnc"
printf 'G01 X1\nG01 X2\n' >"$programs/coil5.cnc"
mkdir /tmp/before
cp "$programs"/* /tmp/before/

# Undo does not go behind what was opened, and what is left out stays in view.
open_program stator-coil.cnc
left_out="620 lines in the file, 501 shown: no comments, no empty lines"
expect_text "$left_out"
desk_shows Undo && desk_fail "there is something to undo after opening"
xdotool key ctrl+z
expect_text 501
desk_picture honest-left-out.png

# Both numbers stand in the question before a download.
touch_text "D/L"
expect_text "620 in the file, 501 shown" Download
desk_picture honest-question.png
touch_text Cancel Download

# The first save over such a file asks; the harmless answer leaves it alone.
touch_text Save
expect_text "Save without them" Save
desk_picture honest-first-save.png
touch_text Cancel Save
expect_gone Cancel Save
expect_same /tmp/before/stator-coil.cnc "$programs/stator-coil.cnc" "after Cancel"
touch_text Save
touch_text "Save without them" Save
expect_words "stator-coil.cnc saved, 501 lines."
expect_gone "$left_out"
sed 's/;.*//' /tmp/before/stator-coil.cnc | grep -v '^$' | head -c -1 >/tmp/expected
expect_same /tmp/expected "$programs/stator-coil.cnc" "the saved program"

# A new program gets a name of its own proposed, and covers no other one unasked.
touch_text New
expect_text "New program"
touch_text Ins
touch_text Save
expect_text program.cnc "Save as"
touch_text coil5.cnc "Save as"
touch_text OK "Save as"
expect_words "coil5.cnc is there already: 3 lines"
desk_picture honest-cover.png
touch_text Cancel "Save as" 1
expect_gone "Write over it"
# The same by Return in the field.
xdotool key Return
expect_text "Write over it"
xdotool key Escape
expect_gone "Write over it"
touch_text Cancel "Save as"
expect_gone OK "Save as"
expect_same /tmp/before/coil5.cnc "$programs/coil5.cnc" "the program that was not to be covered"

# The front part that an abort leaves is saved nowhere but under a name of its own.
touch_text Open
touch_text Discard
touch_text abort.cnc "Open file"
touch_text OK "Open file"
slow_down "$panel" &
slowing=$!
desk_pids+=("$slowing")
touch_text "Abort check"
kill "$slowing"
wait "$slowing" || true
expect_words "Incomplete: $((long_lines + 1)) lines in the file"
desk_picture honest-incomplete.png
touch_text Ins
touch_text Save
expect_words "Only a part of abort.cnc is here"
touch_text "D/L"
touch_text New
touch_text Save Application
expect_gone Discard
expect_text "abort.cnc*"
touch_text SaveAs
expect_text abort-part.cnc "Save as"
touch_text Cancel "Save as"
expect_gone OK "Save as"
cmp /tmp/before/abort.cnc "$programs/abort.cnc" || desk_fail "the whole program is gone"
expect_words "Incomplete: $((long_lines + 1)) lines in the file"

echo "1 passed, 0 failed"
