#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# unsaved.sh PANEL LOCATOR
#
# The program ends in the middle of the work, by the system or by a power cut: the next start offers
# what was not saved, and Save stores it to the byte.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

size=${FILARIX_UNSAVED_SIZE:-800x480}
program=$HOME/cnc/test-coil.cnc
question="This was not saved when the panel ended. Bring it back?"

# insert_line: an empty one before the first, which nothing stores.
insert_line() {
    touch_text Open
    touch_text test-coil.cnc "Open file"
    touch_text OK "Open file"
    expect_gone OK "Open file"
    # On a small panel behind the bar's first keys.
    until desk_shows Ins "" 2; do
        touch_text More
    done
    touch_text Ins "" 2
    expect_text "test-coil.cnc*"
}

# end_by SIGNAL
end_by() {
    kill "-$1" "${desk_pids[-1]}"
    desk_until 20 desk_has_ended || desk_fail "SIG$1: the program goes on"
    expect_same /tmp/before "$program" "the file after SIG$1"
}

# bring_back_and_save PICTURE
bring_back_and_save() {
    expect_text "$question"
    desk_picture "$1"
    touch_text "Bring back"
    expect_gone "$question"
    expect_text "test-coil.cnc*"
    expect_same /tmp/before "$program" "the file before Save"
    touch_save test-coil.cnc
    expect_same /tmp/wanted "$program" "the file after Save"
}

desk_start "$size"
expect_text Open
cp "$program" /tmp/before
{ echo; cat /tmp/before; } >/tmp/wanted

insert_line
end_by TERM
desk_run "$size"
bring_back_and_save unsaved-term.png

# What is saved is not offered.
cp "$program" /tmp/before
{ echo; cat /tmp/before; } >/tmp/wanted
end_by TERM
desk_run "$size"
expect_text Open
insert_line
# The longest time that an edit may wait for its place beside the programs.
sleep 2
end_by KILL
desk_run "$size"
bring_back_and_save unsaved-kill.png

echo "1 passed, 0 failed"
