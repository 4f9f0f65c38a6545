#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# run.sh [--optional] [COUNT [SEED]]
#
# Has COUNT generated programs (250) read by our interpreter and by a general one of RS-274, and compares
# where each motion ends. The other one comes from Debian's linuxcnc-uspace: the package is fetched by
# apt-get and unpacked into a folder of its own, build/oracle, and never installed. It runs in a sandbox
# without a network.
#
# With --optional a machine whose apt cannot fetch the package is told so, and that is no failure.
# Any difference is one. Needs the build tree build/dev, or the one that BUILD names.
set -euo pipefail
root=$(dirname "$(dirname "$(dirname "$(readlink -f "$0")")")")
oracle=$root/build/oracle
build=${BUILD:-$root/build/dev}
package=linuxcnc-uspace

"$root/cmake/ensure-packages.sh" bubblewrap

optional=no
if [ "${1:-}" = --optional ]; then
    optional=yes
    shift
fi
count=${1:-250}
seed=${2:-1}

# What of the package's own needs the interpreter needs; the rest is for screens and machines.
needs='^(libboost-python|libpython3|libedit|libtirpc)[0-9.-]*$'

fetch() {
    apt-get -qq -o Acquire::Retries=3 -o APT::Sandbox::User=root download "$@"
}
unpack_package() {
    local scratch=$oracle.part needed
    rm -rf "$scratch"
    mkdir -p "$scratch/packages"
    cd "$scratch/packages" || return
    # A new machine knows of no packages yet.
    apt-cache show "$package" >/dev/null 2>&1 || apt-get -qq -o Acquire::Retries=3 update || return
    fetch "$package" || return
    # Of two that will do, the first.
    needed=$(dpkg-deb -f "$package"_*.deb Depends | tr , '\n' | awk '{print $1}' | sort -u \
        | grep -E "$needs") || return
    # shellcheck disable=SC2086 # names of packages, one a word
    fetch $needed || return
    find "$scratch/packages" -name '*.deb' -exec dpkg -x {} "$scratch/root" \; || return
    rm -rf "$oracle"
    mv "$scratch" "$oracle"
    cd "$root" || return
}
if [ ! -x "$oracle/root/usr/bin/rs274" ] && ! unpack_package; then
    rm -rf "$oracle.part"
    echo "oracle: apt cannot fetch $package here; nothing was compared" >&2
    [ "$optional" = yes ]
    exit
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
libraries=$oracle/root/usr/lib:$(find "$oracle/root/usr/lib" -maxdepth 1 -name '*-linux-gnu' -printf '%p:')
# What it would keep from one run to the next is kept from none.
canonical() {
    : >"$work/tools"
    rm -f "$work/parameters"*
    bwrap --ro-bind / / --dev /dev --proc /proc --tmpfs /run --tmpfs /home --bind "$work" "$work" \
        --cap-drop ALL --unshare-net --unshare-pid --unshare-ipc --die-with-parent --new-session \
        --chdir "$work" --setenv HOME "$work" --setenv LC_ALL C \
        --setenv LD_LIBRARY_PATH "$libraries" \
        "$oracle/root/usr/bin/rs274" -g -v "$work/parameters" -t "$work/tools" "$1" \
        >"$2" 2>"$work/errors" </dev/null || {
        echo "oracle: it refuses $(basename "$1"):" >&2
        tail -n 2 "$work/errors" >&2
        return 1
    }
}

program=$build/tests/oracle/filarix-oracle
mkdir "$work/programs" "$work/canonical"
"$program" write "$work/programs" "$count" "$seed"
for file in "$work"/programs/*.ngc; do
    canonical "$file" "$work/canonical/$(basename "$file" .ngc)"
done
"$program" compare "$work/programs" "$work/canonical" "$count" "$seed"
