// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINGERSCROLL_H
#define FINGERSCROLL_H

#include <QList>
#include <QMouseEvent>
#include <QObject>
#include <QPair>
#include <QPointer>

#include <memory>

class QAbstractScrollArea;

/// Lets a finger move what is longer than its place: editor, lists and tables, in dialogs too.
///
/// A press waits until the finger is lifted. The press is handed on then, at once, unless the
/// finger has moved farther than a tap does, or has stopped what was still moving. So a press that
/// moves a list chooses no row, takes no focus, opens no keypad and moves no cursor. Bars and
/// headers get their presses as ever, and so does what fits its place.
///
///     new FingerScroll(panel); // for the whole application
class FingerScroll : public QObject
{
    Q_OBJECT

public:
    /// Watches the application from now on.
    explicit FingerScroll(QObject *parent = nullptr);
    ~FingerScroll() override;

    /// Farther than that, in pixels, a press is no tap.
    static int tapDistance();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool press(QWidget *receiver, const QMouseEvent &event);
    bool move(const QMouseEvent &event);
    bool release(QWidget *receiver, const QMouseEvent &event);
    void keepFocus(QObject *window, const QMouseEvent &event);
    void releaseFocus();
    void forget();
    void input(int kind, const QMouseEvent &event);
    static bool prepare(QAbstractScrollArea *area, QEvent *event);
    bool scroll(QAbstractScrollArea *area, QEvent *event);

    /// The press that waits; null when none does.
    std::unique_ptr<QMouseEvent> m_press;
    /// What the toolkit sends after the second press of two.
    std::unique_ptr<QMouseEvent> m_second;
    QPointer<QWidget> m_receiver;
    QPointer<QAbstractScrollArea> m_area;
    bool m_isTap = false;
    /// Who would take the focus at the press that is on its way, and by which policy.
    QList<QPair<QPointer<QWidget>, Qt::FocusPolicy>> m_focusTakers;
    /// Where the scroller has left the bars.
    QPoint m_left;
};

#endif // FINGERSCROLL_H
