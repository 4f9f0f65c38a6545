#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# recipes.sh
#
# Checks the Buildroot package and the Yocto recipe as far as it goes without their trees: both give
# the build the same options, a build with these options and nothing of the simulator installs what
# the recipes pack, and the makefile does its steps where Buildroot's own macros are stand-ins.
set -euo pipefail
root=$(dirname "$(readlink -f "$0")")/../..
makefile=$root/packaging/integration/buildroot/filarix-module/filarix-module.mk
recipe=$(echo "$root"/packaging/integration/yocto/filarix-module_*.bb)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

echo "== both give the same options"
options_of() { grep -oE -- '-DFILARIX_[A-Z_]+=[A-Z]*' "$1" | sort; }
[ "$(options_of "$makefile")" = "$(options_of "$recipe")" ] || fail "the options differ"
mapfile -t options < <(options_of "$makefile")
[ ${#options[@]} -ge 5 ] || fail "no options found"

echo "== version and licence are the tree's"
version=$(sed -nE 's/^project\(FilarixModule VERSION ([0-9.]+).*/\1/p' "$root/CMakeLists.txt")
[ "$recipe" = "${recipe%_*}_$version.bb" ] || fail "the recipe is not named for $version"
grep -qx "FILARIX_MODULE_VERSION = $version" "$makefile" || fail "the makefile is not for $version"
md5=$(md5sum <"$root/LICENSE" | cut -d' ' -f1)
grep -q "file://LICENSE;md5=$md5\"" "$recipe" || fail "the licence is another"

echo "== a build with these options"
# What is installed is looked at, and no more: nothing is optimised, which takes half the time.
cmake -S "$root" -B "$scratch/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_CXX_FLAGS_RELEASE="-O0 -DNDEBUG" -DFILARIX_QUICK_BUILD=ON \
    -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_LIBDIR=lib "${options[@]}" >"$scratch/log" 2>&1
if grep -q 'not used by the project' "$scratch/log"; then
    fail "an option is not used"
fi
cmake --build "$scratch/build" >"$scratch/log" || { cat "$scratch/log" >&2; fail "it does not build"; }
DESTDIR=$scratch/image cmake --install "$scratch/build" >"$scratch/log"
(cd "$scratch/image" && find . -type f -o -type l) | sort >"$scratch/files"
for file in usr/lib/libFilarixModule.so.1 usr/include/filarix/wmmainwindow.h \
    usr/lib/libFilarixHost.so.1 usr/include/filarix/host/guards/programguard.h \
    usr/lib/cmake/FilarixModule/FilarixModuleConfig.cmake; do
    grep -qx "./$file" "$scratch/files" || fail "$file is not installed"
done
if grep -i hmidevice "$scratch/files"; then
    fail "the stand-in would get onto a panel"
fi
# What Yocto packs by itself, and the two lines of the recipe beyond that.
unpacked=$(grep -vE '^\./usr/(lib/libFilarix(Module|Host)\.so|include/|lib/pkgconfig/|lib/cmake/|lib/qt5/mkspecs/|share/(qt5/translations|doc)/)' \
    "$scratch/files" || true)
[ -z "$unpacked" ] || fail "in none of Yocto's packages: $unpacked"

echo "== the makefile's own steps"
cat >"$scratch/Makefile" <<'MAKE'
qstrip = $(strip $(subst ",,$(1)))
INSTALL = install
BR2_PACKAGE_FILARIX_MODULE_HOST ?= y
BR2_PACKAGE_FILARIX_MODULE_STICK = y
BR2_PACKAGE_FILARIX_MODULE_HMIDEVICE = "/opt/panel/libHMIDevice.so.1"
define cmake-package
options: ; @printf '%s\n' $$(FILARIX_MODULE_CONF_OPTS)
install-target: ; $$($$(FILARIX_MODULE_POST_INSTALL_TARGET_HOOKS))
install-systemd: ; $$(FILARIX_MODULE_INSTALL_INIT_SYSTEMD)
endef
include $(MAKEFILE)
MAKE
# The package's folder of sources is the tree; make's own $(@D) is that of a target.
sed "s#\$(@D)#$root#" "$makefile" >"$scratch/filarix-module.mk"
run_make() { make -s -C "$scratch" MAKEFILE="$scratch/filarix-module.mk" TARGET_DIR="$scratch/target" "$@"; }
run_make options | grep -qx -- '-DFILARIX_HMIDEVICE_LIBRARY=/opt/panel/libHMIDevice.so.1' \
    || fail "the device library does not reach the build"
run_make options | grep -qx -- -DFILARIX_HOST=ON || fail "the companion does not reach the build"
run_make BR2_PACKAGE_FILARIX_MODULE_HOST=n options | grep -qx -- -DFILARIX_HOST=OFF \
    || fail "the companion cannot be left out"
run_make install-target
run_make install-systemd
for file in usr/sbin/filarix-stick etc/filarix/stick.conf usr/lib/tmpfiles.d/filarix-stick.conf \
    usr/lib/udev/rules.d/99-filarix-stick.rules usr/lib/systemd/system/filarix-stick@.service; do
    [ -f "$scratch/target/$file" ] || fail "$file is not installed"
done
[ -x "$scratch/target/usr/sbin/filarix-stick" ] || fail "filarix-stick cannot be run"
# shellcheck disable=SC2016 # the recipe's own variable
tools='\$tools/'
while read -r file; do
    [ -e "$root/packaging/integration/$file" ] || fail "the recipe installs $file, which is not there"
done < <(grep -oE "${tools}[^ ]+" "$recipe" | sed "s#${tools}##")
