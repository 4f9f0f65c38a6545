#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# consume.sh cmake|pkgconfig|qmake|subdirectory
#
# Builds the host against the library that install.sh left, or, by "subdirectory", takes the project
# in whole, and runs it off-screen. The environment is set by CMakeLists.txt.
set -euo pipefail

way=$1
project=$SOURCE/tests/consumer/$way
build=$WORK/$way
moved=$WORK/moved
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
        cmake_build -DCMAKE_PREFIX_PATH="$moved"
        ;;
    pkgconfig)
        PKG_CONFIG_PATH=$moved/$LIBDIR/pkgconfig make -C "$build" -f "$project/Makefile" \
            SOURCES="$SOURCE/tests/consumer/host" CXX="$CCACHE $CXX"
        libraries=$libraries:$moved/$LIBDIR
        ;;
    qmake)
        cd "$build"
        QMAKEFEATURES=$moved/$FEATURES "$QMAKE" "$project/host.pro" \
            QMAKE_CXX="$CCACHE $CXX" QMAKE_LINK="$CXX"
        make
        libraries=$libraries:$moved/$LIBDIR
        ;;
    subdirectory)
        cmake_build -DFILARIX_SOURCE="$SOURCE" -DFILARIX_HMIDEVICE_LIBRARY="$DEVICE_LIBRARY"
        ;;
esac

LD_LIBRARY_PATH=$libraries exec "$SOURCE/tests/support/sandbox.sh" "$build/host"
