#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# secondpanel.sh PANEL LOCATOR
#
# A second panel on the same home says so and does not start; the first one goes on. One that was killed
# keeps nobody out, and neither does one on another home.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

# second OPTION ...: its exit status is in $status.
second() {
    status=0
    QT_QPA_PLATFORM=${platform:-offscreen} "$desk_panel" "$@" >/tmp/second.log 2>&1 || status=$?
}
refused() {
    [ "$status" = 3 ] || desk_fail "the second panel ended with $status: $(cat /tmp/second.log)"
    grep -q 'Another panel works on' /tmp/second.log || desk_fail "it did not say why"
}

desk_start 800x480
first=${desk_pids[-1]}
expect_text Open
# What the first one writes at its start is there: the samples, their versions, the connections.
has_settled() {
    [ "$(find "$HOME/hmi/history" -name '*.version' | wc -l)" = 3 ] \
        && [ -s "$HOME/hmi/connections.ini" ] \
        && [ -z "$(find "$HOME" -name '.filarix-*')" ]
}
desk_until 20 has_settled || desk_fail "the first panel does not come to rest"
before=$(find "$HOME" -type f -exec sha256sum {} + | sort)
second
refused
second --programs "$HOME/cnc"
refused
# By another way to the same folder.
ln -s "$HOME" /tmp/other-way
second --programs /tmp/other-way
refused
after=$(find "$HOME" -type f -exec sha256sum {} + | sort)
[ "$after" = "$before" ] \
    || desk_fail "the second panel changed something: $(diff <(echo "$before") <(echo "$after"))"

# On the display it says so in a box, which a touch closes.
FILARIX_LOCATOR=/tmp/second-widgets LD_PRELOAD=$desk_locator "$desk_panel" >/tmp/second.log 2>&1 &
box=$!
desk_map=/tmp/second-widgets
touch_text OK
desk_map=/tmp/widgets
status=0
wait "$box" || status=$?
refused

kill -0 "$first" || desk_fail "the first panel is gone"
touch_text Teach
expect_text program.teach

second --programs /tmp/another --tour /tmp/pictures
[ "$status" = 2 ] || desk_fail "a tour took a program directory"
second --tour /tmp/pictures --size 480x272
[ "$status" = 0 ] || desk_fail "a tour beside the panel ended with $status: $(cat /tmp/second.log)"

kill -KILL "$first"
wait "$first" || true
desk_run 800x480
touch_text Teach
expect_text program.teach

echo "1 passed, 0 failed"
