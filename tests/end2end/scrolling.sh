#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# scrolling.sh PANEL LOCATOR
#
# Moves a long program by a finger: the cursor stays, and a tap finds a line that was out of sight.
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

# The text of the line at the cursor, as the editor has it.
line_at_cursor() { awk -F '\t' '$2 == "WGCodeEditer" { print $4; exit }' "$desk_map"; }
cursor_left() { [ "$(line_at_cursor)" != "$1" ]; }

# drag_editor: a finger on the middle of the editor, down by 120 pixels. The program is on its way while
# the finger is; where the finger rests at the end, nothing goes on.
drag_editor() {
    local x y i map
    read -r x y <<<"$(desk_settled desk_named WGCodeEditer)"
    xdotool mousemove "$x" "$y" mousedown 1
    for ((i = 10; i <= 120; i += 10)); do
        xdotool mousemove "$x" $((y + i))
        map=$(desk_map_time)
        desk_until 20 desk_has_map_since "$map" || desk_fail "the panel stands still"
    done
    xdotool mouseup 1
}

desk_start 800x480
touch_text Open
touch_text stator-coil.cnc "Open file"
touch_text OK "Open file"
expect_gone OK "Open file"
desk_until 20 desk_shows stator-coil.cnc || desk_fail "the program does not open"
# The cursor stands at the end of what was loaded.
before=$(line_at_cursor)
desk_picture scrolling-before.png
drag_editor
[ "$(line_at_cursor)" = "$before" ] || desk_fail "the cursor moved: $(line_at_cursor)"
desk_picture scrolling-after.png
touch_named WGCodeEditer
desk_until 20 cursor_left "$before" || desk_fail "the tap moved no cursor"
first=$(line_at_cursor)

# Below the tap stands what stood there before the next drag, and a tap finds something else.
drag_editor
[ "$(line_at_cursor)" = "$first" ] || desk_fail "the cursor moved: $(line_at_cursor)"
touch_named WGCodeEditer
desk_until 20 cursor_left "$first" || desk_fail "the program was not moved"

echo "1 passed, 0 failed"
