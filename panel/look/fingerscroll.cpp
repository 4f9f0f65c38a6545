// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/fingerscroll.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QDateTime>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QScrollPrepareEvent>
#include <QScroller>
#include <QSplitterHandle>
#include <QTimer>
#include <QWindow>

namespace {

// A gloved finger that taps slides by 2 mm.
const int tapPixels = 14;
const double fastestMetresPerSecond = 3;
// A finger that moves along one side moves nothing along the other.
const double axisLock = 0.6;

bool canMove(const QScrollBar *bar)
{
    return bar->maximum() > bar->minimum();
}

/// A table without a bar below has no columns out of sight.
bool canMoveSideways(const QAbstractScrollArea *area)
{
    return area->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff
           && canMove(area->horizontalScrollBar());
}

bool canMove(const QAbstractScrollArea *area)
{
    return canMove(area->verticalScrollBar()) || canMoveSideways(area);
}

/// What takes a drag for itself.
bool isDragged(const QWidget *widget)
{
    return qobject_cast<const QAbstractSlider *>(widget)
           || qobject_cast<const QHeaderView *>(widget)
           || qobject_cast<const QSplitterHandle *>(widget);
}

/// The innermost area that a finger on \a widget moves, or null.
QAbstractScrollArea *areaAround(QWidget *widget)
{
    for (QWidget *at = widget; at; at = at->parentWidget()) {
        if (isDragged(at))
            return nullptr;
        QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(at);
        if (area && canMove(area))
            return area;
        if (at->isWindow())
            return nullptr;
    }
    return nullptr;
}

/// A row of a list moves with the finger, and not by leaps.
void moveByPixels(QAbstractScrollArea *area)
{
    if (QAbstractItemView *view = qobject_cast<QAbstractItemView *>(area)) {
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    }
}

/// Pixels by which a step of the bar moves the content. An editor's bar counts lines.
double stepHeight(const QAbstractScrollArea *area)
{
    const QPlainTextEdit *editor = qobject_cast<const QPlainTextEdit *>(area);
    if (!editor)
        return 1;
    // A line in sight: the way to one far off is counted line by line.
    return qMax(1, editor->cursorRect(editor->cursorForPosition(QPoint())).height());
}

QPoint barsOf(const QAbstractScrollArea *area)
{
    return QPoint(area->horizontalScrollBar()->value(), area->verticalScrollBar()->value());
}

/// Overshooting would move what stands beside, such as the numbers of lines.
void setProperties(QScroller *scroller)
{
    QScrollerProperties wanted = scroller->scrollerProperties();
    const auto set = [&wanted](QScrollerProperties::ScrollMetric metric, const QVariant &value) {
        wanted.setScrollMetric(metric, value);
    };
    set(QScrollerProperties::DragStartDistance, tapPixels / scroller->pixelPerMeter().x());
    set(QScrollerProperties::AxisLockThreshold, axisLock);
    set(QScrollerProperties::MaximumVelocity, fastestMetresPerSecond);
    const QVariant off = QVariant::fromValue<QScrollerProperties::OvershootPolicy>(
        QScrollerProperties::OvershootAlwaysOff);
    set(QScrollerProperties::HorizontalOvershootPolicy, off);
    set(QScrollerProperties::VerticalOvershootPolicy, off);
    scroller->setScrollerProperties(wanted);
}

/// What a press that is handed on is known by, also where a widget leaves it to its parent.
bool isHandedOn(const QMouseEvent &event)
{
    return event.source() == Qt::MouseEventSynthesizedByApplication;
}

/// Where nobody says when the finger moved, it moved now.
qint64 timeOf(const QMouseEvent &event)
{
    return event.timestamp() > 0 ? qint64(event.timestamp()) : QDateTime::currentMSecsSinceEpoch();
}

std::unique_ptr<QMouseEvent> copyOf(const QMouseEvent &event)
{
    std::unique_ptr<QMouseEvent> copy(new QMouseEvent(
        event.type(), event.localPos(), event.windowPos(), event.screenPos(), event.button(),
        event.buttons(), event.modifiers(), Qt::MouseEventSynthesizedByApplication));
    copy->setTimestamp(event.timestamp());
    return copy;
}

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
}

