#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# build.sh TOOLKIT DEVICE_LIBRARY COMPILER SYSROOT DIR
#
# Builds the library for a panel and leaves it below DIR, as it goes below "/" on the panel.
#   TOOLKIT         the folder of the panel's Qt 4.8, whose bin/ has qmake, moc, rcc and uic for this machine
#   DEVICE_LIBRARY  the panel's own libHMIDevice.so.1
#   COMPILER        what the compiler's tools begin with, for example arm-linux-gnueabihf-
#   SYSROOT         the panel's files; "" where the compiler has its own
# BUILD, from the environment, is the folder to build in: build/panel without another.
set -euo pipefail

fail() {
    echo "build: $*" >&2
    exit 1
}
[ $# -eq 5 ] || fail "TOOLKIT, DEVICE_LIBRARY, COMPILER, SYSROOT and DIR are needed; see README.md"
toolkit=$(readlink -f "$1")
device_library=$(readlink -f "$2")
compiler=$3
sysroot=${4:+$(readlink -f "$4")}
into=$(realpath -m "$5")
cd "$(dirname "$(readlink -f "$0")")/../.."
build=${BUILD:-build/panel}

for tool in qmake moc rcc uic; do
    [ -x "$toolkit/bin/$tool" ] || fail "there is no bin/$tool in $toolkit"
done
version=$("$toolkit/bin/qmake" -query QT_VERSION) || fail "$toolkit/bin/qmake does not run here"
[[ $version == 4.8.* ]] || fail "the toolkit in $toolkit is Qt $version"
command -v "${compiler}g++" >/dev/null || fail "there is no ${compiler}g++"

machine_of() {
    LC_ALL=C readelf -h "$1" | sed -n 's/^ *Machine: *//p'
}
[ "$(machine_of "$device_library")" = "$(machine_of "$toolkit/lib/libQtCore.so.4")" ] \
    || fail "$device_library is for another processor than the toolkit"

# The translations are compiled by the lrelease of this machine's Qt 5; Qt 4 reads them.
linguist=$(qmake -qt=qt5 -query QT_INSTALL_LIBS)/cmake/Qt5LinguistTools
[ -d "$linguist" ] || fail "the packages qttools5-dev and qttools5-dev-tools are missing"

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/packaging/qt4/panel.cmake" \
    -DPANEL_COMPILER="$compiler" -DPANEL_SYSROOT="$sysroot" \
    -DFILARIX_QT=4 -DQT_QMAKE_EXECUTABLE="$toolkit/bin/qmake" \
    -DQT_MOC_EXECUTABLE="$toolkit/bin/moc" -DQT_RCC_EXECUTABLE="$toolkit/bin/rcc" \
    -DQT_UIC_EXECUTABLE="$toolkit/bin/uic" \
    -DFILARIX_HMIDEVICE_LIBRARY="$device_library" \
    -DFILARIX_SIMULATOR=OFF -DFILARIX_PANEL=OFF -DFILARIX_EXAMPLES=OFF -DFILARIX_DESIGNER=OFF \
    -DFILARIX_TESTS=OFF -DQt5LinguistTools_DIR="$linguist"
cmake --build "$build"
export DESTDIR=$into
cmake --install "$build" --prefix /usr --component runtime --strip
cmake --install "$build" --prefix /usr --component l10n
cmake --install "$build" --prefix /usr --component development
