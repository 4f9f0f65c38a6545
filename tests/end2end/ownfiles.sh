#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# ownfiles.sh PANEL LOCATOR FILEWATCH
#
# A walk over all screens, with a stick that comes and goes, saves, a download, a removal, copies both
# ways, a restore, the stores of the lists, and a second start after the power went. The thread that
# serves the screen may call for no program, no stick, no PLC and none of the panel's own files, but for
# the library's own calls.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

log=/tmp/calls
programs=$HOME/cnc
own=$HOME/hmi
plc=$HOME/plc
stick=/mnt/Storage.stick
export FILARIX_WATCHED=$programs:$own:$plc:/mnt:/tmp/udiskattach FILARIX_WATCH_LOG=$log
desk_preload=:$desk_filewatch

# nothing_called STEP: what was called for up to here.
nothing_called() {
    [ ! -s "$log" ] \
        || desk_fail "files called for by the thread of the screen, $1: $(sort "$log" | uniq -c)"
}

open_program() {
    touch_text Open
    touch_text "$1" "Open file"
    touch_text OK "Open file"
    expect_gone OK "Open file"
}

edit_program() {
    open_program test-coil.cnc
    touch_text Ins
    touch_save test-coil.cnc
    touch_text SaveAs
    expect_text test-coil.cnc "Save as"
    touch_named QLineEdit
    touch_named key_clear
    type_keys rotor
    touch_named key_ok
    touch_text OK "Save as"
    # The first touch has the suffix added.
    expect_text rotor.cnc "Save as"
    touch_text OK "Save as"
    expect_gone OK "Save as"
    desk_until 20 test -s "$programs/rotor.cnc" || desk_fail "rotor.cnc is not saved"
    expect_text "rotor.cnc"
    nothing_called "saving"
    touch_text "D/L"
    touch_text Send Download
    desk_until 30 cmp -s "$programs/rotor.cnc" "$plc/rotor.cnc" || desk_fail "nothing arrived"
    nothing_called "downloading"
    touch_text RM
    touch_text coil5.cnc "Remove file"
    touch_text OK "Remove file"
    touch_text Yes
    desk_until 20 test ! -e "$programs/coil5.cnc" || desk_fail "coil5.cnc is not removed"
    expect_text "Success to remove file."
    touch_text Yes
    expect_gone "Success to remove file."
    nothing_called "removing"
}

edit_lists() {
    touch_text Teach
    touch_text Delete
    touch_text Store
    desk_until 20 test -s "$own/taught/program.teach" || desk_fail "the taught program is not stored"
    touch_text "Store as"
    touch_named key_clear
    type_keys taught2
    touch_named key_ok
    desk_until 20 test -s "$own/taught/taught2.teach" || desk_fail "it is not stored as taught2"
    touch_text Load
    touch_text program.teach "Load a taught program"
    touch_text OK "Load a taught program"
    expect_gone OK "Load a taught program"
    desk_until 20 said "program.teach loaded" || desk_fail "the taught program is not loaded"
    touch_text Variables
    # The key stands elsewhere on the screen before.
    expect_text "Machine variables"
    touch_text Store
    desk_until 20 test -s "$own/variables.txt" || desk_fail "the variables are not stored"
    touch_text Connections
    touch_text "Edit the addresses"
    expect_text OK "Edit the addresses"
    touch_named ComboLineEdit
    touch_named key_clear
    type_keys 10.0.0.7
    touch_named key_ok
    expect_text 10.0.0.7 "Edit the addresses"
    touch_text OK "Edit the addresses"
    desk_until 20 grep -qs "=10.0.0.7$" "$own/connections.ini" || desk_fail "no address is stored"
    nothing_called "storing the lists"
}

said() { grep -qF -- "$1" "$desk_map"; }

open_manager() {
    touch_text I/E
    expect_text Quit
}

