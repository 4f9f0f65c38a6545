#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# signals.sh PANEL LOCATOR
#
# The system ends the program while a question is open: nothing is deleted, covered, stored or sent,
# and the program ends by itself.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

programs=$HOME/cnc
plc=$HOME/plc
stick=/mnt/Storage.stick
mkdir "$stick"
echo "G00 X1" >"$stick/fresh.cnc"
echo "G00 X2" >"$stick/test-coil.cnc"

# What an operator can lose.
what_there_is() { find "$programs" "$plc" "$stick" -type f -exec sha256sum {} + | sort; }

# end_under QUESTION SIGNAL: sends the signal once the question stands, and looks what it did.
end_under() {
    local before panel=${desk_pids[-1]}
    expect_text "$1"
    before=$(what_there_is)
    kill "-$2" "$panel"
    desk_until 20 desk_has_ended || desk_fail "SIG$2 under \"$1\": the program goes on"
    wait "$panel" || desk_fail "SIG$2 under \"$1\": the program ended with $?"
    [ "$(what_there_is)" = "$before" ] \
        || desk_fail "SIG$2 under \"$1\": $(diff <(echo "$before") <(what_there_is))"
    [ ! -e /tmp/udiskattach ] || desk_fail "SIG$2 under \"$1\": the stick left its marker behind"
}

again() {
    desk_run 800x480 --stick "$stick"
    # What the operator had not saved waits for the next start.
    if [ -n "$(find "$HOME/hmi/unsaved" -type f 2>/dev/null)" ]; then
        touch_text "Keep for later"
        expect_gone "Keep for later"
    fi
}

to_the_manager() {
    touch_text Files
    touch_text Plug
    expect_text "The stick is in; all file names are safe."
    touch_text I/E
    expect_text Quit
}

desk_start 800x480 --stick "$stick"
for signal in TERM INT HUP; do
    to_the_manager
    touch_text fresh.cnc
    touch_text "Del<"
    end_under "Are you sure to delete fresh.cnc?" "$signal"
    again
done

to_the_manager
touch_text endurance-run.cnc
touch_text ">Del"
end_under "Are you sure to delete endurance-run.cnc?" TERM

again
to_the_manager
touch_text test-coil.cnc "" 2
touch_text "<<"
end_under "test-coil.cnc existed in Hmi,  do you want to cover it?" TERM

again
touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
touch_text Ins
touch_text New
end_under Discard TERM

again
touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
touch_text D/L
end_under Send TERM

echo "1 passed, 0 failed"
