#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# qws.sh LIBRARIES COMMAND [ARG ...]
#
# Runs a program that was built against Qt for Embedded Linux 4.8 in the tests' sandbox, as the server of
# a display that VNC shows: nobody looks, and the port is the sandbox's own. FILARIX_SANDBOX_SCREEN,
# for example 480x272, is its size. LIBRARIES is the toolkit's folder of libraries: they need one
# another, and no program leads to those that it does not link itself. The command is the program, or
# the emulator with it.
set -euo pipefail

if [ -z "${FILARIX_SANDBOX:-}" ]; then
    exec "$(dirname "$(readlink -f "$0")")/../support/sandbox.sh" "$(readlink -f "$0")" "$@"
fi

export LD_LIBRARY_PATH=$1
shift

# 96 dots an inch, as everywhere in the tests: the toolkit's own guess is 72. The size without another
# wish is that of Qt 5's offscreen screen.
size=${FILARIX_SANDBOX_SCREEN:-800x800}
in_millimetres() { echo $((($1 * 254 + 480) / 960)); }
QWS_DISPLAY=VNC:size=$size:depth=32
QWS_DISPLAY+=:mmWidth=$(in_millimetres "${size%x*}"):mmHeight=$(in_millimetres "${size#*x}"):0
export QWS_DISPLAY

# This toolkit knows no fonts of the system, one folder holds them all; each start reads each of them.
export QT_QWS_FONTDIR=/run/fonts
mkdir "$QT_QWS_FONTDIR"
ln -s /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold,Mono,Mono-Bold}.ttf \
    /usr/share/fonts/truetype/liberation/Liberation{Sans,Mono}-{Regular,Bold}.ttf "$QT_QWS_FONTDIR"
exec "$@" -qws
