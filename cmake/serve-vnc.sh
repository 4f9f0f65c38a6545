#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# serve-vnc.sh [--others] [--password-file FILE] WIDTHxHEIGHT COMMAND [ARGUMENT ...]
#
# Runs the command on a display of its own, which it serves to VNC viewers on this machine. With
# --others viewers on any machine may come, who then have to know a password: that of FILE, made by
# tigervncpasswd, or else one that is asked for on the terminal. Ends with the command, and ends the
# command with it.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")

refuse() {
    echo "$*" >&2
    exit 2
}

others=no
password_file=
while [[ "${1:-}" = --* ]]; do
    case "$1" in
        --others) others=yes ;;
        --password-file)
            password_file=${2:-}
            if ! [ -r "$password_file" ] || ! [ -s "$password_file" ]; then
                refuse "--vnc-password-file: \"$password_file\" cannot be read, or is empty."
            fi
            shift
            ;;
    esac
    shift
done
size=$1
shift

"$here/ensure-packages.sh" tigervnc-standalone-server tigervnc-tools \
    || refuse "There is no display here, and no VNC server can be installed to make one." \
        "Start the panel where DISPLAY or WAYLAND_DISPLAY is set, or take pictures: ./run --tour DIR"

scratch=$(mktemp -d)
server=
command=
end() {
    [ -z "$command" ] || kill -TERM -- "-$command" 2>/dev/null || true
    [ -z "$command" ] || wait "$command" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    rm -rf "$scratch"
}
trap end EXIT

ask_for_password() {
    local first second
    [ -t 0 ] || refuse "--vnc-others needs a password: --vnc-password-file FILE, made by" \
        "tigervncpasswd FILE, or a terminal to ask on. Nothing is served without one."
    read -rsp "Password for VNC viewers (6 to 8 characters): " first && echo
    read -rsp "Once more: " second && echo
    [ "$first" = "$second" ] || refuse "The two passwords differ. Nothing is served."
    case ${#first} in 6 | 7 | 8) ;; *) refuse "A VNC password has 6 to 8 characters." ;; esac
    password_file=$scratch/password
    (umask 077 && tigervncpasswd -f <<<"$first" >"$password_file")
}

if [ "$others" = yes ]; then
    [ -n "$password_file" ] || ask_for_password
    access=(-SecurityTypes "TLSVnc,VncAuth" -PasswordFile "$password_file")
else
    access=(-localhost -SecurityTypes None)
fi

answers() { (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null; }
port=5900
while answers "$port"; do
    port=$((port + 1))
    [ "$port" -lt 6000 ] || refuse "Every port from 5900 to 5999 is taken."
done

# In sessions of their own: Ctrl+C comes here, the panel is told, and its display stays until it has
# ended.
setsid Xtigervnc -displayfd 3 -geometry "$size" -depth 24 -nolisten tcp -rfbport "$port" \
    -desktop filarix-panel "${access[@]}" 3>"$scratch/display" >"$scratch/log" 2>&1 &
server=$!
for ((i = 0; i < 400; ++i)); do
    if [ -s "$scratch/display" ] && answers "$port"; then break; fi
    kill -0 "$server" 2>/dev/null || break
    sleep 0.05
done
if ! [ -s "$scratch/display" ] || ! answers "$port"; then
    cat "$scratch/log" >&2
    refuse "The VNC server does not start."
fi

if [ "$others" = yes ]; then
    echo "The panel is served to VNC viewers on any machine that know the password: port $port."
else
    echo "The panel is served to VNC viewers on this machine alone: port $port."
    echo "From another one: ssh -L $port:localhost:$port $(hostname), then a viewer to localhost:$port."
fi
echo "Ctrl+C ends it."

stop() { [ -z "$command" ] || kill -TERM -- "-$command" 2>/dev/null || true; }
trap stop INT TERM HUP
DISPLAY=:$(cat "$scratch/display") QT_QPA_PLATFORM=xcb setsid "$@" &
command=$!
status=0
# A signal ends the wait, not what is waited for.
while kill -0 "$command" 2>/dev/null; do
    status=0
    wait "$command" || status=$?
done
command=
(exit "$status")
