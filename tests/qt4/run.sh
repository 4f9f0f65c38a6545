#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# run.sh DIR [CTEST OPTION ...]
#
# Builds against the Qt 4.8 in DIR and passes the tests there; ./test --qt4 runs it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."

toolkit=$(readlink -f "${1:?the folder of a Qt 4.8 is missing}")
shift
[ -x "$toolkit/bin/qmake" ] || {
    echo "qt4: there is no bin/qmake in $toolkit" >&2
    exit 1
}
version=$("$toolkit/bin/qmake" -query QT_VERSION)
[[ $version == 4.8.* ]] || {
    echo "qt4: the toolkit in $toolkit is Qt $version" >&2
    exit 1
}

cmake/ensure-packages.sh binutils
preset=qt4
options=()
patience=()
machine=$(readelf -h "$toolkit/lib/libQtCore.so.4" | sed -n 's/^ *Machine: *//p')
if [ "$machine" = ARM ]; then
    cmake/ensure-packages.sh g++-arm-linux-gnueabihf qemu-user
    preset=qt4-arm
    # Two programs in an emulator share what is too slow for one: a limit of time may pass by chance. What
    # fails is tried once more, and ctest's lines show both.
    patience=(--repeat until-pass:2)
    # Programs that look at "/" see the emulator's: it has what every machine's has.
    root=$PWD/build/qt4-arm-root
    mkdir -p "$root/usr"
    ln -sfn /usr/arm-linux-gnueabihf/lib "$root/lib"
    options+=(
        -DFILARIX_ARM_ROOT="$root"
        -DQt5LinguistTools_DIR="$(qmake -qt=qt5 -query QT_INSTALL_LIBS)/cmake/Qt5LinguistTools"
    )
else
    # What the toolkit's libraries for X11 need of the system.
    cmake/ensure-packages.sh libfontconfig1 libfreetype6 libpng16-16 libsm6 libx11-6 libxcursor1 \
        libxext6 libxfixes3 libxi6 libxrandr2 libxrender1
fi

# CMake remembers a toolkit's places: another one starts anew.
build=build/$preset
if [ "$(cat "$build/toolkit" 2>/dev/null)" != "$toolkit" ]; then
    rm -rf "$build"
    mkdir -p "$build"
fi
cmake --preset "$preset" "${options[@]}" -DQT_QMAKE_EXECUTABLE="$toolkit/bin/qmake" \
    -DQT_MOC_EXECUTABLE="$toolkit/bin/moc" -DQT_RCC_EXECUTABLE="$toolkit/bin/rcc" \
    -DQT_UIC_EXECUTABLE="$toolkit/bin/uic"
echo "$toolkit" >"$build/toolkit"
cmake --build --preset "$preset" --parallel "$(nproc)"

# What is compared with is the build for Qt 5 as it is without the panel program.
cmake -S . -B build/no-panel -G Ninja -DFILARIX_PANEL=OFF -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
echo "The panel program and its tests are for Qt 5 alone."
reasons=(tests/qt4/left-out.txt)
if [ "$machine" = ARM ]; then
    reasons+=(tests/qt4/left-out-arm.txt)
fi
if readelf -d "$toolkit/lib/libQtGui.so.4" | grep 'NEEDED.*libX11' >/dev/null; then
    reasons+=(tests/qt4/left-out-x11.txt)
fi
tests/support/left-out.sh "Qt $version" <(cat "${reasons[@]}") build/no-panel "$build"
exec ctest --preset "$preset" --parallel "$(nproc)" --no-tests=error "${patience[@]}" "$@"
