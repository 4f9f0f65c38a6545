#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# consume.sh [companion/]cmake|pkgconfig|qmake|subdirectory
#
# Builds the host against the library that install.sh left, or, by "subdirectory", takes the project
# in whole, and runs it off-screen. With "companion/" it is a host that links the companion. The environment is set by CMakeLists.txt.
set -euo pipefail

way=${1##*/}
project=$SOURCE/tests/consumer/$1
build=$WORK/$1
installed=$WORK/moved
sources=$SOURCE/tests/consumer/host
companion=OFF
if [ "$1" != "$way" ]; then
    build=$WORK/with-$1
    installed=$WORK/companion
    sources=$SOURCE/tests/consumer/companion
    companion=ON
fi
# Their makefiles do not see the library's headers change.
case "$way" in pkgconfig | qmake) rm -rf "$build" ;; esac
mkdir -p "$build"

cmake_build() {
    "$CMAKE" -S "$project" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_CXX_COMPILER_LAUNCHER="$CCACHE" "$@"
    "$CMAKE" --build "$build" --parallel 2
}

# Only at run time is there a device library: hosts need none to link.
libraries=$WORK/device/$LIBDIR
case "$way" in
    cmake)
        cmake_build -DCMAKE_PREFIX_PATH="$installed"
        ;;
    pkgconfig)
        PKG_CONFIG_PATH=$installed/$LIBDIR/pkgconfig make -C "$build" -f "$project/Makefile" \
            SOURCES="$sources" CXX="$CCACHE $CXX"
        libraries=$libraries:$installed/$LIBDIR
        ;;
    qmake)
        cd "$build"
        QMAKEFEATURES=$installed/$FEATURES "$QMAKE" "$project/host.pro" \
            QMAKE_CXX="$CCACHE $CXX" QMAKE_LINK="$CXX"
        make
        libraries=$libraries:$installed/$LIBDIR
        ;;
    subdirectory)
        project=$SOURCE/tests/consumer/subdirectory
        cmake_build -DFILARIX_HOST=$companion -DFILARIX_SOURCE="$SOURCE" -DFILARIX_HMIDEVICE_LIBRARY="$DEVICE_LIBRARY"
        ;;
esac

LD_LIBRARY_PATH=$libraries exec "$SOURCE/tests/support/sandbox.sh" "$build/host"
