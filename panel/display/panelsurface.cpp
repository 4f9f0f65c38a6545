// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// The toolkit's private headers use the keywords.
#undef QT_NO_KEYWORDS

#include "display/panelsurface.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformintegration.h>
#include <qpa/qwindowsysteminterface.h>

const int SurfaceLoan::kTallPanel;

namespace {

void setScreen(const QRect &geometry, const QRect &available)
{
    QWindowSystemInterface::handleScreenGeometryChange(QGuiApplication::primaryScreen(), geometry,
                                                       available);
    QWindowSystemInterface::flushWindowSystemEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

PanelSurface::PanelSurface(QWidget *window, bool touch) : QObject(window), m_window(window)
{
    qApp->setProperty("hmiTouchScreen", touch);
    window->installEventFilter(this);
    announce();
}

bool PanelSurface::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window)
        return false;
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        announce();
    // The frame of a window that is being shown moves its contents without a word.
    if (event->type() == QEvent::Show)
        QTimer::singleShot(0, this, &PanelSurface::announce);
    return QObject::eventFilter(watched, event);
}

bool PanelSurface::isDesktop()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"))
           || platform == QLatin1String("offscreen");
}

bool PanelSurface::hasWindowManager()
{
    return QGuiApplicationPrivate::platformIntegration()->hasCapability(
        QPlatformIntegration::WindowManagement);
}

void PanelSurface::announce()
{
    const QRect surface(m_window->mapToGlobal(QPoint(0, 0)), m_window->size());
    qApp->setProperty("hmiScreen", surface);
    if (isDesktop() && QGuiApplication::primaryScreen()->geometry() != surface)
        setScreen(surface, surface);
}

SurfaceLoan::SurfaceLoan(int height, int width)
    : m_own(QGuiApplication::primaryScreen()->availableGeometry())
{
    const QRect lent(m_own.topLeft(), QSize(width > 0 ? width : m_own.width(), height));
    setScreen(QGuiApplication::primaryScreen()->geometry(), lent);
}

SurfaceLoan::~SurfaceLoan()
{
    setScreen(QGuiApplication::primaryScreen()->geometry(), m_own);
}
