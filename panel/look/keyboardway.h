// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDWAY_H
#define KEYBOARDWAY_H

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QWidget;

/// The way of a keyboard through the panel, for an operator without a mouse. Tab goes from one key
/// to the next. F6 and Ctrl+Tab go on to the next part of the screen, out of the editor, too, which
/// takes Tab as a character. With Shift they go back. Return and Space press what has the focus.
///
/// A frame shows the focus from the first such key until the next touch. A first Return or Space
/// shows the frame alone, so that it presses nothing that nobody saw.
class KeyboardWay : public QObject
{
    Q_OBJECT

public:
    /// For the whole application, as long as the object lives.
    explicit KeyboardWay(QObject *parent);
    ~KeyboardWay() override;

    /// Whether the frame is shown around whatever has the focus.
    bool isShown() const { return m_isShown; }
    /// Pixels that the frame takes of a widget's edge, and as many outside.
    static int frameWidth();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool press(QWidget *focus, const QKeyEvent &event);
    bool pressKey(QWidget *focus, const QKeyEvent &event);
    bool release(QWidget *focus, const QKeyEvent &event);
    void goOn(QWidget *focus, bool isForward);
    void show(bool isWanted);
    void follow();
    void placeSoon();
    void place();

    QPointer<QWidget> m_frame;
    bool m_isShown = false;
    bool m_isPlacing = false;
};

#endif // KEYBOARDWAY_H
