#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# check-deb.sh [DIRECTORY]
#
# Checks the Debian packages in DIRECTORY, build/packages if none is given; builds them there if none
# lie in it. Needs root and the machine's package source. It asks lintian, makes a new, minimal
# Debian in a scratch folder, and in there, as people do who know nothing of this tree,
#   - installs the library alone, which must bring no stand-in device library,
#   - builds the hosts of tests/consumer with the development packages, no device library about,
#   - installs the command that checks programs, and has it check some,
#   - installs the panel program and lets it walk its screens,
#   - installs the translations and runs the hosts,
#   - installs the rest, asks the panel program for German and the Designer plugin for what it needs,
#     and removes everything again.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
packages=$(realpath -m "${1:-$root/build/packages}")

step() {
    echo "== $*"
}
fail() {
    echo "check-deb: $*" >&2
    exit 1
}

[ "$(id -u)" -eq 0 ] || fail "needs root, to install packages into a folder"
"$root/cmake/ensure-packages.sh" bubblewrap debootstrap dpkg-dev lintian
[ -e "$(find "$packages" -name '*.changes' -print -quit 2>/dev/null)" ] \
    || "$root/packaging/build-deb.sh" "$packages"

step "lintian"
lintian --allow-root --fail-on error "$packages"/*.changes

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
debian=$scratch/debian
# shellcheck disable=SC2016 # apt's own placeholders
source=$(apt-get indextargets --format '$(CODENAME) $(REPO_URI)' 'Created-By: Packages' \
    "Origin: Debian" "Label: Debian" | sort -u | head -n 1)
read -r codename mirror <<<"$source"
[ -n "$mirror" ] || fail "apt has no source of Debian packages here"
step "a new Debian ($codename)"
debootstrap --variant=minbase "$codename" "$debian" "$mirror" >"$scratch/debootstrap.log" \
    || { tail -n 20 "$scratch/debootstrap.log" >&2; fail "debootstrap"; }

mkdir -p "$debian/packages" "$debian/consumer/examples"
cp "$packages"/*.deb "$debian/packages"
(cd "$debian/packages" && dpkg-scanpackages --multiversion . >Packages 2>/dev/null)
echo "deb [trusted=yes] file:/packages ./" >"$debian/etc/apt/sources.list.d/local.list"
cp -r "$root/tests/consumer/"{host,cmake,pkgconfig,qmake,companion} "$debian/consumer"
cp -r "$root/examples/safe-host" "$debian/consumer/examples"

inside() {
    bwrap --bind "$debian" / --dev /dev --proc /proc --tmpfs /run --tmpfs /tmp --unshare-pid \
        --die-with-parent --ro-bind /etc/resolv.conf /etc/resolv.conf --chdir /root \
        --setenv HOME /root --setenv LC_ALL C.UTF-8 --setenv DEBIAN_FRONTEND noninteractive \
        --setenv PATH /usr/sbin:/usr/bin:/sbin:/bin --setenv QT_QPA_PLATFORM offscreen "$@"
}
apt_install() {
    inside apt-get -qq -o Dpkg::Use-Pty=0 -o APT::Sandbox::User=root -o Acquire::Retries=3 \
        install --yes "$@" >"$scratch/apt.log" 2>&1 \
        || { tail -n 20 "$scratch/apt.log" >&2; fail "apt-get install $*"; }
}
is_installed() {
    # shellcheck disable=SC2016 # dpkg-query's own placeholder
    inside dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed
}
# check_manual PROGRAM: its page has each option.
check_manual() {
    local manual option
    manual=$(inside zcat "/usr/share/man/man1/$1.1.gz" | tr -d '\134') # its hyphens are escaped
    for option in $(inside "$1" --help | grep -o '^ .*' | grep -oE '(^|[ ,])--[a-z-]+'); do
        [[ $manual == *"$option"* ]] || fail "the manual page of $1 lacks $option"
    done
}
has_no_stand_in() {
    if is_installed libhmidevice-sim || is_installed filarix-panel; then
        fail "$1 brings the stand-in device library"
    fi
}

inside apt-get -qq -o APT::Sandbox::User=root update
step "the library alone"
apt_install libfilarixmodule1
has_no_stand_in libfilarixmodule1
libdir=/usr/lib/$(dpkg-architecture -q DEB_HOST_MULTIARCH)
lacks_the_device_library_alone() {
    local missing
    missing=$(inside ldd "$libdir/$1" | sed -n 's/^\s*\(.*\) => not found/\1/p' | sort -u)
    [ "$missing" = libHMIDevice.so.1 ] || fail "beside the device library $1 lacks: $missing"
}
lacks_the_device_library_alone libFilarixModule.so.1

step "hosts, with the development package"
apt_install --no-install-recommends libfilarixmodule-dev g++ cmake make pkg-config
has_no_stand_in libfilarixmodule-dev
inside sh -eu -c '
    cmake -S /consumer/cmake -B cmake
    cmake --build cmake
    mkdir pkgconfig qmake
    make -C pkgconfig -f /consumer/pkgconfig/Makefile SOURCES=/consumer/host
    cd qmake
    /usr/lib/qt5/bin/qmake /consumer/qmake/host.pro
    make' >"$scratch/hosts.log" 2>&1 || { tail -n 30 "$scratch/hosts.log" >&2; fail "hosts"; }

step "hosts, with the companion"
! inside cmake -S /consumer/companion/cmake -B companion-cmake -DEXAMPLES=/consumer/examples \
    >"$scratch/hosts.log" 2>&1 \
    || fail "the library's development package gives a companion"
grep -q 'Host is not installed here' "$scratch/hosts.log" || fail "$(<"$scratch/hosts.log")"
apt_install --no-install-recommends libfilarixhost-dev
has_no_stand_in libfilarixhost-dev
lacks_the_device_library_alone libFilarixHost.so.1
inside sh -eu -c '
    cmake -S /consumer/companion/cmake -B companion-cmake -DEXAMPLES=/consumer/examples
    cmake --build companion-cmake
    mkdir companion-pkgconfig companion-qmake
    make -C companion-pkgconfig -f /consumer/companion/pkgconfig/Makefile \
        SOURCES=/consumer/companion EXAMPLES=/consumer/examples
    cd companion-qmake
    /usr/lib/qt5/bin/qmake /consumer/companion/qmake/host.pro
    make' >"$scratch/hosts.log" 2>&1 || { tail -n 30 "$scratch/hosts.log" >&2; fail "hosts"; }

step "the command"
apt_install --no-install-recommends filarix-check
has_no_stand_in filarix-check
cp "$root"/panel/samples/*.cnc "$debian/root"
inside sh -c 'filarix-check /root/*.cnc' || fail "filarix-check finds faults in the samples"
! inside sh -c 'echo G99 | filarix-check -' >"$scratch/findings" || fail "filarix-check finds nothing"
grep -q '^-:1:1: error: G99 ' "$scratch/findings" || fail "$(<"$scratch/findings")"
check_manual filarix-check

step "the panel program"
apt_install --no-install-recommends filarix-panel
is_installed libhmidevice-sim || fail "the panel program came without keypads"
inside filarix-panel --tour /root/tour --size 480x272 >"$scratch/tour.log" 2>&1 \
    || { tail -n 20 "$scratch/tour.log" >&2; fail "filarix-panel --tour"; }
pictures=$(find "$debian/root/tour" -name '*.png' | wc -l)
[ "$pictures" -ge 20 ] || fail "the tour left $pictures pictures"
echo "$pictures pictures of its screens"
check_manual filarix-panel
inside filarix-panel --tour /root/tour --language de >/dev/null 2>"$scratch/tour.log" \
    || fail "filarix-panel --tour --language de"
grep -q 'for de is not installed' "$scratch/tour.log" || fail "German without libfilarixmodule-l10n"
step "the hosts, with the translations"
apt_install --no-install-recommends libfilarixmodule-l10n
for way in {,companion-}{cmake,pkgconfig,qmake}; do
    inside "/root/$way/host" || fail "the $way host"
done
for way in cmake pkgconfig; do
    inside "/root/companion-$way/safe-host" || fail "the $way safe host"
done

step "all packages, and none"
mapfile -t names < <(sed -n 's/^Package: //p' "$debian/packages/Packages" | grep -v -- -dbgsym | sort -u)
apt_install --no-install-recommends "${names[@]}"
for file in doc/libfilarixmodule-doc/{html/search/search.js,recipes/fillrows.h,filarixmodule.qch} \
    applications/filarix-panel.desktop icons/hicolor/scalable/apps/filarix-panel.svg \
    metainfo/org.filarix.panel.metainfo.xml; do
    [ -s "$debian/usr/share/$file" ] || fail "no package brings $file"
done
rm -r "$debian/root/tour"
inside filarix-panel --tour /root/tour --language de >"$scratch/tour.log" 2>&1 \
    || { tail -n 20 "$scratch/tour.log" >&2; fail "filarix-panel --tour --language de"; }
if grep 'not installed' "$scratch/tour.log"; then
    fail "the panel program does not find its translations"
fi
missing=$(inside ldd "$libdir/qt5/plugins/designer/libfilarixmoduledesigner.so" | grep -E 'not found|Filarix|HMIDevice' || true)
[ -z "$missing" ] || fail "the Designer plugin asks for: $missing"
inside apt-get -qq -o Dpkg::Use-Pty=0 purge --yes "${names[@]}" >"$scratch/apt.log" 2>&1 \
    || { tail -n 20 "$scratch/apt.log" >&2; fail "purge"; }
left=$(find "$debian"/{etc,opt,srv,usr} -iname '*filarix*' -o -iname '*hmidevice*')
[ -z "$left" ] || fail "left after the removal: $left"
step "all is well: ${names[*]}"
