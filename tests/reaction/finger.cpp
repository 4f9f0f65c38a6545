// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "finger.h"

#include <QWindow>

#include <qpa/qwindowsysteminterface.h>

Finger::Finger(QElapsedTimer *clock) : m_clock(clock) {}

Finger::~Finger()
{
    wait();
}

void Finger::touch(QWindow *window, const QPoint &point, bool isTap, int afterMs)
{
    wait();
    m_window = window;
    m_point = point;
    m_isTap = isTap;
    m_afterMs = afterMs;
    m_touchedAt = -1;
    start();
}

void Finger::run()
{
    msleep(static_cast<unsigned long>(m_afterMs));
    m_touchedAt = m_clock->nsecsElapsed();
    send(m_window, m_point, QEvent::MouseButtonPress, Qt::LeftButton);
    if (m_isTap)
        send(m_window, m_point, QEvent::MouseButtonRelease, Qt::NoButton);
}

void Finger::slideOff(QWindow *window)
{
    const QPoint off(-50, -50);
    send(window, off, QEvent::MouseMove, Qt::LeftButton);
    send(window, off, QEvent::MouseButtonRelease, Qt::NoButton);
    QWindowSystemInterface::flushWindowSystemEvents();
}

void Finger::send(QWindow *window, const QPoint &point, QEvent::Type type, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QWindowSystemInterface::handleMouseEvent(window, point, window->mapToGlobal(point), buttons,
                                             button, type);
}
