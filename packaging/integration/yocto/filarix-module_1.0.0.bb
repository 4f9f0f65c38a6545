SUMMARY = "The operator's desk of a winding machine, as a library of Qt widgets"
LICENSE = "MIT"
LIC_FILES_CHKSUM = "file://LICENSE;md5=79a262fcda6958ab19a85b10feacbffd"

# The sources are named by EXTERNALSRC:pn-filarix-module in local.conf.
inherit cmake_qt5 externalsrc systemd

# The tools that make the translations are the build machine's.
DEPENDS = "qtbase qttools-native qttools"

# The panel's own libHMIDevice.so.1, to link the module with; empty leaves its symbols to the host.
FILARIX_HMIDEVICE_LIBRARY ?= ""

EXTRA_OECMAKE = "\
    -DFILARIX_SIMULATOR=OFF \
    -DFILARIX_CHECK=OFF \
    -DFILARIX_PANEL=OFF \
    -DFILARIX_EXAMPLES=OFF \
    -DFILARIX_DESIGNER=OFF \
    -DFILARIX_TESTS=OFF \
    -DFILARIX_HMIDEVICE_LIBRARY=${FILARIX_HMIDEVICE_LIBRARY} \
"

# The companion library, for hosts that link it.
PACKAGECONFIG ??= "host"
PACKAGECONFIG[host] = "-DFILARIX_HOST=ON,-DFILARIX_HOST=OFF"

do_install:append() {
    tools=${S}/packaging/integration
    install -D -m 0755 $tools/filarix-stick ${D}${sbindir}/filarix-stick
    install -D -m 0644 $tools/stick.conf ${D}${sysconfdir}/filarix/stick.conf
    install -D -m 0644 $tools/99-filarix-stick.rules \
        ${D}${nonarch_base_libdir}/udev/rules.d/99-filarix-stick.rules
    install -D -m 0644 $tools/filarix-stick@.service \
        ${D}${systemd_system_unitdir}/filarix-stick@.service
    install -D -m 0644 $tools/filarix-stick.tmpfiles \
        ${D}${nonarch_libdir}/tmpfiles.d/filarix-stick.conf
}

PACKAGES =+ "${PN}-host ${PN}-stick"
SUMMARY:${PN}-host = "What stands between the operator and the library's hazards"
FILES:${PN}-host = "\
    ${libdir}/libFilarixHost.so.* \
    ${datadir}/qt5/translations/filarixhost_* \
"
SUMMARY:${PN}-stick = "Mounts USB sticks for the operator's desk"
FILES:${PN}-stick = "\
    ${sbindir}/filarix-stick \
    ${sysconfdir}/filarix \
    ${nonarch_base_libdir}/udev \
    ${systemd_system_unitdir} \
    ${nonarch_libdir}/tmpfiles.d \
"
CONFFILES:${PN}-stick = "${sysconfdir}/filarix/stick.conf"
RDEPENDS:${PN}-stick = "util-linux-blkid util-linux-mount util-linux-umount"

# A template: it is started for each stick, by the device manager.
SYSTEMD_PACKAGES = ""

FILES:${PN} += "${datadir}/qt5/translations"

# Beside what a library's development package takes by itself.
FILES:${PN}-dev += "${libdir}/cmake ${libdir}/qt5/mkspecs"
