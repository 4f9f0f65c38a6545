#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# sysroot.sh DIR
#
# Leaves in DIR what a build for 32-bit ARM (Debian's armhf) needs: the C library and Qt, with this
# machine's own moc, rcc, uic and lrelease in the place of Qt's tools. Nothing is installed: apt works
# on a state of its own, asks the mirror of this machine's sources, and the packages are unpacked.
# A DIR that this very script has made before is left as it is.
set -euo pipefail

wanted=(libc6-dev qtbase5-dev qtbase5-private-dev)

sysroot=$(realpath -m "$1")
script=$(readlink -f "$0")
stamp=$sysroot/made-by
if cmp -s "$script" "$stamp"; then
    exit 0
fi
echo "Making a sysroot for 32-bit ARM in $sysroot"
rm -rf "$sysroot"
mkdir -p "$sysroot"
work=$(mktemp -d "$sysroot.XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir -p "$work"/{etc/preferences.d,state/lists/partial,cache/archives/partial}
touch "$work/state/status"

# The release and its updates, from where this machine has them. The other archives of a machine need
# not have this architecture.
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
# shellcheck disable=SC2016 # apt fills these in
apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' | sort -u \
    | while read -r uri suite component; do
        case "$suite" in
            "$release" | "$release-updates")
                echo "deb [arch=armhf signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $uri $suite $component"
                ;;
        esac
    done >"$work/etc/sources.list"
[ -s "$work/etc/sources.list" ] || {
    echo "sysroot: apt on this machine has no source for $release" >&2
    exit 1
}

cat >"$work/apt.conf" <<END
APT::Architecture "armhf";
APT::Architectures { "armhf"; };
APT::Install-Recommends "0";
APT::Sandbox::User "root";
Acquire::Languages "none";
Acquire::Retries "3";
Dir::Cache "$work/cache";
Dir::Etc::preferencesparts "$work/etc/preferences.d";
Dir::Etc::sourcelist "$work/etc/sources.list";
Dir::Etc::sourceparts "-";
Dir::State "$work/state";
Dir::State::status "$work/state/status";
END
export APT_CONFIG=$work/apt.conf
apt-get -qq update
apt-get -qq install --download-only --yes "${wanted[@]}" >/dev/null

# What is compiled and linked, and no more: commands come from this machine, so do fonts and all else
# that is data, and there is no graphics driver to use. One /lib, as on an installed system.
mkdir -p "$sysroot/usr/lib"
ln -s usr/lib "$sysroot/lib"
multiarch=usr/lib/arm-linux-gnueabihf
for package in "$work"/cache/archives/*.deb; do
    dpkg-deb --fsys-tarfile "$package" \
        | tar -x -C "$sysroot" --keep-directory-symlink --no-same-owner \
            --exclude=./{bin,sbin,etc,var} --exclude=./usr/{bin,sbin,share,libexec} \
            --exclude='./usr/lib/python*' --exclude="./$multiarch/"{dri,'perl*','libLLVM*','libz3*'}
done

# Links that start at the root would leave the sysroot.
find "$sysroot" -type l -lname '/*' | while read -r link; do
    ln -snf "$(realpath -m --relative-to "$(dirname "$link")" "$sysroot$(readlink "$link")")" "$link"
done

# Where Qt's CMake files look for the tools.
tools=$(qmake -qt=qt5 -query QT_HOST_BINS)
rm -rf "$sysroot/usr/lib/qt5/bin" "$sysroot/$multiarch/qt5/bin"
ln -s "$tools" "$sysroot/usr/lib/qt5/bin"
ln -s "$tools" "$sysroot/$multiarch/qt5/bin"
cp -r "$(qmake -qt=qt5 -query QT_INSTALL_LIBS)/cmake/Qt5LinguistTools" "$sysroot/$multiarch/cmake"

cp "$script" "$stamp"
