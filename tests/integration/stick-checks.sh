# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What the two tests of filarix-stick share.

MARKER=/tmp/udiskattach
STICK=/mnt/Storage
script=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../../packaging/integration/filarix-stick
export FILARIX_STICK_CONF=/tmp/stick.conf

exec 3>&2 # what the script says may be caught, what we say is not
fail() {
    echo "FAIL: $*" >&3
    exit 1
}

# settings LINE ...: the configuration from now on.
settings() {
    printf '%s\n' "$@" >"$FILARIX_STICK_CONF"
}

# run STATUS ARG ...: the script, which must end with STATUS.
run() {
    local expected=$1 status=0
    shift
    "$script" "$@" || status=$?
    [ "$status" -eq "$expected" ] || fail "filarix-stick $* ended with $status, not $expected"
}

is_marked() { [ -f "$MARKER" ] && [ ! -L "$MARKER" ] && [ "$(cat "$MARKER")" = "$1" ]; }
is_unmarked() { [ ! -e "$MARKER" ] && [ ! -L "$MARKER" ]; }
is_in() { [ -f "$STICK/part.cnc" ]; }

expect() { "$@" || fail "not so: $*"; }
expect_not() { ! "$@" || fail "so, but should not: $*"; }

# fill FOLDER: what a stick may hold, with names that do not matter among them.
fill() {
    mkdir -p "$1/a folder"
    echo "G01 X1" >"$1/part.cnc"
    echo x >"$1/.hidden file;"
    ln -s part.cnc "$1/a link"
}
