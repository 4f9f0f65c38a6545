// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// The toolkit's private headers use the keywords.
#undef QT_NO_KEYWORDS

#include "display/glassinput.h"

#include "display/panelglass.h"
#include "display/turnedplatform.h"

#include <private/qguiapplication_p.h>

GlassInput::GlassInput(const PanelGlass *glass, const TurnedPlatform *platform)
    : m_glass(glass), m_platform(platform)
{
    QWindowSystemInterfacePrivate::installWindowSystemEventHandler(this);
}

GlassInput::~GlassInput()
{
    QWindowSystemInterfacePrivate::removeWindowSystemEventhandler(this);
}

bool GlassInput::sendEvent(Reports::WindowSystemEvent *event)
{
    switch (event->type) {
    case Reports::Mouse: {
        Reports::MouseEvent *mouse = static_cast<Reports::MouseEvent *>(event);
        if (!isAboutGlass(mouse))
            break;
        turnPointer(mouse);
        if (mouse->buttonType == QEvent::MouseButtonPress)
            activateAt(mouse->globalPos);
        else if (mouse->buttons == Qt::NoButton)
            moveOver(mouse->globalPos);
        break;
    }
    case Reports::Wheel:
        if (isAboutGlass(static_cast<Reports::WheelEvent *>(event)))
            turnPointer(static_cast<Reports::WheelEvent *>(event));
        break;
    case Reports::Touch:
        if (isAboutGlass(static_cast<Reports::TouchEvent *>(event)))
            turnTouch(static_cast<Reports::TouchEvent *>(event));
        break;
    case Reports::Key: {
        Reports::KeyEvent *key = static_cast<Reports::KeyEvent *>(event);
        if (isAboutGlass(key))
            key->window = QGuiApplication::focusWindow();
        break;
    }
    case Reports::Enter:
        // Which window it is, the first movement tells.
        if (static_cast<Reports::EnterEvent *>(event)->enter == m_glass)
            return true;
        break;
    case Reports::Leave:
        if (static_cast<Reports::LeaveEvent *>(event)->leave == m_glass) {
            leave();
            return true;
        }
        break;
    case Reports::ActivatedWindow: {
        Reports::ActivatedWindowEvent *activation =
            static_cast<Reports::ActivatedWindowEvent *>(event);
        if (activation->activated == m_glass)
            activation->activated = m_platform->topWindow();
        break;
    }
    case Reports::Close: {
        Reports::CloseEvent *close = static_cast<Reports::CloseEvent *>(event);
        if (close->window == m_glass)
            close->window = m_main;
        break;
    }
    default:
        break;
    }
    return QWindowSystemEventHandler::sendEvent(event);
}

/// The drivers of a display that is this program's alone name no window.
bool GlassInput::isAboutGlass(const Reports::UserEvent *event) const
{
    return event->window == m_glass || event->nullWindow();
}

template<typename Event>
void GlassInput::turnPointer(Event *event) const
{
    // A mouse driver keeps the pointer on the toolkit's screen, which is the surface.
    if (event->nullWindow() && m_platform->drawsPointer())
        return;
    event->globalPos = event->localPos = m_glass->toSurface(event->localPos);
    event->window = nullptr;
    event->flags |= Reports::WindowSystemEvent::NullWindow;
}

void GlassInput::turnTouch(Reports::TouchEvent *event) const
{
    const QRect surface = m_platform->surface();
    for (QTouchEvent::TouchPoint &point : event->points) {
        QPointF onGlass = point.screenPos();
        // A touch driver stretches the display over the toolkit's screen, which is the surface.
        if (event->nullWindow())
            onGlass = QPointF(onGlass.x() * m_glass->width() / surface.width(),
                              onGlass.y() * m_glass->height() / surface.height());
        else
            onGlass -= m_glass->mapToGlobal(QPoint(0, 0));
        point.setScreenPos(m_glass->toSurface(onGlass));
        if (event->touchType == QEvent::TouchBegin)
            activateAt(point.screenPos());
    }
    event->window = nullptr;
    event->flags |= Reports::WindowSystemEvent::NullWindow;
}

/// Activates a pressed window as a desktop does, but does not raise it: that would hide a small
/// dialog behind the main window for good.
void GlassInput::activateAt(const QPointF &point) const
{
    QWindow *window = QGuiApplication::topLevelAt(point.toPoint());
    const bool takesFocus =
        window && (window->type() == Qt::Window || window->type() == Qt::Dialog);
    if (takesFocus && window != QGuiApplication::focusWindow()
        && !QGuiApplicationPrivate::instance()->isWindowBlocked(window))
        window->requestActivate();
}

void GlassInput::moveOver(const QPointF &point)
{
    QWindow *window = QGuiApplication::topLevelAt(point.toPoint());
    if (window == m_under)
        return;
    leave();
    m_under = window;
    if (!window)
        return;
    Reports::EnterEvent enter(window, point - window->position(), point);
    QWindowSystemEventHandler::sendEvent(&enter);
}

void GlassInput::leave()
{
    if (m_under) {
        Reports::LeaveEvent leave(m_under);
        QWindowSystemEventHandler::sendEvent(&leave);
    }
    m_under = nullptr;
}
