// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// The toolkit's private headers use the keywords.
#undef QT_NO_KEYWORDS

#include "display/platform.h"

#include <private/qguiapplication_p.h>
#include <qpa/qplatformintegration.h>
#include <qpa/qplatformnativeinterface.h>

bool Platform::isDesktop()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"))
           || platform == QLatin1String("offscreen");
}

bool Platform::hasWindowManager()
{
    return QGuiApplicationPrivate::platformIntegration()->hasCapability(
        QPlatformIntegration::WindowManagement);
}

bool Platform::hasBell()
{
    const QObject *native = QGuiApplication::platformNativeInterface();
    return native && native->metaObject()->indexOfMethod("beep()") >= 0;
}
