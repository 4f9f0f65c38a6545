#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# vnc.sh
#
# Who may work a panel that is served to VNC viewers: this machine alone, and others only with a
# password. The others are in a network namespace of their own, with a cable between the two. Needs
# root or user namespaces; fails without.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
serve=$here/../../cmake/serve-vnc.sh

if [ -z "${FILARIX_OWN_NETWORK:-}" ]; then
    "$here/../../cmake/ensure-packages.sh" tigervnc-standalone-server tigervnc-tools iproute2 \
        util-linux x11-utils
    exec unshare --map-root-user --net env FILARIX_OWN_NETWORK=1 "$0"
fi

ours=10.77.0.1
scratch=$(mktemp -d)
pids=()
end() {
    local pid
    for pid in "${pids[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
    wait
    rm -rf "$scratch"
}
trap end EXIT

fail() {
    echo "vnc: $*" >&2
    [ ! -f "$scratch/log" ] || cat "$scratch/log" >&2
    exit 1
}
until_s() {
    local last=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$last" ] || return 1
        sleep 0.05
    done
}

unshare --net sleep 600 &
others=$!
pids+=("$others")
from_others() { nsenter --target "$others" --net "$@"; }
is_apart() { [ "$(readlink "/proc/$others/ns/net")" != "$(readlink /proc/$$/ns/net)" ]; }
until_s 10 is_apart || fail "no second network namespace"
ip link set lo up
ip link add cable type veth peer name plug
ip link set plug netns "$others"
ip address add "$ours/24" dev cable
ip link set cable up
from_others ip address add 10.77.0.2/24 dev plug
from_others ip link set plug up
# Not by a pipe: a reader that has seen enough breaks it, and that counts as a failure.
[[ $(ip address show dev cable) == *"$ours"* ]] || fail "no cable"

# banner ADDRESS PORT: the first bytes that a VNC server sends.
# shellcheck disable=SC2016
banner() { timeout 3 bash -c 'exec 3<>"/dev/tcp/$0/$1" && head -c 4 <&3' "$1" "$2" 2>/dev/null; }
banner_for_others() {
    # shellcheck disable=SC2016
    from_others timeout 3 bash -c 'exec 3<>"/dev/tcp/$0/$1" && head -c 4 <&3' "$1" "$2" 2>/dev/null
}
# The cable is a way to here: what listens to all is reached through it.
reached_by_others() { [ "$(banner_for_others "$ours" "$1")" = "RFB " ]; }
listening() { ss -Hltn | awk '{ print $4 }' | grep -E ':59[0-9][0-9]$' || true; }
is_served() { grep -q 'port 59' "$scratch/log"; }
has_ended() { ! kill -0 "$1" 2>/dev/null; }

# serve SERVER-OPTION ...: what is served tells its size and lasts; $server is its process.
serve() {
    : >"$scratch/log"
    # shellcheck disable=SC2016
    "$serve" "$@" 480x272 sh -c 'xdpyinfo | grep dimensions >"$0"; exec sleep 600' "$scratch/size" \
        >"$scratch/log" 2>&1 </dev/null &
    server=$!
    pids+=("$server")
}
stop() {
    kill -TERM "$server"
    until_s 20 has_ended "$server" || fail "it goes on after SIGTERM"
    [ -z "$(listening)" ] || fail "left behind: $(listening)"
}

echo "this machine alone"
serve
until_s 30 is_served || fail "nothing is served"
[ "$(banner 127.0.0.1 5900)" = "RFB " ] || fail "no answer on the loopback"
! reached_by_others 5900 || fail "another machine is let in"
listening | grep -vE '^(127\.0\.0\.1|\[::1\]):' && fail "it listens to others: $(listening)"
until_s 20 grep -q 480x272 "$scratch/size" || fail "the display has another size"
# A second one beside it has a port of its own.
first=$server
serve
until_s 30 is_served || fail "no second one is served"
[ "$(banner 127.0.0.1 5901)" = "RFB " ] || fail "the second one has no port"
kill -TERM "$server" "$first"
until_s 20 has_ended "$server" || fail "the second one goes on"
until_s 20 has_ended "$first" || fail "the first one goes on"

echo "others without a password"
serve --others
until_s 20 has_ended "$server" || fail "it serves others without a password"
! wait "$server" || fail "it calls that a success"
[ -z "$(listening)" ] || fail "something listens: $(listening)"
grep -q 'needs a password' "$scratch/log" || fail "it does not say why"
serve --others --password-file "$scratch/missing"
until_s 20 has_ended "$server" || fail "it serves others without the file"
[ -z "$(listening)" ] || fail "something listens: $(listening)"

echo "others with a password"
tigervncpasswd -f <<<"coil-77" >"$scratch/password"
serve --others --password-file "$scratch/password"
until_s 30 is_served || fail "nothing is served to others"
reached_by_others 5900 || fail "others do not reach it"
# The kinds of security that it offers, a byte each behind their number: none (1) is not among them.
# shellcheck disable=SC2016
kinds=$(from_others timeout 3 bash -c 'exec 3<>"/dev/tcp/$0/5900" && head -c 12 <&3 >/dev/null \
    && printf "RFB 003.008\n" >&3 && head -c 3 <&3 | od -An -tu1' "$ours")
[ -n "$kinds" ] || fail "it offers no security"
[[ " $kinds " != *" 1 "* ]] || fail "it lets others in without the password:$kinds"
stop

echo "vnc: passed"
