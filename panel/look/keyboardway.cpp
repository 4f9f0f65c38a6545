// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/keyboardway.h"

#include "look/panelkey.h"
#include "look/panelstyle.h"
#include "look/taparea.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyleOption>
#include <QTimer>
#include <QToolButton>

namespace {

/// Lies over the window of what has the focus, and takes no touch.
class FocusFrame : public QWidget
{
public:
    explicit FocusFrame(QWidget *window) : QWidget(window)
    {
        setObjectName(QLatin1String("focusFrame"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
    // A sheet of the window's knows nothing of frames.
    void paintEvent(QPaintEvent *) override
    {
        QStyleOption option;
        option.initFrom(this);
        QPainter painter(this);
        QApplication::style()->drawControl(QStyle::CE_FocusFrame, &option, &painter, this);
    }
};

bool isReturn(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isTab(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

bool goesToNextPart(const QKeyEvent &event)
{
    return event.key() == Qt::Key_F6
           || (isTab(event.key()) && event.modifiers().testFlag(Qt::ControlModifier));
}

/// What takes Tab as a character.
bool keepsTab(const QWidget *widget)
{
    const QPlainTextEdit *editor = qobject_cast<const QPlainTextEdit *>(widget);
    return editor && !editor->tabChangesFocus();
}

/// The toolkit presses a tool button by Space alone, and a push button by Return only where that
/// is the dialog's own key. The library's buttons have their own way.
bool isForSpaceAlone(const QWidget *widget)
{
    if (qobject_cast<const QToolButton *>(widget))
        return true;
    const QPushButton *button = qobject_cast<const QPushButton *>(widget);
    return button && !button->autoDefault()
           && button->metaObject() == &QPushButton::staticMetaObject;
}

bool takesTab(const QWidget *widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget->isEnabled()
           && widget->isVisible() && !widget->focusProxy();
}

/// What F6 leaves and enters as one: a strip of the window, or what stands on a screen side by
/// side.
const QWidget *partOf(const QWidget *widget)
{
    if (keepsTab(widget) || widget->isWindow())
        return widget;
    const QWidget *at = widget;
    const auto isScreen = [](const QWidget *around) {
        return qobject_cast<const QStackedWidget *>(around->parentWidget()) != nullptr;
    };
    while (!at->parentWidget()->isWindow() && !isScreen(at->parentWidget()))
        at = at->parentWidget();
    return at;
}

QWidget *nextPart(QWidget *from, bool isForward)
{
    const QWidget *part = partOf(from);
    const auto step = [isForward](const QWidget *at) {
        return isForward ? at->nextInFocusChain() : at->previousInFocusChain();
    };
    for (QWidget *at = step(from); at != from; at = step(at)) {
        if (takesTab(at) && at->window() == from->window() && partOf(at) != part)
            return at;
    }
    return nullptr;
}

/// What is seen of a widget, in the coordinates of its window.
QRect seenOf(const QWidget *widget)
{
    QRect seen = widget->rect();
    for (const QWidget *at = widget; !at->isWindow(); at = at->parentWidget())
        seen = seen.translated(at->pos()) & at->parentWidget()->rect();
    return seen;
}

bool isMove(QEvent::Type type)
{
    return type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show
           || type == QEvent::Hide;
}

bool isTouch(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::TouchBegin;
}

} // namespace

KeyboardWay::KeyboardWay(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &KeyboardWay::follow);
}

KeyboardWay::~KeyboardWay()
{
    delete m_frame;
}

int KeyboardWay::frameWidth()
{
    return PanelStyle::focusWidth();
}

bool KeyboardWay::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (isTouch(type)) {
        show(false);
        return false;
    }
    if (m_isShown && isMove(type) && watched != m_frame)
        placeSoon();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return false;
    // What one widget leaves to the next was looked at already.
    QWidget *focus = QApplication::focusWidget();
    if (!focus || watched != focus)
        return false;
    const QKeyEvent &key = *static_cast<QKeyEvent *>(event);
    return type == QEvent::KeyPress ? press(focus, key) : release(focus, key);
}

bool KeyboardWay::press(QWidget *focus, const QKeyEvent &event)
{
    if (goesToNextPart(event)) {
        const bool isBack =
            event.modifiers().testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab;
        show(true);
        goOn(focus, !isBack);
        return true;
    }
    if (isTab(event.key())) {
        if (!keepsTab(focus))
            show(true);
        return false;
    }
    return pressKey(focus, event);
}

bool KeyboardWay::pressKey(QWidget *focus, const QKeyEvent &event)
{
    if (!isReturn(event.key()) && event.key() != Qt::Key_Space)
        return false;
    const bool isOurs = qobject_cast<PanelKey *>(focus) || qobject_cast<TapArea *>(focus);
    if (isOurs && !m_isShown) {
        show(true);
        return true;
    }
    if (!isReturn(event.key()) || !isForSpaceAlone(focus))
        return false;
    // A key that is held presses once.
    if (!event.isAutoRepeat()) {
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, event.modifiers());
        QCoreApplication::sendEvent(focus, &space);
    }
    return true;
}

bool KeyboardWay::release(QWidget *focus, const QKeyEvent &event)
{
    if (!isReturn(event.key()) || !isForSpaceAlone(focus))
        return false;
    if (!event.isAutoRepeat()) {
        QKeyEvent space(QEvent::KeyRelease, Qt::Key_Space, event.modifiers());
        QCoreApplication::sendEvent(focus, &space);
    }
    return true;
}

void KeyboardWay::goOn(QWidget *focus, bool isForward)
{
    QWidget *next = nextPart(focus, isForward);
    if (next)
        next->setFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void KeyboardWay::show(bool isWanted)
{
    if (m_isShown == isWanted)
        return;
    m_isShown = isWanted;
    follow();
}

/// Another window has another frame: one that goes takes its own with it.
void KeyboardWay::follow()
{
    const QWidget *focus = QApplication::focusWidget();
    const bool isWanted = m_isShown && focus && !focus->isWindow();
    if (m_frame && (!isWanted || m_frame->window() != focus->window()))
        delete m_frame;
    if (isWanted)
        place();
}

/// A layout moves many at a time.
void KeyboardWay::placeSoon()
{
    if (m_isPlacing)
        return;
    m_isPlacing = true;
    QTimer::singleShot(0, this, [this] {
        m_isPlacing = false;
        follow();
    });
}

/// Half of the frame lies outside, where the window has room.
void KeyboardWay::place()
{
    QWidget *focus = QApplication::focusWidget();
    QWidget *window = focus->window();
    const int width = frameWidth();
    const QRect place = seenOf(focus).adjusted(-width, -width, width, width) & window->rect();
    if (!m_frame)
        m_frame = new FocusFrame(window);
    m_frame->setGeometry(place);
    const int both = 2 * width;
    const QRect whole(QPoint(), place.size());
    m_frame->setMask(QRegion(whole) - whole.adjusted(both, both, -both, -both));
    m_frame->raise();
    m_frame->show();
}
