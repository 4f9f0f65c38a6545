#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Runs filarix-stick in the sandbox, where stand-ins for mount, umount and blkid copy a folder to the
# mount point and away again: its decisions, and the options that it mounts each file system with.
set -euo pipefail
[ -n "${FILARIX_SANDBOX:-}" ] || { echo "to be run by sandbox.sh" >&2; exit 99; }
here=$(dirname "$(readlink -f "$0")")
# shellcheck source-path=SCRIPTDIR source=stick-checks.sh
. "$here/stick-checks.sh"

export TABLE=/tmp/table CALLS=/tmp/calls CONTENT=/tmp/content TYPE=vfat OLD='' BROKEN=''
mkdir /tmp/tools "$CONTENT"
: >"$TABLE"
: >"$CALLS"
cat >/tmp/tools/mount <<'TOOL'
#!/bin/bash
[ $# -gt 0 ] || exec cat "$TABLE"
echo "mount $*" >>"$CALLS"
[ -z "$BROKEN" ] || exit 32
case $OLD$4 in old*nosymfollow*) exit 32 ;; esac
cp -a "$CONTENT/." "$6" && echo "$5 on $6 type $2 ($4)" >>"$TABLE"
TOOL
cat >/tmp/tools/umount <<'TOOL'
#!/bin/bash
echo "umount $*" >>"$CALLS"
find "${!#}" -mindepth 1 -delete && : >"$TABLE"
TOOL
cat >/tmp/tools/blkid <<'TOOL'
#!/bin/sh
echo "$TYPE"
TOOL
printf '#!/bin/sh\n' >/tmp/tools/logger
chmod +x /tmp/tools/*
export PATH=/tmp/tools:$PATH

# mounted_with TYPE OPTIONS: the last command to mount.
mounted_with() { [ "$(grep '^mount' "$CALLS" | tail -n 1)" = "mount -t $1 -o $2 /dev/sda1 $STICK" ]; }

fill "$CONTENT"
settings OWNER=root
base=nosuid,nodev,noexec
fat=uid=0,gid=0,fmask=0133,dmask=0022

echo "== each file system with its options"
run 0 attach /dev/sda1
expect mounted_with vfat "$base,$fat,utf8,flush,nosymfollow"
expect is_marked /dev/sda1
expect is_in
run 0 detach /dev/sda1
expect is_unmarked
expect_not is_in
TYPE=exfat run 0 attach /dev/sda1
expect mounted_with exfat "$base,$fat,iocharset=utf8,nosymfollow"
run 0 detach
TYPE=ext4 run 0 attach /dev/sda1
expect mounted_with ext4 "$base,nosymfollow"
run 0 detach
OLD=old run 0 attach /dev/sda1
expect mounted_with vfat "$base,$fat,utf8,flush"
expect is_marked /dev/sda1
run 0 detach
settings OWNER=root READ_ONLY=yes
run 0 attach /dev/sda1
expect mounted_with vfat "$base,ro,$fat,utf8,flush,nosymfollow"
run 0 detach
settings OWNER=root

echo "== what is left alone"
: >"$MARKER"
for type in '' crypto_LUKS ntfs swap; do
    TYPE=$type run 1 attach /dev/sda1
    expect is_unmarked
done
BROKEN=yes run 1 attach /dev/sda1
expect is_unmarked
run 0 attach /dev/sda1
run 1 attach /dev/sdb1
expect is_marked /dev/sda1
run 0 detach /dev/sdb1
expect is_marked /dev/sda1
expect is_in
run 0 detach
run 0 detach
expect is_unmarked
: >"$MARKER"
run 0 detach
expect is_unmarked
settings OWNER=nobody-of-this-name
run 1 attach /dev/sda1
expect is_unmarked
expect_not is_in
run 2
run 2 attach
run 2 eject /dev/sda1
settings OWNER=root

echo "== names that a shell could mistake"
mkdir /tmp/outside
# shellcheck disable=SC2016 # names as they are
names=('a b' '-rf' ';reboot' 'a&b' 'a|b' '$(touch x)' '`touch x`' 'a>b' '~' '#' "it's" 'a"b' 'a\b' '?.cnc'
    '[a-z]x' $'line\nbreak' $'\xfc.cnc' 'ü.cnc' '<b>part' '+a')
for name in "${names[@]}"; do
    : >"$CONTENT/$name"
    run 1 attach /dev/sda1 2>/tmp/said
    expect grep -q 'no safe file name' /tmp/said
    expect_not grep -q '[^ -~]' /tmp/said
    expect is_unmarked
    expect_not is_in
    rm -- "$CONTENT/$name"
done
: >"$CONTENT/a b"
settings OWNER=root NAMES=hold
run 0 attach /dev/sda1 2>/dev/null
expect is_unmarked
expect is_in
run 0 detach 2>/dev/null
settings OWNER=root NAMES=allow
run 0 attach /dev/sda1 2>/dev/null
expect is_marked /dev/sda1
run 0 detach 2>/dev/null
settings OWNER=root
rm -- "$CONTENT/a b"
for name in a A9 _x part.cnc a-b+c.d '0'; do
    : >"$CONTENT/$name"
done
run 0 attach /dev/sda1
expect is_marked /dev/sda1
run 0 detach

echo "== a marker that leads elsewhere"
echo kept >/tmp/outside/file
ln -s /tmp/outside/file "$MARKER"
run 0 attach /dev/sda1
expect is_marked /dev/sda1
[ "$(cat /tmp/outside/file)" = kept ] || fail "the link was followed"
run 0 detach
mkdir "$MARKER" # somebody else's: it can't be taken away
run 1 attach /dev/sda1
expect_not is_in