QWidget *widgetOf(QObject *window)
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        if (widget->windowHandle() == window)
            return widget;
    }
    return nullptr;
}

/// As a press does that nobody holds.
void giveFocus(QWidget *widget)
{
    for (QWidget *at = widget; at; at = at->isWindow() ? nullptr : at->parentWidget()) {
        if (at->isEnabled() && (at->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus)
            return at->setFocus(Qt::MouseFocusReason);
    }
}

QAbstractScrollArea *areaOf(QWidget *viewport)
{
    QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(viewport->parentWidget());
    return area && area->viewport() == viewport ? area : nullptr;
}

} // namespace

// The toolkit's own gesture would hand a press on after a while, and a finger that rests before it
// moves would choose a row. So the scroller gets its input here, and does the moving alone. The
// older toolkit has no scroller, which is why the panel has this and the library has not.
FingerScroll::FingerScroll(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

FingerScroll::~FingerScroll()
{
    releaseFocus();
}

int FingerScroll::tapDistance()
{
    return tapPixels;
}

bool FingerScroll::eventFilter(QObject *watched, QEvent *event)
{
    QWidget *widget = qobject_cast<QWidget *>(watched);
    if (!widget) {
        if (isPress(event->type()) && watched->isWindowType())
            keepFocus(watched, *static_cast<QMouseEvent *>(event));
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(widget, *static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return release(widget, *static_cast<QMouseEvent *>(event));
    case QEvent::WindowBlocked:
        // What waits would reach behind the dialog that has come, and open its keypad once more.
        if (m_receiver && m_receiver->window() == widget)
            forget();
        return false;
    case QEvent::ScrollPrepare:
        return prepare(areaOf(widget), event);
    case QEvent::Scroll:
        return scroll(areaOf(widget), event);
    default:
        return false;
    }
}

/// The toolkit gives the focus before a filter sees the press, and a list that gets it chooses its
/// first row.
void FingerScroll::keepFocus(QObject *window, const QMouseEvent &event)
{
    releaseFocus();
    QWidget *top = widgetOf(window);
    QWidget *receiver = top ? top->childAt(event.pos()) : nullptr;
    if (event.button() != Qt::LeftButton || !areaAround(receiver))
        return;
    const auto note = [this](QWidget *taker) {
        m_focusTakers.append(qMakePair(QPointer<QWidget>(taker), taker->focusPolicy()));
    };
    for (QWidget *at = receiver; at && !at->isWindow(); at = at->parentWidget()) {
        note(at);
        if (at->focusProxy())
            note(at->focusProxy());
    }
    // All are noted by now: a policy that is set goes to the proxy, too.
    for (const auto &taker : qAsConst(m_focusTakers))
        taker.first->setFocusPolicy(Qt::NoFocus);
}

/// Proxies come last, for they get the policies of the others.
void FingerScroll::releaseFocus()
{
    for (bool hasProxy : {true, false}) {
        for (const auto &taker : qAsConst(m_focusTakers)) {
            if (taker.first && bool(taker.first->focusProxy()) == hasProxy)
                taker.first->setFocusPolicy(taker.second);
        }
    }
    m_focusTakers.clear();
}

/// A press that a child has left to its parent was looked at already.
bool FingerScroll::press(QWidget *receiver, const QMouseEvent &event)
{
    releaseFocus();
    if (event.button() != Qt::LeftButton || isHandedOn(event) || receiver->childAt(event.pos()))
        return false;
    if (event.type() == QEvent::MouseButtonDblClick && m_press && receiver == m_receiver) {
        m_second = copyOf(event);
        return true;
    }
    forget();
    m_area = areaAround(receiver);
    if (!m_area)
        return false;
    moveByPixels(m_area);
    QScroller *scroller = QScroller::scroller(m_area->viewport());
    setProperties(scroller);
    m_left = barsOf(m_area);
    input(QScroller::InputPress, event);
    // One that moved too slowly to be seen has stopped, and takes the press now.
    if (scroller->state() == QScroller::Inactive)
        input(QScroller::InputPress, event);
    m_isTap = scroller->state() == QScroller::Pressed;
    m_receiver = receiver;
    m_press = copyOf(event);
    return true;
}

bool FingerScroll::move(const QMouseEvent &event)
{
    releaseFocus();
    if (!m_press)
        return false;
    // The finger was lifted where nobody saw it, on a dialog that came meanwhile, say.
    if (!event.buttons().testFlag(Qt::LeftButton)) {
        forget();
        return false;
    }
    const QPointF way = event.screenPos() - m_press->screenPos();
    m_isTap = m_isTap && way.manhattanLength() <= tapPixels;
    input(QScroller::InputMove, event);
    return true;
}

bool FingerScroll::release(QWidget *receiver, const QMouseEvent &event)
{
    releaseFocus();
    if (!m_press || event.button() != Qt::LeftButton)
        return false;
    input(QScroller::InputRelease, event);
    const QPointer<QWidget> guard(receiver);
    const bool isOurs = receiver == m_receiver;
    const std::unique_ptr<QMouseEvent> press = std::move(m_press);
    const std::unique_ptr<QMouseEvent> second = std::move(m_second);
    if (!m_isTap || !isOurs)
        return isOurs;
    giveFocus(receiver);
    // What it starts may run an event loop, in which the next press comes.
    QApplication::sendEvent(receiver, press.get());
    if (guard && second)
        QApplication::sendEvent(receiver, second.get());
    return !guard;
}

void FingerScroll::forget()
{
    if (m_press && m_area)
        QScroller::scroller(m_area->viewport())->stop();
    m_press.reset();
    m_second.reset();
}

void FingerScroll::input(int kind, const QMouseEvent &event)
{
    if (!m_area)
        return;
    QWidget *viewport = m_area->viewport();
    const QPointF place = event.screenPos() - viewport->mapToGlobal(QPoint());
    QScroller::scroller(viewport)->handleInput(QScroller::Input(kind), place, timeOf(event));
}

bool FingerScroll::prepare(QAbstractScrollArea *area, QEvent *event)
{
    if (!area)
        return false;
    const QScrollBar *across = area->horizontalScrollBar();
    const QScrollBar *down = area->verticalScrollBar();
    const double step = stepHeight(area);
    const double width = canMoveSideways(area) ? across->maximum() - across->minimum() : 0;
    const double height = step * (down->maximum() - down->minimum());
    QScrollPrepareEvent *prepared = static_cast<QScrollPrepareEvent *>(event);
    prepared->setViewportSize(area->viewport()->size());
    prepared->setContentPosRange(QRectF(0, 0, width, height));
    prepared->setContentPos(
        QPointF(across->value() - across->minimum(), step * (down->value() - down->minimum())));
    prepared->accept();
    return true;
}

/// Whoever else moves the content, a search or a key, has the last word.
bool FingerScroll::scroll(QAbstractScrollArea *area, QEvent *event)
{
    if (!area)
        return false;
    QWidget *viewport = area->viewport();
    if (area != m_area || barsOf(area) != m_left) {
        QTimer::singleShot(0, viewport, [viewport] { QScroller::scroller(viewport)->stop(); });
        return true;
    }
    const QPointF place = static_cast<QScrollEvent *>(event)->contentPos();
    QScrollBar *across = area->horizontalScrollBar();
    QScrollBar *down = area->verticalScrollBar();
    if (canMoveSideways(area))
        across->setValue(across->minimum() + qRound(place.x()));
    down->setValue(down->minimum() + qRound(place.y() / stepHeight(area)));
    m_left = barsOf(area);
    return true;
}
