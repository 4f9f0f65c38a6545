// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef QUESTIONER_H
#define QUESTIONER_H

#include "base/filarixhostglobal.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A line of what the operator tells a thing by: "Checksum", "3F2A 91C0".
struct QuestionFact
{
    QuestionFact() = default;
    QuestionFact(const QString &factKey, const QString &factHeading, const QString &factValue,
                 bool mayValueBreak)
        : key(factKey), heading(factHeading), value(factValue), mayBreak(mayValueBreak)
    {}

    /// The line's name for programs, the same in every language: "checksum".
    QString key;
    QString heading;
    QString value;
    /// Whether a value that is too long for its line may take a second one. Otherwise the value
    /// loses its middle: two names may differ at the end alone.
    bool mayBreak = false;
};

/// A question to the operator, with its answers in words.
struct FILARIX_HOST_EXPORT Question
{
    Question() = default;
    Question(const QString &aTitle, const QString &aText, const QStringList &theAnswers,
             const QStringList &theThings = QStringList())
        : title(aTitle), text(aText), answers(theAnswers), things(theThings)
    {}

    QString title;
    /// What is at stake, in a sentence or two.
    QString text;
    /// The first is the harmless one: nothing is done, written or lost.
    QStringList answers;
    /// What the question is about, one a line: programs and their times, say. Mostly none.
    QStringList things;
    /// What the operator needs to see before an answer, under headings. Mostly none.
    QList<QuestionFact> facts;

    /// The text, and below it the things and the facts, for a host whose dialogs show nothing but
    /// text.
    QString plainText() const;
};

/// Asks the operator. A host that has dialogs of its own implements this one function.
class FILARIX_HOST_EXPORT Questioner
{
public:
    Questioner() = default;
    virtual ~Questioner() = default;

    /// The number of the answer, from 0. A question that is closed in any other way, by a signal to
    /// the program, say, is answered by 0. May run an event loop; whoever asks has to be ready to
    /// be gone afterwards.
    virtual int ask(const Question &question) = 0;

private:
    Q_DISABLE_COPY(Questioner)
};

#endif // QUESTIONER_H
