// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWUNDO_H
#define ROWUNDO_H

#include <QList>
#include <QStringList>

/// What the rows of a list were before each of the operator's last changes.
///
///     undo.note(state()); // the current row may be another one by now
///     change();
///     undo.note(state());
///     ...
///     show(undo.takeBack());
class RowUndo
{
public:
    struct State
    {
        QList<QStringList> rows;
        /// The current row, as the list counts it.
        int current = 0;
    };

    /// Steps that are kept; the oldest goes first.
    static const int mostSteps = 50;
    /// Rows in all steps together: what a program of a size that nobody teaches may cost.
    static const int mostRows = 100000;

    /// Begins anew: nothing before \a now can come back.
    void restart(const State &now);
    /// Other rows than at the last call make a step.
    void note(const State &now);
    bool isPossible() const { return !m_steps.isEmpty(); }
    /// What the rows were before the last step, which is gone then. To be called where
    /// isPossible().
    State takeBack();

private:
    State m_now;
    QList<State> m_steps;
    int m_rows = 0;
};

#endif // ROWUNDO_H
