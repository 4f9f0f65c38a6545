// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/primarysurface.h"

#include "display/platform.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include <qpa/qwindowsysteminterface.h>

PrimarySurface::PrimarySurface(QWidget *window, bool touch) : QObject(window), m_window(window)
{
    qApp->setProperty("hmiTouchScreen", touch);
    window->installEventFilter(this);
    announce();
}

void PrimarySurface::set(const QRect &geometry, const QRect &available)
{
    QWindowSystemInterface::handleScreenGeometryChange(QGuiApplication::primaryScreen(), geometry,
                                                       available);
    QWindowSystemInterface::flushWindowSystemEvents(QEventLoop::ExcludeUserInputEvents);
}

bool PrimarySurface::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window)
        return false;
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        announce();
    // The frame of a window that is being shown moves its contents without a word.
    if (event->type() == QEvent::Show)
        QTimer::singleShot(0, this, &PrimarySurface::announce);
    return QObject::eventFilter(watched, event);
}

void PrimarySurface::announce()
{
    const QRect surface(m_window->mapToGlobal(QPoint(0, 0)), m_window->size());
    qApp->setProperty("hmiScreen", surface);
    if (Platform::isDesktop() && QGuiApplication::primaryScreen()->geometry() != surface)
        set(surface, surface);
}
