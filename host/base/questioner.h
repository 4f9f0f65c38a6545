// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef QUESTIONER_H
#define QUESTIONER_H

#include "base/filarixhostglobal.h"

#include <QString>
#include <QStringList>

/// A question to the operator, with its answers in words.
struct Question
{
    Question() = default;
    Question(const QString &title, const QString &text, const QStringList &answers,
             const QStringList &things = QStringList())
        : title(title), text(text), answers(answers), things(things)
    {}

    QString title;
    /// What is at stake, in a sentence or two.
    QString text;
    /// The first is the harmless one: nothing is done, written or lost.
    QStringList answers;
    /// What the question is about, one a line: programs and their times, say. Mostly none.
    QStringList things;
};

/// Asks the operator. A host that has dialogs of its own implements this one function.
class FILARIX_HOST_EXPORT Questioner
{
public:
    Questioner() = default;
    virtual ~Questioner() = default;

    /// The number of the answer, from 0. A question that is closed in any other way, by a signal to
    /// the program, say, is answered by 0. May run an event loop.
    virtual int ask(const Question &question) = 0;

private:
    Q_DISABLE_COPY(Questioner)
};

#endif // QUESTIONER_H
