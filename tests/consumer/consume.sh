#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# consume.sh [companion/]cmake|pkgconfig|qmake|subdirectory|panel
#
# Builds the host against the library that install.sh left, and runs it off-screen. By "subdirectory" it
# takes the project in whole, by "panel" the library that packaging/qt4/build.sh builds. With "companion/"
# the host links the companion. CMakeLists.txt sets the environment.
set -euo pipefail

way=${1##*/}
project=$SOURCE/tests/consumer/$1
build=$WORK/$1
installed=$WORK/moved
sources=$SOURCE/tests/consumer/host
companion=OFF
examples=$SOURCE/examples
if [ "$1" != "$way" ]; then
    build=$WORK/with-$1
    installed=$WORK/companion
    sources=$SOURCE/tests/consumer/companion
    companion=ON
fi
# Their makefiles do not see the library's headers change.
case "$way" in pkgconfig | qmake | panel) rm -rf "$build" ;; esac
mkdir -p "$build"

# What a host tells of its toolkit; Qt 5 is found where the system has it.
cmake_options=()
make_options=()
if [ "$QT" = 4 ]; then
    cmake_options+=(-DQT_QMAKE_EXECUTABLE="$QMAKE")
    for tool in moc rcc uic; do
        cmake_options+=("-DQT_${tool^^}_EXECUTABLE=${QMAKE%/*}/$tool")
    done
    make_options+=(
        MOC="$(pkg-config --variable=moc_location QtCore)"
        LDFLAGS="-Wl,-rpath-link,$TOOLKIT_LIBRARIES"
    )
fi
if [ -n "${EMULATOR:-}" ]; then
    cmake_options+=(-DCMAKE_TOOLCHAIN_FILE="$TOOLCHAIN_FILE" -DFILARIX_ARM_ROOT="$EMULATOR_ROOT")
fi

cmake_build() {
    "$CMAKE" -S "$project" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_CXX_COMPILER_LAUNCHER="$CCACHE" "${cmake_options[@]}" "$@"
    "$CMAKE" --build "$build" --parallel 2
}

# make_build LIBRARY MAKEFILE: against the library in that folder.
make_build() {
    PKG_CONFIG_PATH=$1/pkgconfig:${PKG_CONFIG_PATH:-} make -C "$build" -f "$2" \
        SOURCES="$sources" EXAMPLES="$examples" CXX="$CCACHE $CXX" "${make_options[@]}"
}

# Only at run time is there a device library: hosts need none to link.
libraries=$WORK/device/$LIBDIR
case "$way" in
    cmake)
        cmake_build -DCMAKE_PREFIX_PATH="$installed" -DEXAMPLES="$examples"
        ;;
    pkgconfig)
        make_build "$installed/$LIBDIR" "$project/Makefile"
        libraries=$libraries:$installed/$LIBDIR
        ;;
    qmake)
        cd "$build"
        for file in "$project"/*.pro; do
            QMAKEFEATURES=$installed/$FEATURES "$QMAKE" -o Makefile "$file" EXAMPLES="$examples" \
                QMAKE_CXX="$CCACHE $CXX" QMAKE_LINK="$CXX"
            make
            make clean
        done
        libraries=$libraries:$installed/$LIBDIR
        ;;
    subdirectory)
        # One folder for both, so that the library is built once.
        project=$SOURCE/tests/consumer/subdirectory
        build=$WORK/subdirectory
        cmake_build -DFILARIX_HOST=$companion -DFILARIX_SOURCE="$SOURCE" -DFILARIX_QT="$QT" \
            -DFILARIX_HMIDEVICE_LIBRARY="$DEVICE_LIBRARY" -DBUILD_SHARED_LIBS=OFF 2>&1 | tee "$build/log"
        grep -q 'are shared libraries' "$build/log" || {
            echo "consume: BUILD_SHARED_LIBS=OFF passes without a word" >&2
            exit 1
        }
        ;;
    panel)
        BUILD=$build/library "$SOURCE/packaging/qt4/build.sh" "${TOOLKIT_LIBRARIES%/lib}" \
            "$DEVICE_LIBRARY" "${CXX%g++}" "" "$build/root"
        make_build "$build/root/usr/lib" "$SOURCE/tests/consumer/pkgconfig/Makefile"
        libraries=$libraries:$build/root/usr/lib
        ;;
esac

run=("$LAUNCHER")
[ "$QT" = 5 ] || run+=("$TOOLKIT_LIBRARIES:$libraries")
[ -z "${EMULATOR:-}" ] || run+=("$EMULATOR" "$EMULATOR_ROOT")
case $1 in
    companion/subdirectory) programs=(companion-host) ;;
    companion/*) programs=(host safe-host) ;;
    *) programs=(host) ;;
esac
for program in "${programs[@]}"; do
    LD_LIBRARY_PATH=$libraries "${run[@]}" "$build/$program"
done