move_files() {
    touch_text Files
    touch_text Plug
    # The stand-in for the stick brings a name that is not safe.
    touch_text Rename "File names"
    expect_gone Rename "File names"
    expect_text "Files renamed: 1."
    touch_text stator-coil.cnc
    touch_text Check
    desk_until 20 said "stator-coil.cnc: " || desk_fail "stator-coil.cnc is not checked"
    nothing_called "looking at a program"
    echo "G00 X1" >"$stick/fresh.cnc"
    open_manager
    touch_text fresh.cnc
    touch_text "<<"
    desk_until 20 cmp -s "$stick/fresh.cnc" "$programs/fresh.cnc" || desk_fail "not copied in"
    expect_text rotor.cnc
    touch_text rotor.cnc
    touch_text ">>"
    desk_until 20 cmp -s "$stick/rotor.cnc" "$programs/rotor.cnc" || desk_fail "not copied out"
    desk_until 20 said "rotor.cnc" || desk_fail "the manager is gone"
    # What an unmount leaves: the mount point, a folder of the panel's own disk.
    rm /mnt/Storage
    mkdir /mnt/Storage
    touch_text stator-coil.cnc
    touch_text ">>"
    touch_text Quit
    expect_gone Quit
    # The message's cause may have ended by now: then its time stands before the text.
    desk_until 20 said "No stick is in: nothing was copied or deleted." \
        || desk_fail "a folder of the panel's own disk counts as a stick"
    [ ! -e /mnt/Storage/stator-coil.cnc ] || desk_fail "copied onto the panel's own disk"
    rmdir /mnt/Storage
    ln -s "$stick" /mnt/Storage
    nothing_called "moving files"
    touch_text History
    touch_text coil5.cnc History
    touch_text "Bring back" History
    desk_until 20 test -s "$programs/coil5.cnc" || desk_fail "nothing came back"
    touch_text Browse
    touch_text Cancel "Pick a path"
    expect_gone Cancel "Pick a path"
    touch_text Pull
    expect_text "The stick is out."
    nothing_called "bringing back"
    for program in test-coil.cnc rotor.cnc; do
        touch_text Files
        expect_text Browse
        touch_text "$program"
        touch_text Open
        expect_text Find
        expect_text "$program"
    done
    nothing_called "opening from the list"
}

choose_settings() {
    touch_named settingsKey
    touch_named look_dark
    touch_named textsize_125
    touch_named sounds_on
    touch_named language_de
    expect_text Programm
    desk_until 20 grep -qsx language=de "$own/panel.ini" || desk_fail "no language is stored"
    desk_until 20 grep -qsx textsize=125 "$own/panel.ini" || desk_fail "no size of texts is stored"
    desk_until 20 grep -qs "=dark" "$own/panel.ini" || desk_fail "no look is stored"
    desk_until 20 grep -qsx sounds=on "$own/panel.ini" || desk_fail "no sounds are stored"
    touch_named language_en
    expect_text Program
    nothing_called "choosing in the settings"
}

kept_work() { find "$own" -path '*/unsaved/*.kept' -size +0 | grep -q .; }

mkdir -p "$plc" "$own"
# One where panels kept them before, to be copied.
printf '# Taught program\nOth\t1\t\tOth\tM05\n' >"$own/former.teach"
desk_start 800x480 --plc "$plc" --stick "$stick"
expect_text Open
printf "G01 X1\nG01 X2\n" >"$programs/coil5.cnc"
edit_program
edit_lists
move_files
choose_settings

# The power goes before a program is saved.
touch_text Program
touch_text Ins
expect_text "rotor.cnc*"
desk_until 20 kept_work || desk_fail "unsaved work is not kept"
kill -KILL "${desk_pids[-1]}"
wait "${desk_pids[-1]}" || true
desk_run 800x480 --plc "$plc" --stick "$stick"
touch_text "Bring back" "Unsaved work"
expect_text "rotor.cnc*"
touch_save rotor.cnc
nothing_called "bringing unsaved work back"

# A few rounds of whatever looks by itself, and an end in good order.
touch_text Files
touch_text Plug
expect_text "The stick is in; all file names are safe."
sleep 5
touch_text Program
nothing_called "looking"
kill "${desk_pids[-1]}"
desk_until 20 desk_has_ended || desk_fail "the panel does not end"
[ ! -e /tmp/udiskattach ] || desk_fail "the stick left its marker behind"
nothing_called "ending"

# Nor was the watch blind.
FILARIX_WATCH_LOG=/tmp/check LD_PRELOAD=$desk_filewatch cat "$programs/test-coil.cnc" >/dev/null
grep -q "$programs/test-coil.cnc" /tmp/check || desk_fail "the watch on files sees nothing"

echo "1 passed, 0 failed"
