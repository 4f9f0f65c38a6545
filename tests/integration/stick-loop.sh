#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Runs filarix-stick on loop devices, in a mount namespace with a "/mnt" and a "/tmp" of its own, and
# has systemd and udev read the service and the rule. Needs root and loop devices.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")

if [ -z "${FILARIX_OWN_MOUNTS:-}" ]; then
    as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    exec "${as_root[@]}" env FILARIX_OWN_MOUNTS=1 unshare --mount --propagation private "$0"
fi
mount -t tmpfs none /mnt
mount -t tmpfs none /tmp
# shellcheck source-path=SCRIPTDIR source=stick-checks.sh
. "$here/stick-checks.sh"

devices=()
trap 'umount -l "$STICK" 2>/dev/null || true
    [ ${#devices[@]} -eq 0 ] || losetup -d "${devices[@]}"' EXIT

# plug IMAGE: a loop device on it, named in $device.
plug() {
    device=$(losetup --find --show "$1")
    devices+=("$device")
}

options() { findmnt -n -o OPTIONS "$STICK"; }
is_mounted() { mountpoint -q "$STICK"; }

settings OWNER=root
fill /tmp/good
mkdir /tmp/bad
echo x >"/tmp/bad/part.cnc"
echo x >"/tmp/bad/;reboot"
truncate -s 4M /tmp/good.img /tmp/bad.img /tmp/none.img
mkfs.ext4 -q -d /tmp/good /tmp/good.img
mkfs.ext4 -q -d /tmp/bad /tmp/bad.img
plug /tmp/good.img
good=$device
plug /tmp/bad.img
bad=$device
plug /tmp/none.img
none=$device

echo "== a stick comes and goes"
run 0 attach "$good"
expect is_mounted
expect is_in
expect is_marked "$good"
for option in nosuid nodev noexec rw; do
    [[ ,$(options), == *,$option,* ]] || fail "mounted without $option: $(options)"
done
printf '#!/bin/sh\n' >"$STICK/run.sh"
chmod +x "$STICK/run.sh"
expect_not "$STICK/run.sh"
echo "== a second one does not take its place"
run 1 attach "$bad"
expect is_marked "$good"
run 0 detach "$bad"
expect is_mounted
run 0 detach "$good"
expect_not is_mounted
expect is_unmarked

echo "== read-only"
settings OWNER=root READ_ONLY=yes
run 0 attach "$good"
expect_not touch "$STICK/x"
run 0 detach
settings OWNER=root

echo "== a stick that is pulled while a file is open"
run 0 attach "$good"
exec 9<"$STICK/part.cnc"
run 0 detach "$good"
expect_not is_mounted
expect is_unmarked
exec 9<&-

echo "== unsafe names, no file system"
run 1 attach "$bad"
expect_not is_mounted
expect is_unmarked
settings OWNER=root NAMES=hold
run 0 attach "$bad"
expect is_mounted
expect is_unmarked
run 0 detach
settings OWNER=root
: >"$MARKER"
run 1 attach "$none"
expect is_unmarked

echo "== the service"
sed "s#/usr/sbin/filarix-stick#$script#" "$here/../../packaging/integration/filarix-stick@.service" \
    >"/tmp/filarix-stick@sda1.service"
systemd-analyze verify --man=no "/tmp/filarix-stick@sda1.service" 2>&1 | tee /tmp/verify
expect_not grep -q filarix-stick /tmp/verify

echo "== the rule"
mkdir -p /run/udev
mount -t tmpfs none /run/udev
mkdir /run/udev/rules.d
cp "$here/../../packaging/integration/99-filarix-stick.rules" /run/udev/rules.d/
device=/sys/class/block/$(basename "$good")
udevadm test --action=add "$device" >/tmp/rules 2>&1
umount /run/udev
expect grep -q 'rules.d/99-filarix-stick.rules$' /tmp/rules # it was read
expect_not grep 'rules.d/99-filarix-stick.rules:' /tmp/rules # and nothing found wrong
