#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# monkeys.sh MONKEY ACTIONS [SEED]
#
# Lets monkeys loose on the panel program, one after the other: each makes 10,000 actions at most,
# from the next seed and so on a panel of the next shape, and has to leave the program in order.
# MONKEY is the program filarix-monkey of some build tree; the first that fails ends the row, with its
# seed.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
monkey=$1
left=$2
seed=${3:-1}
most=10000

while [ "$left" -gt 0 ]; do
    actions=$((left < most ? left : most))
    if ! "$here/../support/sandbox.sh" "$monkey" --actions "$actions" --seed "$seed"; then
        echo "monkeys: seed $seed with $actions actions failed" >&2
        exit 1
    fi
    left=$((left - actions))
    seed=$((seed + 1))
done
