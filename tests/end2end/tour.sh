#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# tour.sh PANEL LOCATOR
#
# A tour leaves the home as it was, byte for byte: walked twice, with a taught program of the operator's
# own in it, and ended by the system in the middle. What it worked in goes with it.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

export QT_QPA_PLATFORM=offscreen
pictures=/tmp/pictures
mkdir "$HOME/hmi"
# A row of the operator's own, as a panel stores it.
printf 'own row\n1;2;3\n' >"$HOME/hmi/program.teach"

# Every name below the home, with what stands there.
listing() {
    find "$HOME" -printf '%P %y %m %s %T@\n' | sort
    find "$HOME" -type f -exec sha256sum {} + | sort
}
left_behind() { find /tmp -maxdepth 1 -name 'filarix-panel-*'; }

before=$(listing)
for round in 1 2; do
    "$desk_panel" --tour "$pictures" --size 480x272 >/tmp/panel.log 2>&1 \
        || desk_fail "tour $round ended with $?"
    [ "$(listing)" = "$before" ] || desk_fail "tour $round: $(diff <(echo "$before") <(listing))"
    [ -z "$(left_behind)" ] || desk_fail "tour $round left $(left_behind)"
done
[ "$(find "$pictures" -name '*.png' | wc -l)" -ge 20 ] || desk_fail "the tours left no pictures"

rm -r "$pictures"
for signal in TERM INT; do
    "$desk_panel" --tour "$pictures" --size 480x272 >/tmp/panel.log 2>&1 &
    desk_pids+=($!)
    desk_until 60 compgen -G "$pictures/*-program-changed.png" >/dev/null \
        || desk_fail "the tour makes no pictures"
    [ -n "$(left_behind)" ] || desk_fail "the tour has no home of its own"
    kill "-$signal" "${desk_pids[-1]}"
    desk_until 20 desk_has_ended || desk_fail "the tour goes on after SIG$signal"
    [ "$(listing)" = "$before" ] || desk_fail "SIG$signal: $(diff <(echo "$before") <(listing))"
    [ -z "$(left_behind)" ] || desk_fail "SIG$signal left $(left_behind)"
    rm -r "$pictures"
done

echo "1 passed, 0 failed"
