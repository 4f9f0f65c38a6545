#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# reaction.sh PROGRAM FILEWATCH SIZE
#
# How soon after a press the pressed key is painted, on every screen: at rest, while a long program
# loads, while a download waits for its PLC, and while the stick hangs. A machine that does something
# else meanwhile makes single rounds slower, never all of them quicker: the best of three counts.
set -euo pipefail

export FILARIX_HANGING=$HOME/plc:/mnt/Storage FILARIX_HANG_SWITCH=/tmp/hang
mkdir -p "$HOME/plc" "$HOME/cnc"
awk 'BEGIN { for (i = 0; i < 100000; ++i) printf "N%d G01 X%d.5 F100\n", i, i % 90 }' \
    >"$HOME/cnc/long.cnc"
# Without a fault, which would be asked about.
awk 'BEGIN { for (i = 0; i < 300; ++i) printf "N%d G01 X%d.5 F100\n", i, i % 50; print "M30" }' \
    >"$HOME/cnc/short.cnc"

for round in 1 2 3; do
    echo "round $round"
    if LD_PRELOAD=$2 "$1" --size "$3" --plc "$HOME/plc"; then
        echo "1 passed, 0 failed"
        exit 0
    fi
done
exit 1
