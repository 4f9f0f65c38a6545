#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# sandbox.sh PROGRAM [ARG ...]
#
# Runs a program in mount and process namespaces of its own. It sees a private, empty home, "/tmp",
# "/mnt/Storage" and "/usr/share/qt/bin"; everything else of the machine is read-only, except the
# folder named by FILARIX_SANDBOX_WRITABLE, if any. A sandbox that cannot start is a failure.
#
# "/mnt/Storage" is a folder that the program may even remove. With FILARIX_SANDBOX_STICK_SIZE it is
# a file system of that many bytes, with FILARIX_SANDBOX_STICK a read-only view of that folder. With
# FILARIX_SANDBOX_HOME_SIZE the home is a file system of that many bytes.
# FILARIX_SANDBOX_SCREEN, for example 480x272, is the size of the screen; without it there is
# Qt's offscreen one.
set -euo pipefail
leaks=$(dirname "$(readlink -f "$0")")/leaks.supp

if ! command -v bwrap >/dev/null; then
    echo "sandbox: bwrap (package bubblewrap) is missing" >&2
    exit 99
fi

args=(
    --ro-bind / /
    --dev /dev
    --proc /proc
    --tmpfs /tmp
    --tmpfs /run
    --tmpfs /mnt
    --dir /mnt/Storage
    --ro-bind /usr/share /run/usr-share
    # A machine need not have /usr/share/qt, and we may not make it: so the whole folder is
    # replaced, each entry of the real one by a link.
    --tmpfs /usr/share
)
for entry in /usr/share/*; do
    name=${entry##*/}
    [ "$name" = qt ] || args+=(--symlink "/run/usr-share/$name" "/usr/share/$name")
done
args+=(
    --dir /usr/share/qt/bin
    --dir /tmp/home
    --perms 0700 --dir /tmp/runtime
    --perms 1777 --dir /tmp/.X11-unix
)
# For programs that are built with the sanitizers.
args+=(
    --ro-bind "$leaks" /run/leaks.supp
    --setenv LSAN_OPTIONS suppressions=/run/leaks.supp:print_suppressions=0
    --setenv UBSAN_OPTIONS print_stacktrace=1
)
# The build tree may lie below a folder that was just replaced.
program=$(readlink -f "$1")
shift
case "$program" in
    /tmp/* | /mnt/* | /run/*) args+=(--ro-bind "$(dirname "$program")" "$(dirname "$program")") ;;
esac
if [ -n "${FILARIX_SANDBOX_STICK_SIZE:-}" ]; then
    args+=(--size "$FILARIX_SANDBOX_STICK_SIZE" --tmpfs /mnt/Storage)
elif [ -n "${FILARIX_SANDBOX_STICK:-}" ]; then
    args+=(--ro-bind "$FILARIX_SANDBOX_STICK" /mnt/Storage)
fi
if [ -n "${FILARIX_SANDBOX_HOME_SIZE:-}" ]; then
    args+=(--size "$FILARIX_SANDBOX_HOME_SIZE" --tmpfs /tmp/home)
fi
if [ -n "${FILARIX_SANDBOX_WRITABLE:-}" ]; then
    args+=(--bind "$FILARIX_SANDBOX_WRITABLE" "$FILARIX_SANDBOX_WRITABLE")
fi

# Only a served screen has a size of our choice; the network namespace keeps its port to itself.
screen=offscreen
[ -z "${FILARIX_SANDBOX_SCREEN:-}" ] || screen=vnc:size=$FILARIX_SANDBOX_SCREEN

# Without capabilities root meets the same permissions as anybody.
exec bwrap "${args[@]}" --cap-drop ALL \
    --unshare-pid --unshare-ipc --unshare-net --die-with-parent --new-session \
    --setenv HOME /tmp/home \
    --setenv XDG_RUNTIME_DIR /tmp/runtime \
    --unsetenv XDG_CONFIG_HOME --unsetenv XDG_CONFIG_DIRS \
    --unsetenv XDG_DATA_HOME --unsetenv XDG_CACHE_HOME \
    --unsetenv DISPLAY --unsetenv WAYLAND_DISPLAY --unsetenv QT_STYLE_OVERRIDE \
    --unsetenv QT_PLUGIN_PATH --unsetenv QT_QPA_PLATFORMTHEME \
    --setenv QT_QPA_PLATFORM "$screen" \
    --setenv LC_ALL "${FILARIX_TEST_LC_ALL:-C.UTF-8}" \
    --setenv FILARIX_SANDBOX 1 \
    --chdir /tmp \
    "$program" "$@"
