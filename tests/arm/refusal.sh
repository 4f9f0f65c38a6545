#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# emulate.sh runs nothing but in a process namespace where nobody else is. A stand-in takes the
# emulator's place, so that a mistake here would reach nobody.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
emulate=$here/emulate.sh
sandbox=$here/../support/sandbox.sh
export PATH=$here/standin:$PATH
failures=0

# check STATUS WORD WHAT COMMAND ...: the command ends with STATUS and prints WORD.
check() {
    local expected=$1 word=$2 what=$3 status=0 output
    shift 3
    output=$("$@" 2>&1) || status=$?
    if [ "$status" = "$expected" ] && [[ $output == *"$word"* ]]; then
        echo "ok: $what"
    else
        echo "FAILED: $what: status $status, \"$output\""
        failures=$((failures + 1))
    fi
}

check 0 "emulated: -L /sysroot /program --option" "in the sandbox it makes" \
    "$emulate" /sysroot /program --option
check 0 "emulated: -L /sysroot /program" "in a sandbox of its own" \
    "$sandbox" "$emulate" /sysroot /program
check 97 refused "among this machine's processes" \
    env FILARIX_SANDBOX=1 "$emulate" /sysroot /program
# shellcheck disable=SC2016 # that shell's own
check 97 refused "beside another process of the sandbox" \
    "$sandbox" /usr/bin/env bash -c '"$0" /sysroot /program; exit $?' "$emulate"
check 97 refused "in a namespace that still shows this machine's processes" \
    env FILARIX_SANDBOX=1 bwrap --dev-bind / / --unshare-pid "$emulate" /sysroot /program
exit "$((failures > 0))"
