#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# spoken.sh PANEL LOCATOR
#
# The panel as a screen reader has it: a client of the accessibility bus reads names and roles, opens a
# screen by its key and answers a dialog, without a pixel or a pointer. The session's bus is a private one.
set -euo pipefail
if [ -z "${FILARIX_SPOKEN_SESSION:-}" ]; then
    export FILARIX_SPOKEN_SESSION=1
    exec dbus-run-session -- "$0" "$@"
fi
# shellcheck source-path=SCRIPTDIR source=desk.sh
source "$(dirname "$(readlink -f "$0")")/desk.sh"

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
desk_start 800x480
expect_text Open
timeout 120 /usr/bin/python3 "$(dirname "$(readlink -f "$0")")/spoken.py" ||
    desk_fail "a screen reader does not find what is there"
