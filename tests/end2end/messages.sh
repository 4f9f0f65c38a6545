#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# messages.sh PANEL LOCATOR
#
# A download fails because the PLC has gone. What the panel says about it stands while the operator looks
# at the other screens, over none of which it lies, and goes when the PLC is back. The next download
# ends with a word of success, and the list has both with their times.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

plc=$HOME/plc
failure="The PLC does not answer: there is no folder $plc."

# listed TEXT: whether the list of messages has that text.
listed() { desk_shows "$1" Messages; }

# times: how many times of day the list shows.
times() {
    awk -F '\t' 'index($1, "Messages") && $4 ~ /^[0-9][0-9]:[0-9][0-9]:[0-9][0-9]$/ { ++n }
        END { print n + 0 }' "$desk_map"
}
has_times() { [ "$(times)" -ge "$1" ]; }

download() {
    touch_text "D/L"
    touch_text Send Download
    expect_gone Send Download
}

mkdir -p "$plc"
desk_start 800x480 --plc "$plc"
touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
expect_text test-coil.cnc
expect_text "PLC ready"

mv "$plc" "$plc.away"
expect_text "PLC away"
download
expect_text "$failure"
desk_picture messages-failed.png

for screen in Teach Variables Connections Files Program; do
    touch_text "$screen"
    expect_text "$failure"
    desk_picture "messages-$screen.png"
done

touch_named messageText
desk_until 20 listed "$failure" || desk_fail "the list has no failure"
touch_text Close Messages
expect_gone Close Messages

mv "$plc.away" "$plc"
expect_text "PLC ready"
# The row keeps the last message with its time, but no longer says it about now.
expect_gone "$failure"
desk_picture messages-back.png

download
desk_until 30 cmp -s "$HOME/cnc/test-coil.cnc" "$plc/test-coil.cnc" || desk_fail "nothing arrived"
success="test-coil.cnc is in the PLC: $(stat -c %s "$plc/test-coil.cnc") bytes, compared."
expect_text "$success"

touch_named messageText
desk_until 20 listed "$success" || desk_fail "the list has no success"
desk_until 20 listed "$failure" || desk_fail "the list has forgotten the failure"
desk_until 20 has_times 2 || desk_fail "the list shows no times"
desk_picture messages-list.png
touch_text Close Messages
expect_gone Close Messages

echo "1 passed, 0 failed"
