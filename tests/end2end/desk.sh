# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Sourced by the end-to-end tests: an X server with a window manager, the panel program on it, and
# clicks and keys that the X server sends. Runs inside the sandbox.
#
# The locator library, loaded into the unchanged program, tells where the widgets are; that is all
# it does.

set -euo pipefail

desk_panel=$1
desk_locator=$2
# Stands before the system's calls on files, for the scripts that ask for it; see filewatch.cpp.
# shellcheck disable=SC2034
desk_filewatch=${3:-}
desk_preload=
desk_map=/tmp/widgets
desk_pids=()
# How far the panel turns its picture, and the size of that picture before it is turned.
desk_turn=0
desk_size=
# How often the operator has touched the screen so far.
desk_touches=0
# The X server's number of the window that shows it.
desk_glass=

desk_fail() {
    echo "FAILED: $*" >&2
    if [ -f "$desk_map" ]; then
        echo "-- what stood on the screen (window, class, name, text, enabled, x, y):" >&2
        cat "$desk_map" >&2
    fi
    [ ! -f /tmp/panel.log ] || tail -n 30 /tmp/panel.log >&2
    exit 1
}

desk_stop() {
    local pid
    for pid in "${desk_pids[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
}
trap desk_stop EXIT

# desk_until SECONDS COMMAND...: waits until the command succeeds.
desk_until() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.05
    done
}

# desk_start WIDTHxHEIGHT [PANEL OPTION ...]
desk_start() {
    desk_lay_out "$@"
    desk_open_display
    desk_open_window_manager
    desk_run "$@"
}

