// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TARGETS_H
#define TARGETS_H

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <random>

class QTableWidget;
class TListWidget;

/// What is touched next, and by what the operator sees that it was.
struct Touch
{
    /// Shows the answer, itself or by its parts. Null where there is nothing to be touched.
    QPointer<QWidget> shown;
    /// In the window of \a shown.
    QPoint point;
    /// What a finger may move answers when the finger is lifted, and so does a key that turns
    /// pages. All else answers while the finger rests.
    bool isTap = false;
    /// Whether what is painted now shows the answer.
    std::function<bool()> isAnswered;
    /// Whether the touch reaches what it is meant for: a message that goes takes its keys along.
    std::function<bool()> isReachable;
    /// For a fault.
    QString name;
};

/// Chooses by chance among what an operator can touch: in the dialog that is open, or else in a
/// window.
class Targets
{
public:
    void setWindow(QWidget *window) { m_window = window; }

    /// A key that is in view and on.
    Touch key();
    /// A row of a list or a table that is not the current one.
    Touch row();
    /// A line of a program that the cursor is not in.
    Touch line();
    /// A key by which the program, the list or the table turns a page.
    Touch page();

    int upTo(int most) { return int(m_random() % unsigned(most)); }

private:
    QWidget *place() const;
    Touch rowOf(TListWidget *list);
    Touch rowOf(QTableWidget *table);

    QPointer<QWidget> m_window;
    std::mt19937 m_random{1};
};

#endif // TARGETS_H
