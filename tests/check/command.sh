#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# command.sh PROGRAM SAMPLES
#
# Runs filarix-check as people and their scripts do: what it says, what it ends with, and what happens where
# files, pipes and disks are not what they should be. SAMPLES is the folder of the sample programs.
set -euo pipefail
[ -n "${FILARIX_SANDBOX:-}" ] || { echo "to be run by sandbox.sh" >&2; exit 99; }
program=$1
samples=$2
page=$(dirname "$(readlink -f "$0")")/../../check/filarix-check.1.in
# A command has no display, and nothing of the kind makes a difference.
unset QT_QPA_PLATFORM
cd "$HOME"

fail() {
    echo "command: $*" >&2
    [ ! -s out ] || sed 's/^/    out: /' out >&2
    [ ! -s err ] || sed 's/^/    err: /' err >&2
    exit 1
}
# check STATUS ARGUMENT...: runs it, and expects the exit status. It has to end soon.
check() {
    local status=0
    timeout 60 "$program" "${@:2}" >out 2>err || status=$?
    [ "$status" -eq "$1" ] || fail "status $status instead of $1: ${*:2}"
}
says() { grep -qE -- "$1" out || fail "does not say: $1"; }
complains() { grep -qE -- "$1" err || fail "does not complain: $1"; }
is_silent() { [ "$(cat out err | wc -c)" -eq 0 ] || fail "is not silent"; }

lines() { printf '%s\n' "$@"; }
lines G21 G90 M10 'G00 X1 Y8' 'S300 M03' 'G33 X11 K0.25' M05 M12 M30 >right.cnc
{ cat right.cnc; echo 'G00 X5'; } >warning.cnc
sed 's/X11/X99/' right.cnc >error.cnc
{ printf '; \303\274\n'; cat right.cnc; } >note.cnc

# The exit status goes by the worst finding of all files.
check 0 right.cnc
is_silent
check 0 note.cnc
says '^note\.cnc:1:3: note: .* \[non-ascii-in-comment\]$'
check 1 warning.cnc
says '^warning\.cnc:10:1: warning: .* \[behind-end\]$'
check 2 error.cnc
says '^error\.cnc:6:5: error: X goes to 99 mm, .* \[axis-limit\]$'
check 1 right.cnc warning.cnc note.cnc
check 2 warning.cnc error.cnc right.cnc
[ ! -s err ] || fail "complains of findings"
mapfile -t sample_programs < <(find "$samples" -maxdepth 1 -name '*.cnc')
[ "${#sample_programs[@]}" -ge 2 ] || fail "no samples in $samples"
check 0 "${sample_programs[@]}"
is_silent

# A profile of one's own.
cat >small.ini <<'PROFILE'
[profile]
name = Small machine
[axes]
X = traverse, mm, 0, 10
Y = guide distance, mm, 0, 10
[functions]
G0 = rapid, motion
M30 = end
[bobbin]
core = 5
width = 8
flange = 20
PROFILE
lines 'G00 X9' M30 >small.cnc
check 0 --profile small.ini small.cnc
check 2 --profile=small.ini right.cnc
says '^right\.cnc:1:1: error: G21 is unknown'
check 4 --profile missing.ini right.cnc
complains 'missing\.ini'
lines '[axes]' 'X = nonsense' >broken.ini
check 4 --profile broken.ini right.cnc
complains 'broken\.ini'
[ ! -s out ] || fail "checks with a broken profile"
check 4 --profile /dev/null right.cnc

# The command line.
check 4
complains 'Which file'
check 4 --nonsense right.cnc
complains 'no option --nonsense'
check 0 --help
says '^Usage: filarix-check '
check 0 --version
says '^filarix-check [0-9]+\.[0-9]+\.[0-9]+$'
cp error.cnc ./--json
check 2 -- --json
says '^--json:6:5: error'

# The manual page has each option.
"$program" --help | grep -oE -- '--[a-z]+' | while read -r option; do
    grep -qF -- "${option//-/\\-}" "$page" || fail "the manual page lacks $option"
done

# JSON, once for all files.
check 3 --json right.cnc error.cnc missing.cnc
says '"version": 1'
says '"file": "missing\.cnc"'
says '"kind": "axis-limit"'
complains 'missing\.cnc: No such file or directory'

