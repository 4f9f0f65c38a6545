// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYEVENTS_H
#define KEYEVENTS_H

#include <QApplication>
#include <QKeyEvent>
#include <QMetaType>
#include <QObject>
#include <QTest>
#include <QWidget>

/// Key events as a panel sends them, with the repeats of a held key, which QTest cannot send.
namespace KeyEvents {

/// Sends one event to \a widget and gives back whether it was left accepted. The widgets above it
/// are asked too when it ignores the event.
inline bool send(QWidget *widget, QEvent::Type type, int key, bool repeat = false)
{
    const QString text =
        key == Qt::Key_Return || key == Qt::Key_Enter ? QString::fromLatin1("\r") : QString();
    QKeyEvent event(type, key, Qt::NoModifier, text, repeat);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

inline bool press(QWidget *widget, int key)
{
    return send(widget, QEvent::KeyPress, key);
}

inline bool release(QWidget *widget, int key)
{
    return send(widget, QEvent::KeyRelease, key);
}

/// What a window system sends between the press and the release of a held key.
inline void repeat(QWidget *widget, int key, int times)
{
    for (int i = 0; i < times; ++i) {
        send(widget, QEvent::KeyRelease, key, true);
        send(widget, QEvent::KeyPress, key, true);
    }
}

/// Rows "Return" and "Enter" of a column "key".
inline void addReturnRows()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

/// Rows for the four arrows of a column "key".
inline void addArrowRows()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Left") << int(Qt::Key_Left);
    QTest::newRow("Up") << int(Qt::Key_Up);
    QTest::newRow("Right") << int(Qt::Key_Right);
    QTest::newRow("Down") << int(Qt::Key_Down);
}

/// Counts the key events that reach a widget, whatever becomes of them there.
class Counter : public QObject
{
public:
    explicit Counter(QWidget *watched) : returns(0), spaces(0)
    {
        watched->installEventFilter(this);
    }

    int returns;
    int spaces;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key == Qt::Key_Space)
                ++spaces;
            else if (key == Qt::Key_Return || key == Qt::Key_Enter)
                ++returns;
        }
        return false;
    }
};

} // namespace KeyEvents

#endif // KEYEVENTS_H
