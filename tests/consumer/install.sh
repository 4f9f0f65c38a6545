#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Installs the library the ways that packagers do, looks at what has come of it, and leaves in WORK
#   moved/    the library as hosts on this machine find it, not where it was installed
#   sysroot/  the library below a sysroot
#   device/   the stand-in device library, out of the linker's sight
# The environment is set by CMakeLists.txt.
set -euo pipefail

fail() {
    echo "install: $*" >&2
    exit 1
}

cd "$WORK"
rm -rf prefix moved sysroot device designer
install() {
    "$CMAKE" --install "$BUILD" "$@" >>install.log
}
: >install.log
install --prefix "$WORK/prefix" --component runtime
install --prefix "$WORK/prefix" --component development
install --prefix "$WORK/prefix" --component l10n
mv prefix moved
DESTDIR=$WORK/sysroot install --prefix /usr
install --prefix "$WORK/device" --component simulator
install --prefix "$WORK/designer" --component designer

# The files, all of them and no other.
(cd moved && find . \( -type f -o -type l \) | sed "s,^\./$LIBDIR/,LIBDIR/,; s,^\./,,") \
    | sed 's,\(Targets-\)[a-z]*\(\.cmake\)$,\1CONFIG\2,' | LC_ALL=C sort >files.txt
diff -u "$SOURCE/tests/consumer/installed-files.txt" files.txt \
    || fail "other files than tests/consumer/installed-files.txt says"

# The published headers are those of the exported classes, and four that stand beside them.
{
    grep -lr --include='*.h' 'FILARIX_EXPORT' "$SOURCE"/{base,gcode,window,editor,controls,list,tables,transfer}
    printf '%s\n' compat.h filarixpanel.h filarixrows.h
} | sed 's,.*/,,' | LC_ALL=C sort >expected-headers.txt
find moved/include/filarix -type f -printf '%f\n' | LC_ALL=C sort \
    | diff -u expected-headers.txt - || fail "headers of other classes than the exported ones"

# A plain install brings nothing that a panel must not have.
stray=$(find sysroot -name '*HMIDevice*' -o -name 'hmidevice' -o -name '*-panel' -o -name '*_p.h' \
    -o -name '*designer*')
[ -z "$stray" ] || fail "in a plain install: $stray"

# Nothing knows where it was built or first installed.
for text in "$SOURCE" "$BUILD"; do
    ! grep -rIlF "$text" moved sysroot || fail "the files above name $text"
done
library=moved/$LIBDIR/libFilarixModule.so.1
runpath=$(readelf -d "$library" | sed -n 's/.*R\(UN\)\?PATH.*\[\(.*\)\].*/\2/p')
# shellcheck disable=SC2016
[ "$runpath" = '$ORIGIN' ] || fail "run path $runpath"
readelf -d "$library" | grep -q 'SONAME.*\[libFilarixModule\.so\.1\]' || fail "another soname"

# The Designer plugin needs nothing but Qt.
plugin=designer/$LIBDIR/qt5/plugins/designer/libfilarixmoduledesigner.so
[ "$(find designer -type f)" = "$plugin" ] || fail "the Designer plugin: $(find designer -type f)"
needed=$(readelf -d "$plugin" | sed -n 's/.*NEEDED.*\[\(.*\)\].*/\1/p' \
    | grep -vE '^(libQt5(Core|Gui|Widgets)|libstdc\+\+|libgcc_s|libm|libc)\.so' || true)
[ -z "$needed" ] || fail "the Designer plugin needs $needed"

# Below a sysroot pkg-config names the folders there.
pkg_config_path=$WORK/sysroot/usr/$LIBDIR/pkgconfig:$(pkg-config --variable pc_path pkg-config)
folders=$(PKG_CONFIG_SYSROOT_DIR=$WORK/sysroot PKG_CONFIG_LIBDIR=$pkg_config_path \
    pkg-config --cflags-only-I --libs-only-L filarixmodule)
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
has_folder -L "$WORK/sysroot/usr/$LIBDIR"
