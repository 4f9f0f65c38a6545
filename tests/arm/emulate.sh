#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# emulate.sh SYSROOT PROGRAM [ARG ...]
#
# Runs a program that was built for 32-bit ARM, by qemu-user in the tests' sandbox.
#
# The sandbox has a process namespace of its own, and without one nothing is run: an emulated program
# can hold the process id -1 for a child's, and what it then sends to "the child" reaches every
# process that it can see. So the last thing before the emulator is to look who is there.
set -euo pipefail

if [ -z "${FILARIX_SANDBOX:-}" ]; then
    exec "$(dirname "$(readlink -f "$0")")/../support/sandbox.sh" "$(readlink -f "$0")" "$@"
fi

# A /proc of another namespace knows us by another number. The first process is the sandbox's own.
read -r self _ </proc/self/stat
for entry in /proc/[0-9]*; do
    process=${entry#/proc/}
    if [ "$self" != $$ ] || { [ "$process" != 1 ] && [ "$process" != $$ ]; }; then
        echo "emulate: refused, there are other processes here; it takes a namespace of its own" >&2
        exit 97
    fi
done

sysroot=$1
shift
FONTCONFIG_FILE=$(dirname "$(readlink -f "$0")")/fonts.conf
export FONTCONFIG_FILE
# QtTest takes a function of five minutes for a hang; here ctest's limit holds.
export QTEST_FUNCTION_TIMEOUT=3600000
export QT_PLUGIN_PATH=$sysroot/usr/lib/arm-linux-gnueabihf/qt5/plugins
exec qemu-arm -L "$sysroot" "$@"
