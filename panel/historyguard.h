// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HISTORYGUARD_H
#define HISTORYGUARD_H

#include "message.h"

#include <QObject>

class ProgramHistory;
class QAbstractButton;

/// Sees to it that a program is in the history before the operator's next touch replaces or removes
/// it.
///
/// When a dialog opens, the history looks at the programs; that is done long before anybody has
/// read the question. A touch that would lose a version nevertheless, in the first moments after
/// the start, say, is not let through.
class HistoryGuard : public QObject
{
    Q_OBJECT

public:
    /// Watches the application from now on. \a history must outlive the guard.
    explicit HistoryGuard(ProgramHistory *history, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A touch was held back; in words.
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());

private:
    static bool losesAVersion(const QAbstractButton *button);

    ProgramHistory *m_history;
};

#endif // HISTORYGUARD_H