# What the options mean for a click.
desk_lay_out() {
    local i
    desk_size=$1
    for ((i = 2; i < $#; ++i)); do
        [ "${!i}" != --rotate ] || desk_turn=${*:i+1:1}
    done
}

desk_open_display() {
    local screen=$desk_size
    # A turned window has a frame, and its place is asked for: it has to be on the screen as a whole.
    [ "$desk_turn" = 0 ] || screen=1000x1000
    export DISPLAY=:99 QT_QPA_PLATFORM=xcb
    Xvfb :99 -screen 0 "${screen}x24" -nolisten tcp -noreset >/tmp/xvfb.log 2>&1 &
    desk_pids+=($!)
    desk_until 20 xdpyinfo >/dev/null 2>&1 || desk_fail "no X server: $(cat /tmp/xvfb.log)"
}

desk_open_window_manager() {
    openbox --sm-disable >/tmp/openbox.log 2>&1 &
    desk_pids+=($!)
    desk_until 20 desk_has_window_manager || desk_fail "no window manager: $(cat /tmp/openbox.log)"
}

# desk_run WIDTHxHEIGHT [PANEL OPTION ...]: the panel on the display that is there.
desk_run() {
    local size=$1
    shift
    rm -f "$desk_map"
    FILARIX_LOCATOR=$desk_map LD_PRELOAD=$desk_locator$desk_preload \
        "$desk_panel" --size "$size" "$@" >/tmp/panel.log 2>&1 &
    desk_pids+=($!)
    desk_until 30 test -s "$desk_map" || desk_fail "the panel shows nothing"
    desk_until 30 desk_find_glass || desk_fail "the panel has no window"
}

desk_has_window_manager() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# desk_place TEXT [WINDOW TITLE [N]]: "x y" of the first, or Nth, enabled widget or item with this
# text.
desk_place() {
    [ -f "$desk_map" ] || return 1
    awk -F '\t' -v text="$1" -v title="${2-}" -v nth="${3:-1}" '
        $4 == text && $5 == 1 && (title == "" || index($1, title)) && --nth == 0 {
            print $6, $7; found = 1; exit
        }
        END { exit !found }' "$desk_map"
}

# desk_named NAME [N]: "x y" of the first, or Nth, enabled widget with this class or object name.
desk_named() {
    [ -f "$desk_map" ] || return 1
    awk -F '\t' -v name="$1" -v nth="${2:-1}" '
        ($2 == name || $3 == name) && $5 == 1 && --nth == 0 { print $6, $7; found = 1; exit }
        END { exit !found }' "$desk_map"
}

desk_find_glass() {
    desk_glass=$(xdotool search --onlyvisible --name 'Winding panel' 2>/dev/null | tail -n 1)
    [ -n "$desk_glass" ]
}

desk_has_ended() { ! kill -0 "${desk_pids[-1]}" 2>/dev/null; }

# desk_click_at X Y: on the screen, or, when the picture is turned, on what the operator sees there.
desk_click_at() {
    local x=$1 y=$2 right bottom
    desk_touches=$((desk_touches + 1))
    right=$((${desk_size%x*} - 1 - x))
    bottom=$((${desk_size#*x} - 1 - y))
    case "$desk_turn" in
        0) xdotool mousemove "$x" "$y" click 1 ;;
        90) xdotool mousemove --window "$desk_glass" "$bottom" "$x" click 1 ;;
        180) xdotool mousemove --window "$desk_glass" "$right" "$bottom" click 1 ;;
        270) xdotool mousemove --window "$desk_glass" "$y" "$right" click 1 ;;
    esac
}

# desk_settled desk_place|desk_named ARGUMENT...: the place, once two maps have it in the same place: a
# window that has just come up, or a row that opens, still moves, and a busy program is late with its
# maps.
desk_settled() {
    local place before=none map
    while place=$("$@") && [ "$place" != "$before" ]; do
        before=$place
        map=$(desk_map_time)
        sleep 0.1
        desk_until 20 desk_has_map_since "$map" || break
    done
    echo "$place"
}

desk_map_time() { stat -c %y "$desk_map"; }
desk_has_map_since() { [ "$(desk_map_time)" != "$1" ]; }

# touch_text TEXT [WINDOW TITLE [N]]: waits for the widget and clicks on its middle.
touch_text() {
    local place
    desk_until 20 desk_place "$@" >/dev/null || desk_fail "nothing reads \"$1\" ${2:+in \"$2\"}"
    place=$(desk_settled desk_place "$@")
    [ -n "$place" ] || desk_fail "\"$1\" went away"
    # shellcheck disable=SC2086
    desk_click_at $place
}

# touch_named NAME [N]: the same by class or object name.
touch_named() {
    local place
    desk_until 20 desk_named "$@" >/dev/null || desk_fail "nothing is named \"$1\" ${2-}"
    place=$(desk_settled desk_named "$@")
    [ -n "$place" ] || desk_fail "\"$1\" went away"
    # shellcheck disable=SC2086
    desk_click_at $place
}

# touch_save TITLE: stores the program that the title names.
touch_save() {
    touch_text Save
    expect_gone "$1*"
}

# type_keys TEXT: on the keypad that is open, key by key.
type_keys() {
    local i key
    for ((i = 0; i < ${#1}; ++i)); do
        key=${1:i:1}
        [ "$key" != " " ] || key=space
        touch_named "key_$key"
    done
}

desk_shows() { desk_place "$@" >/dev/null; }
desk_hides() { ! desk_place "$@" >/dev/null; }

# expect_text TEXT [WINDOW TITLE] / expect_gone TEXT [WINDOW TITLE]
expect_text() { desk_until 20 desk_shows "$@" || desk_fail "\"$1\" never showed ${2:+in \"$2\"}"; }
expect_gone() { desk_until 20 desk_hides "$@" || desk_fail "\"$1\" stays ${2:+in \"$2\"}"; }

# expect_same FILE FILE WHAT
expect_same() {
    cmp "$1" "$2" || desk_fail "$3: $(diff "$1" "$2" | head -n 8)"
}

# desk_picture FILE: a picture of the whole screen, kept when FILARIX_PICTURES names a folder.
desk_picture() {
    [ -z "${FILARIX_PICTURES:-}" ] || import -window root "$FILARIX_PICTURES/$1"
}
