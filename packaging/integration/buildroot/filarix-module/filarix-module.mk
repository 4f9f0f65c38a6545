################################################################################
#
# filarix-module
#
################################################################################

# The sources are named by FILARIX_MODULE_OVERRIDE_SRCDIR in local.mk.
FILARIX_MODULE_VERSION = 1.0.0
FILARIX_MODULE_SITE_METHOD = local
FILARIX_MODULE_SITE = $(FILARIX_MODULE_OVERRIDE_SRCDIR)
FILARIX_MODULE_LICENSE = MIT
FILARIX_MODULE_LICENSE_FILES = LICENSE
FILARIX_MODULE_INSTALL_STAGING = YES
FILARIX_MODULE_DEPENDENCIES = qt5base qt5tools

FILARIX_MODULE_CONF_OPTS = \
	-DFILARIX_SIMULATOR=OFF \
	-DFILARIX_CHECK=OFF \
	-DFILARIX_PANEL=OFF \
	-DFILARIX_EXAMPLES=OFF \
	-DFILARIX_DESIGNER=OFF \
	-DFILARIX_TESTS=OFF \
	-DFILARIX_HMIDEVICE_LIBRARY=$(call qstrip,$(BR2_PACKAGE_FILARIX_MODULE_HMIDEVICE))

ifeq ($(BR2_PACKAGE_FILARIX_MODULE_HOST),y)
FILARIX_MODULE_CONF_OPTS += -DFILARIX_HOST=ON
else
FILARIX_MODULE_CONF_OPTS += -DFILARIX_HOST=OFF
endif

ifeq ($(BR2_PACKAGE_FILARIX_MODULE_STICK),y)
FILARIX_MODULE_STICK_DIR = $(@D)/packaging/integration

define FILARIX_MODULE_INSTALL_STICK
	$(INSTALL) -D -m 0755 $(FILARIX_MODULE_STICK_DIR)/filarix-stick \
		$(TARGET_DIR)/usr/sbin/filarix-stick
	$(INSTALL) -D -m 0644 $(FILARIX_MODULE_STICK_DIR)/stick.conf \
		$(TARGET_DIR)/etc/filarix/stick.conf
endef
FILARIX_MODULE_POST_INSTALL_TARGET_HOOKS += FILARIX_MODULE_INSTALL_STICK

define FILARIX_MODULE_INSTALL_INIT_SYSTEMD
	$(INSTALL) -D -m 0644 $(FILARIX_MODULE_STICK_DIR)/filarix-stick@.service \
		$(TARGET_DIR)/usr/lib/systemd/system/filarix-stick@.service
	$(INSTALL) -D -m 0644 $(FILARIX_MODULE_STICK_DIR)/filarix-stick.tmpfiles \
		$(TARGET_DIR)/usr/lib/tmpfiles.d/filarix-stick.conf
	$(INSTALL) -D -m 0644 $(FILARIX_MODULE_STICK_DIR)/99-filarix-stick.rules \
		$(TARGET_DIR)/usr/lib/udev/rules.d/99-filarix-stick.rules
endef
endif

$(eval $(cmake-package))
