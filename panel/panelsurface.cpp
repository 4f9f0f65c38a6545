// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "panelsurface.h"

#include <QEvent>
#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include <qpa/qwindowsysteminterface.h>

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

void PanelSurface::announce()
{
    const QRect surface(m_window->mapToGlobal(QPoint(0, 0)), m_window->size());
    qApp->setProperty("hmiScreen", surface);
    QScreen *screen = QGuiApplication::primaryScreen();
    if (!isDesktop() || !screen || screen->geometry() == surface)
        return;
    QWindowSystemInterface::handleScreenGeometryChange(screen, surface, surface);
    QWindowSystemInterface::flushWindowSystemEvents(QEventLoop::ExcludeUserInputEvents);
}
