#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# faults.sh LIBRARY COMPANION FOLDER LIBRARY_BASELINE COMPANION_BASELINE
#
# Shows that baseline.sh and releasehost.sh find what hosts of the last release could not live with, and let
# pass what they can: each change is made to a copy of the headers in FOLDER, or to a library linked anew.
# OBJECTS are those of the library; the rest of the environment is that of the two scripts.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
library=$1
companion=$2
folder=$3
baselines=("$4" "$5")

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() {
    echo "faults: $*" >&2
    exit 1
}

# changed HEADER SCRIPT: the headers, with one of them gone through sed.
changed() {
    rm -rf "$scratch/headers"
    cp -r "$folder" "$scratch/headers"
    sed -i -E "$2" "$scratch/headers/$1"
    ! cmp -s "$folder/$1" "$scratch/headers/$1" || fail "$1 has nothing to change by $2"
}

# compare library|companion [LIBRARY]: those headers with the baseline.
compare() {
    local headers which=0 file=${2:-$library}
    if [ "$1" = companion ]; then
        which=1
        file=${2:-$companion}
        mapfile -t headers < <(cd "$scratch/headers" && find . -mindepth 2 -name '*.h' -printf '%P\n' | sort)
    else
        mapfile -t headers < <(cd "$scratch/headers" && find . -maxdepth 1 -name '*.h' -printf '%P\n' | sort)
    fi
    "$here/baseline.sh" "$file" "${baselines[which]}" "$scratch/headers" "${headers[@]}" \
        >"$scratch/report" 2>&1
}

# expect REASON WHAT ...: the comparison fails, and says why.
expect() {
    ! compare "${@:3}" || fail "$2 passes"
    grep -qE "$1" "$scratch/report" || { cat "$scratch/report" >&2; fail "$2 fails for another reason"; }
    echo "found: $2"
}
pass() {
    compare "${@:2}" || { cat "$scratch/report" >&2; fail "$1 does not pass"; }
    echo "passes: $1"
}

changed conneditor.h 's/^( +)int m_width;/\1int m_added;\n&/'
expect 'int m_added' "an added data member" library

changed storage/filetaskrunner.h '/virtual void close\(\) \{\}/d; s/^( +)virtual int percent/\1virtual void close() {}\n&/'
expect 'close.*vtable offset|vtable.*close|virtual.*(close|percent)' "a moved virtual function" companion

changed filarixrows.h 's/enum Motion \{/& Added,/'
expect 'Linear' "another value of an enumerator" library

# Nothing to do with headers: the name alone is no longer there.
changed conneditor.h 's/$//; 1s/^/\n/'
echo '{ local: _ZNK12WMMainWindow13isDownloadingEv; };' >"$scratch/script"
# shellcheck disable=SC2153 # the environment's
read -ra objects <<<"$OBJECTS"
"$CXX" -shared -o "$scratch/${library##*/}" -Wl,-soname,"${library##*/}" -Wl,--version-script="$scratch/script" \
    "${objects[@]}"
expect 'isDownloading' "a removed symbol" library "$scratch/${library##*/}"

changed conneditor.h 's/^( +)void init_list\(\);/&\n\1void added();/; s/^( +)void addHeader\(\);//
    s/^#endif.*/class FILARIX_EXPORT Added : public QDialog { Q_OBJECT };\n&/'
pass "an added class, an added function that is not virtual, a removed private one" library

runs() {
    SCRATCH=$scratch "$here/releasehost.sh" "$1" "$companion" >"$scratch/report" 2>&1
}
# The release's headers with a member less are the same to the host as a library with one more.
! EDIT='/QPushButton \*m_cancelButton;/d' runs "$library" || fail "a host lives with another size"
grep -q 'not so: ConnEditor' "$scratch/report" || { cat "$scratch/report" >&2; fail "no word of the size"; }
! runs "$scratch/${library##*/}" || fail "a host lives without a symbol"
grep -q 'isDownloading' "$scratch/report" || { cat "$scratch/report" >&2; fail "no word of the symbol"; }
echo "found: both by a host of the last release"