# The drawing: whole, or what stood there before.
check 0 --svg coil.svg right.cnc
is_silent
grep -q '^<svg\|<svg ' coil.svg || fail "no SVG"
grep -q '</svg>' coil.svg || fail "half an SVG"
cp coil.svg kept.svg
check 2 --svg=coil.svg error.cnc
! cmp -s coil.svg kept.svg || fail "the drawing is the other coil's"
check 2 --svg empty.svg - </dev/null
[ -s empty.svg ] || fail "no drawing of nothing"
check 4 --svg coil.svg right.cnc error.cnc
cp kept.svg coil.svg
check 3 --svg coil.svg missing.cnc
cmp coil.svg kept.svg || fail "a missing program changes the drawing"
check 3 --svg missing/coil.svg right.cnc
complains '^filarix-check: missing/coil\.svg: No such file or directory$'
check 3 --svg /dev/full right.cnc
complains '^filarix-check: /dev/full: No space left on device$'
check 3 --svg "$PWD" right.cnc
complains 'Is a directory'
[ "$(find . -name 'coil.svg.*' | wc -l)" -eq 0 ] || fail "leaves a file behind"

# Nor does a drawing take the place of what it is drawn from, by whatever name.
cp right.cnc own.cnc
ln own.cnc hard.cnc
ln -s own.cnc soft.cnc
for name in own.cnc ./own.cnc hard.cnc soft.cnc; do
    check 4 --svg "$name" own.cnc
    complains "^filarix-check: $name: is a file that is to be read"
done
check 4 --svg own.cnc - <hard.cnc
check 4 --svg small.ini --profile small.ini small.cnc
cmp own.cnc right.cnc || fail "a drawing covers its program"
grep -q '^core = 5' small.ini || fail "a drawing covers the profile"
check 0 --svg /dev/null right.cnc
check 2 --svg /dev/null - </dev/null

# The findings speak the user's language.
if [ -e "$(dirname "$program")/../translations/filarixhost_de.qm" ]; then
    LC_ALL=de_DE.UTF-8 check 2 error.cnc
    says '^error\.cnc:6:5: error: X f.*hrt auf 99 mm, .* \[axis-limit\]$'
fi

# What is no program is named, and the others are checked all the same.
mkdir folder
mkfifo pipe
touch secret.cnc
chmod 0 secret.cnc
check 3 missing.cnc folder pipe /dev/zero secret.cnc error.cnc
complains '^filarix-check: missing\.cnc: No such file or directory$'
complains '^filarix-check: folder: is a folder$'
complains '^filarix-check: pipe: is a pipe'
complains '^filarix-check: /dev/zero: is a device$'
complains '^filarix-check: secret\.cnc: Permission denied$'
says '^error\.cnc:6:5: error'

# Pipes, at both ends.
check 2 - <error.cnc
says '^-:6:5: error'
sed '' error.cnc | check 2 -
check 2 - </dev/null
says '^-:1:1: error: The program has no end'
check 2 <(cat error.cnc)
says '^/dev/fd/[0-9]+:6:5: error'
for _ in $(seq 20000); do echo Q1; done >many.cnc
set +e
"$program" many.cnc many.cnc many.cnc many.cnc 2>err | head -n 1 >out
statuses=("${PIPESTATUS[@]}")
set -e
# 128 and the signal that ends a writer to a closed pipe.
[ "${statuses[0]}" -eq 141 ] || fail "ends with ${statuses[0]} when nobody reads on"
[ ! -s err ] || fail "complains when nobody reads on"
set +e
(
    trap '' PIPE
    "$program" many.cnc many.cnc many.cnc many.cnc 2>err
) | head -n 1 >out
statuses=("${PIPESTATUS[@]}")
set -e
[ "${statuses[0]}" -eq 3 ] || fail "ends with ${statuses[0]} when it may not be ended"
complains 'findings cannot be written'
status=0
"$program" error.cnc >/dev/full 2>err || status=$?
[ "$status" -eq 3 ] || fail "status $status with a full disk"
complains 'findings cannot be written'
status=0
"$program" error.cnc 2>err >&- || status=$?
[ "$status" -eq 3 ] || fail "status $status without an output"

# Files that mean no good.
head -c 20000000 /dev/zero >zeros.cnc
check 2 zeros.cnc
head -c 3000000 /dev/urandom >noise.cnc
check 2 noise.cnc
head -c 20000000 /dev/zero | tr '\0' X >long.cnc
check 2 long.cnc
says '\[line-too-long\]$'
head -c 300000000 /dev/zero >endless.cnc
check 3 endless.cnc
complains 'too large'
rm endless.cnc
odd=$'odd\nname \033[31m\377.cnc'
cp error.cnc "$odd"
check 2 "$odd"
! LC_ALL=C grep -avE '^odd\?name \?\[31m.\.cnc:6:5: error: ' out || fail "a name breaks the line"
! grep -q $'\033' out || fail "a name reaches the terminal"

# Neither widgets nor a device library.
needed=$(readelf -d "$program" | grep -E 'NEEDED.*(Widgets|HMIDevice|Filarix|X11)' || true)
[ -z "$needed" ] || fail "needs $needed"
