#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Installs the library the ways that packagers do, looks at what has come of it, and leaves in WORK
#   moved/      the library alone as hosts on this machine find it, not where it was installed
#   companion/  the library and its companion, likewise
#   sysroot/    both below a sysroot
#   device/     the stand-in device library, out of the linker's sight
# The environment is set by CMakeLists.txt.
set -euo pipefail

fail() {
    echo "install: $*" >&2
    exit 1
}

cd "$WORK"
rm -rf prefix moved companion sysroot device designer check
install() {
    "$CMAKE" --install "$BUILD" "$@" >>install.log
}
: >install.log
for component in runtime development l10n licence; do
    install --prefix "$WORK/prefix" --component "$component"
done
cp -a prefix moved
if [ "$HOST" = 1 ]; then
    for component in host host-development host-l10n; do
        install --prefix "$WORK/prefix" --component "$component"
    done
fi
mv prefix companion
DESTDIR=$WORK/sysroot install --prefix /usr
install --prefix "$WORK/device" --component simulator
[ "$QT" = 4 ] || install --prefix "$WORK/designer" --component designer
[ "$CHECK" = 0 ] || install --prefix "$WORK/check" --component check

# The files, all of them and no other. A plain install brings both libraries.
list_files() {
    (cd "$1" && find . \( -type f -o -type l \) | sed "s,^\./$LIBDIR/,LIBDIR/,; s,^\./,,") \
        | sed 's,\(Targets-\)[a-z]*\(\.cmake\)$,\1CONFIG\2,' | LC_ALL=C sort
}
# The two folders that are the toolkit's own lie elsewhere with the older one.
other_folders=()
[ "$QT" = 5 ] || other_folders=(-e 's,^LIBDIR/qt5/mkspecs/,share/qt5/mkspecs/,' -e 's,^share/qt5/,share/qt4/,')
expect_files() {
    sed -e '' "${other_folders[@]}" "${@:2}" | LC_ALL=C sort | diff -u - <(list_files "$1") \
        || fail "other files in $1"
}
lists=$SOURCE/tests/consumer/installed-files
expect_files moved "$lists.txt"
all_lists=("$lists.txt")
[ "$HOST" = 0 ] || all_lists+=("$lists-host.txt")
expect_files companion "${all_lists[@]}"
expect_files sysroot/usr "${all_lists[@]}"

# The published headers are those of the exported classes, and five that stand beside them.
{
    grep -lr --include='*.h' 'FILARIX_EXPORT' "$SOURCE"/{base,gcode,window,editor,controls,list,tables,transfer}
    printf '%s\n' compat.h filarixpanel.h filarixrows.h filarixversion.h
} | sed 's,.*/,,' | LC_ALL=C sort >expected-headers.txt
find moved/include/filarix -type f -printf '%f\n' | LC_ALL=C sort \
    | diff -u expected-headers.txt - || fail "headers of other classes than the exported ones"

# Those of the companion are the ones with something exported in them.
[ "$HOST" = 0 ] || (cd "$SOURCE/host" && grep -lr --include='*.h' FILARIX_HOST_EXPORT) | LC_ALL=C sort \
    | diff -u - <(cd companion/include/filarix/host && find . -type f -printf '%P\n' | LC_ALL=C sort) \
    || fail "headers of other classes than the companion's exported ones"

# A plain install brings nothing that a panel must not have.
stray=$(find sysroot -name '*HMIDevice*' -o -name 'hmidevice' -o -name '*-panel' -o -name '*-check' -o -name '*_p.h' \
    -o -name '*designer*')
[ -z "$stray" ] || fail "in a plain install: $stray"

# Nothing knows where it was built or first installed.
for text in "$SOURCE" "$BUILD"; do
    ! grep -rIlF "$text" companion sysroot || fail "the files above name $text"
done
libraries=(Module)
[ "$HOST" = 0 ] || libraries+=(Host)
for name in "${libraries[@]}"; do
    library=companion/$LIBDIR/libFilarix$name.so.1
    runpath=$(readelf -d "$library" | sed -n 's/.*R\(UN\)\?PATH.*\[\(.*\)\].*/\2/p')
    # shellcheck disable=SC2016
    [ "$runpath" = '$ORIGIN' ] || fail "run path $runpath"
    readelf -d "$library" | grep -q "SONAME.*\[libFilarix$name\.so\.1\]" || fail "another soname"
done
needed=$(readelf -d "moved/$LIBDIR/libFilarixModule.so.1" | grep 'NEEDED.*FilarixHost' || true)
[ -z "$needed" ] || fail "the library needs its companion"

# The Designer plugin needs nothing but Qt 5.
if [ "$QT" = 5 ]; then
    plugin=designer/$LIBDIR/qt5/plugins/designer/libfilarixmoduledesigner.so
    [ "$(find designer -type f)" = "$plugin" ] || fail "the Designer plugin: $(find designer -type f)"
    needed=$(readelf -d "$plugin" | sed -n 's/.*NEEDED.*\[\(.*\)\].*/\1/p' \
        | grep -vE '^(libQt5(Core|Gui|Widgets)|libstdc\+\+|libgcc_s|libm|libc)\.so' || true)
    [ -z "$needed" ] || fail "the Designer plugin needs $needed"
fi

# The command needs nothing of ours, and of Qt neither widgets nor a display.
if [ "$CHECK" = 1 ]; then
    files=$(cd check && find . -type f | LC_ALL=C sort)
    [ "$files" = $'./bin/filarix-check\n./share/man/man1/filarix-check.1' ] || fail "the command: $files"
    needed=$(readelf -d check/bin/filarix-check | sed -n 's/.*NEEDED.*\[\(.*\)\].*/\1/p' \
        | grep -vE '^(libQt5(Core|Gui)|libstdc\+\+|libgcc_s|libm|libc)\.so' || true)
    [ -z "$needed" ] || fail "the command needs $needed"
fi

# Below a sysroot pkg-config names the folders there.
pkg_config_path=$WORK/sysroot/usr/$LIBDIR/pkgconfig:${PKG_CONFIG_PATH:-}
pkg_config_path+=:$(pkg-config --variable pc_path pkg-config)
package=filarixmodule
[ "$HOST" = 0 ] || package=filarixhost
folders=$(PKG_CONFIG_SYSROOT_DIR=$WORK/sysroot PKG_CONFIG_LIBDIR=$pkg_config_path \
    pkg-config --cflags-only-I --libs-only-L "$package")
has_folder() {
    local flag
    for flag in $folders; do
        if [ "${flag:0:2}" = "$1" ] && [ "${flag:2}" -ef "$2" ]; then
            return
        fi
    done
    fail "below a sysroot pkg-config gives no $1$2 but $folders"
}
has_folder -I "$WORK/sysroot/usr/include/filarix"
[ "$HOST" = 0 ] || has_folder -I "$WORK/sysroot/usr/include/filarix/host"
has_folder -L "$WORK/sysroot/usr/$LIBDIR"
