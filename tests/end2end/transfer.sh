#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# transfer.sh PANEL LOCATOR
#
# Plugs a stick, copies a program in, covers one, is refused one that doesn't fit, deletes on both
# sides and pulls the stick. Then changes an address on the keypad and finds it in the file.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

programs=$HOME/cnc
stick=/mnt/Storage.stick
mkdir "$stick"
echo "G00 X1" >"$stick/fresh.cnc"
echo "G00 X2" >"$stick/test-coil.cnc"
truncate -s 31457280 "$stick/huge.cnc"

desk_start 800x480 --stick "$stick"
touch_text Files
touch_text Plug
expect_text "The stick is in; all file names are safe."
[ -e /tmp/udiskattach ] || desk_fail "the stick left no marker"
desk_picture transfer-files.png

# From the screen where operators miss a program; the files have the same key.
touch_text Program
expect_text Find
touch_text I/E
expect_text Quit
desk_picture transfer-start.png

touch_text fresh.cnc
touch_text "<<"
desk_until 20 cmp -s "$stick/fresh.cnc" "$programs/fresh.cnc" || desk_fail "nothing was copied in"

# The right panel's; the left one has a program of that name too.
touch_text test-coil.cnc "" 2
touch_text "<<"
expect_text "test-coil.cnc existed in Hmi,  do you want to cover it?"
desk_picture transfer-cover.png
touch_text Yes
desk_until 20 cmp -s "$stick/test-coil.cnc" "$programs/test-coil.cnc" || desk_fail "not covered"

touch_text huge.cnc
touch_text "<<"
expect_text "Not enough Space!"
touch_text OK
expect_text Quit
[ ! -e "$programs/huge.cnc" ] || desk_fail "a program that doesn't fit was copied"

touch_text fresh.cnc
touch_text ">Del"
expect_text "Are you sure to delete fresh.cnc?"
touch_text Yes
desk_until 20 test ! -e "$programs/fresh.cnc" || desk_fail "not deleted on the panel"
[ -e "$stick/fresh.cnc" ] || desk_fail "deleted on the wrong side"

touch_text huge.cnc
touch_text "Del<"
expect_text "Are you sure to delete huge.cnc?"
touch_text Yes
desk_until 20 test ! -e "$stick/huge.cnc" || desk_fail "not deleted on the stick"
desk_picture transfer-manager.png
touch_text Quit
expect_gone Quit

touch_text Files
expect_text Browse
touch_text I/E
expect_text Quit
# A stick that is pulled while its files are shown.
mv /tmp/udiskattach /tmp/pulled
expect_text "The stick is out. Plug it in: its files come by themselves."
desk_picture transfer-pulled.png
mv /tmp/pulled /tmp/udiskattach
expect_gone "The stick is out. Plug it in: its files come by themselves."
touch_text Quit
expect_gone Quit
touch_text Pull
expect_text "The stick is out."
[ ! -e /tmp/udiskattach ] || desk_fail "the stick left its marker behind"
[ ! -e /mnt/Storage/test-coil.cnc ] || desk_fail "the stick is still there"

touch_text Connections
touch_text "Edit the addresses"
expect_text OK "Edit the addresses"
touch_named ComboLineEdit
touch_named key_clear
type_keys 10.0.0.7
desk_picture transfer-address.png
touch_named key_ok
expect_text 10.0.0.7 "Edit the addresses"
desk_picture transfer-connections.png
touch_text OK "Edit the addresses"
expect_gone OK "Edit the addresses"
desk_until 20 grep -rqs "=10.0.0.7$" "$HOME" --include=connections.ini || desk_fail "not stored"

echo "1 passed, 0 failed"
