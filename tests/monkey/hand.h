// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HAND_H
#define HAND_H

#include <QList>
#include <QPoint>
#include <QPointer>
#include <QWindow>

class QTouchDevice;
class QWidget;

/// An operator's hand. What it does goes to the toolkit as the window system would report it, so
/// modality, popups and grabs have their say. Nothing is delivered before the event loop, whichever
/// is running, takes it.
class Hand
{
public:
    /// What it touches with.
    enum Tool { Finger, TwoFingers, LeftButton, RightButton };

    /// \a point is global, here and below. The hand must be free. Where no window of the program
    /// is, nothing happens.
    void press(const QPoint &point, Tool tool);
    void move(const QPoint &point);
    void release();
    bool isFree() const { return !m_target; }

    static void wheel(const QPoint &point, int delta);
    /// Goes where the keyboard focus is.
    static void key(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
                    const QString &text, bool isRepeat = false);
    /// Whether the panel turns all that it shows.
    static bool isTurned();
    /// What the window manager's close button does. A turned panel has but one, the panel's.
    static void close(QWidget *window);
    /// What a window manager does on its own: gives a window the keyboard. False if it has it.
    static bool activate(QWidget *window);

    /// Whether everything has been delivered.
    static bool isIdle();
    /// The window of the program that a touch at a point reaches: a popup takes it wherever it is,
    /// a modal dialog lies above the other windows. Null where there is none.
    static QWidget *windowAt(const QPoint &point);

private:
    void report(QEvent::Type mouse, Qt::TouchPointState touch);
    bool isTouching() const { return m_tool == Finger || m_tool == TwoFingers; }
    Qt::MouseButton button() const
    {
        return m_tool == RightButton ? Qt::RightButton : Qt::LeftButton;
    }

    QPointer<QWindow> m_target;
    QPoint m_point;
    Tool m_tool = Finger;
};

#endif // HAND_H
