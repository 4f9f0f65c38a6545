#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# reaction.sh PROGRAM FILEWATCH SIZE LOOK
#
# How soon after a touch its answer is painted. Keys on every screen: at rest, while a long program
# loads, while a download waits for its PLC, and while the stick hangs. With a long program open the keys of
# all keypads and of the program picker, and rows, lines and pages. Each kind keeps the limits by itself.
set -euo pipefail

export FILARIX_HANGING=$HOME/plc:/mnt/Storage FILARIX_HANG_SWITCH=/tmp/hang
mkdir -p "$HOME/plc" "$HOME/cnc"
awk 'BEGIN { for (i = 0; i < 100000; ++i) printf "N%d G01 X%d.5 F100\n", i, i % 90 }' \
    >"$HOME/cnc/long.cnc"
# Without a fault, which would be asked about.
awk 'BEGIN { for (i = 0; i < 300; ++i) printf "N%d G01 X%d.5 F100\n", i, i % 50; print "M30" }' \
    >"$HOME/cnc/short.cnc"

# More of them than the list of the picker shows at a time.
for number in {1..40}; do
    cp "$HOME/cnc/short.cnc" "$HOME/cnc/short-$number.cnc"
done

LD_PRELOAD=$2 "$1" --size "$3" --look "$4" --plc "$HOME/plc"
echo "1 passed, 0 failed"
