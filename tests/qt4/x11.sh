#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# x11.sh LIBRARIES PROGRAM [ARG ...]
#
# Runs a program that was built against Qt 4.8 for X11 in the tests' sandbox, on an X server of its own.
# FILARIX_SANDBOX_SCREEN, for example 480x272, is the size of its screen. LIBRARIES is the toolkit's
# folder of libraries.
set -euo pipefail

if [ -z "${FILARIX_SANDBOX:-}" ]; then
    exec "$(dirname "$(readlink -f "$0")")/../support/sandbox.sh" "$(readlink -f "$0")" "$@"
fi

export LD_LIBRARY_PATH=$1
shift

# The server says its number once it serves, and ends with the sandbox. The size without another wish
# is that of Qt 5's offscreen screen.
exec {server}< <(exec Xvfb -displayfd 1 -screen 0 "${FILARIX_SANDBOX_SCREEN:-800x800}x24" -dpi 96 \
    -nolisten tcp -noreset 2>/run/xvfb.log)
if ! read -r number <&"$server"; then
    echo "x11: no X server: $(cat /run/xvfb.log)" >&2
    exit 96
fi
export DISPLAY=:$number
exec "$@" {server}<&-
