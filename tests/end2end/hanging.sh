#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# hanging.sh PANEL LOCATOR FILEWATCH
#
# File systems that hang. The panel starts while the PLC and the stick do, and every screen comes up at
# a touch; then its own storage hangs, too, at a start and later, and every screen still does. When all
# is well again, so is the panel. Nor does it keep an operator from closing the panel.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

# What an operator takes for an answer at once, on a machine that is busy with other tests.
answer_s=3
hang=/tmp/hang
export FILARIX_HANG_SWITCH=$hang FILARIX_HANGING=$HOME/plc:/mnt/Storage
desk_preload=:$desk_filewatch

# come_up TAB SCREEN WHEN: a touch of the tab brings its screen.
come_up() {
    touch_text "$1"
    desk_until "$answer_s" desk_named "$2" >/dev/null \
        || desk_fail "the screen $1 does not come up ($3)"
}

walk() {
    come_up Teach TeachScreen "$1"
    come_up Variables VariablesScreen "$1"
    come_up Connections ConnectionsScreen "$1"
    come_up Files FilesScreen "$1"
    come_up Program ProgramScreen "$1"
}

# start WHEN [PANEL OPTION ...]: the panel shows itself, whatever hangs.
start() {
    local begin=$SECONDS when=$1
    shift
    desk_run 800x480 --plc "$HOME/plc" "$@"
    [ $((SECONDS - begin)) -le "$answer_s" ] || desk_fail "the panel starts late ($when)"
}

end() {
    kill "${desk_pids[-1]}"
    desk_until 20 desk_has_ended || desk_fail "the panel does not end ($1)"
}

desk_lay_out 800x480
desk_open_display
desk_open_window_manager
touch "$hang"
: >/tmp/udiskattach
start "PLC and stick hang"
walk "PLC and stick hang"
rm "$hang"
expect_text "New program"

touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
expect_text test-coil.cnc

# The program knows the folders by their names: it is the switch that tells when they hang.
end "all is well"
export FILARIX_HANGING=$HOME/plc:/mnt/Storage:$HOME/cnc:$HOME/hmi
touch "$hang"
start "everything hangs"
walk "everything hangs"
rm "$hang"
walk "everything is back"
expect_gone "The panel's storage does not answer. The programs come once it does."
touch_text Teach
expect_text "MoveJ(↓)"
touch_text Connections
expect_text "Edit the addresses"

touch "$hang"
walk "everything hangs later"
rm "$hang"
walk "everything is back again"
end "everything was back"

# What cannot be saved is told, and the operator decides. No question is answered by waiting.
close_panel() {
    # Just after a dialog no window may be the active one.
    desk_until 20 xdotool getactivewindow >/dev/null || desk_fail "no window is active"
    xdotool key alt+F4
    expect_text Discard
}

start "all is well before the end"
touch_text Open
touch_text test-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
touch_text Ins
expect_text "test-coil.cnc*"
before=$(sha256sum "$HOME/cnc/test-coil.cnc")
touch "$hang"
close_panel
touch_text Save
expect_gone Discard
walk "a save at the end hangs"
desk_until 40 grep -qF "The panel's storage" "$desk_map" || desk_fail "nobody tells that nothing was saved"
expect_text "test-coil.cnc*"
close_panel
touch_text Discard
desk_until 20 desk_has_ended || desk_fail "the panel does not close while everything hangs"
rm "$hang"
[ "$(sha256sum "$HOME/cnc/test-coil.cnc")" = "$before" ] || desk_fail "the program is another one"

# What was thrown away while nothing could be removed is offered at the next start, if it was kept before.
rm -rf "$HOME/hmi/unsaved"

# The stand-in for the stick is filled at the start.
rm /tmp/udiskattach
export FILARIX_HANGING=/mnt
touch "$hang"
start "the stand-in for the stick hangs" --stick /mnt/Storage.stick
walk "the stand-in for the stick hangs"
rm "$hang"
touch_text Files
touch_text Plug
touch_text Rename "File names"
expect_gone Rename "File names"
end "the stick is in"
[ ! -e /tmp/udiskattach ] || desk_fail "the stick left its marker behind"

# Nor does a stick that hangs keep the program from ending.
start "the stick is out" --stick /mnt/Storage.stick
touch_text Files
touch_text Plug
expect_text "The stick is in; all file names are safe."
touch "$hang"
end "the stick hangs"
rm "$hang"

echo "1 passed, 0 failed"
