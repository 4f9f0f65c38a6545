// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "hand.h"

#include "display/panelglass.h"

#include <QApplication>
#include <QTouchDevice>
#include <QWidget>

#include <qpa/qwindowsysteminterface.h>

namespace {

typedef QWindowSystemInterface Wsi;

QTouchDevice *touchScreen()
{
    static QTouchDevice *device = nullptr;
    if (!device) {
        device = new QTouchDevice;
        device->setName(QLatin1String("monkey"));
        device->setType(QTouchDevice::TouchScreen);
        device->setCapabilities(QTouchDevice::Position | QTouchDevice::Area);
        Wsi::registerTouchDevice(device);
    }
    return device;
}

Wsi::TouchPoint touchPoint(int id, const QPoint &point, Qt::TouchPointState state)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    Wsi::TouchPoint touch;
    touch.id = id;
    touch.state = state;
    touch.pressure = state == Qt::TouchPointReleased ? 0 : 1;
    touch.area = QRectF(point - QPoint(6, 6), QSizeF(12, 12));
    touch.normalPosition = QPointF(qreal(point.x() - screen.x()) / screen.width(),
                                   qreal(point.y() - screen.y()) / screen.height());
    return touch;
}

/// The window that the platform knows when the whole panel is turned: all input is reported there.
PanelGlass *glass()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        if (PanelGlass *found = qobject_cast<PanelGlass *>(window))
            return found;
    }
    return nullptr;
}

/// Where the platform sees a point of the surface.
QPoint onDisplay(const QPoint &point)
{
    const PanelGlass *turned = glass();
    return turned ? turned->mapToGlobal(turned->toGlass(point).toPoint()) : point;
}

/// The window that the platform reports something about \a window as.
QWindow *platformWindow(const QWidget *window)
{
    QWindow *turned = glass();
    return turned ? turned : window->windowHandle();
}

} // namespace

void Hand::press(const QPoint &point, Tool tool)
{
    QWidget *window = windowAt(point);
    if (!window || !window->windowHandle())
        return;
    if (!QApplication::activeModalWidget())
        activate(window);
    m_target = platformWindow(window);
    m_point = onDisplay(point);
    m_tool = tool;
    report(QEvent::MouseButtonPress, Qt::TouchPointPressed);
}

void Hand::move(const QPoint &point)
{
    m_point = onDisplay(point);
    report(QEvent::MouseMove, Qt::TouchPointMoved);
}

void Hand::release()
{
    report(QEvent::MouseButtonRelease, Qt::TouchPointReleased);
    m_target = nullptr;
}

// Until it is released the hand belongs to the window that it pressed on.
void Hand::report(QEvent::Type mouse, Qt::TouchPointState touch)
{
    if (!m_target)
        return;
    if (isTouching()) {
        QList<Wsi::TouchPoint> points{touchPoint(1, m_point, touch)};
        if (m_tool == TwoFingers)
            points.append(touchPoint(2, m_point + QPoint(60, 40), touch));
        Wsi::handleTouchEvent(m_target, touchScreen(), points);
        return;
    }
    const bool isDown = mouse != QEvent::MouseButtonRelease;
    Wsi::handleMouseEvent(m_target, m_target->mapFromGlobal(m_point), m_point,
                          isDown ? button() : Qt::NoButton,
                          mouse == QEvent::MouseMove ? Qt::NoButton : button(), mouse);
}

void Hand::wheel(const QPoint &point, int delta)
{
    QWidget *window = windowAt(point);
    if (window && window->windowHandle())
        Wsi::handleWheelEvent(window->windowHandle(), window->mapFromGlobal(point), point, QPoint(),
                              QPoint(0, delta));
}

void Hand::key(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString &text,
               bool isRepeat)
{
    QWindow *turned = glass();
    if (QWindow *window = turned ? turned : QGuiApplication::focusWindow())
        Wsi::handleKeyEvent(window, type, key, modifiers, text, isRepeat);
}

bool Hand::isTurned()
{
    return glass();
}

void Hand::close(QWidget *window)
{
    if (QWindow *target = platformWindow(window))
        Wsi::handleCloseEvent(target);
}

bool Hand::activate(QWidget *window)
{
    // The glass sees to that itself.
    if (glass() || window->windowType() == Qt::Popup || !window->windowHandle()
        || window->windowHandle() == QGuiApplication::focusWindow())
        return false;
    Wsi::handleWindowActivated(window->windowHandle(), Qt::ActiveWindowFocusReason);
    return true;
}

bool Hand::isIdle()
{
    return Wsi::windowSystemEventsQueued() == 0;
}

QWidget *Hand::windowAt(const QPoint &point)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal->isVisible() && modal->geometry().contains(point))
        return modal;
    QWidget *found = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!window->isVisible() || !window->geometry().contains(point))
            continue;
        // Whatever lies over another window is the smaller one here.
        if (!found || window->width() < found->width())
            found = window;
    }
    return found;
}
