// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef QUESTIONDIALOG_H
#define QUESTIONDIALOG_H

#include "base/questioner.h"
#include "dialog.h"

class QLayout;

/// A question with keys for gloves: side by side, or one below the other on a narrow panel. What
/// the question is about stands between, each thing in a line of its own.
///
/// Return presses the harmless key, and closing the dialog means it.
class QuestionDialog : public Dialog
{
    Q_OBJECT

public:
    explicit QuestionDialog(const Question &question, QWidget *parent = nullptr);

    /// The number of the answer.
    int answer() const { return m_answer; }

private:
    /// Side by side where there is room for all.
    QLayout *makeKeys(const QStringList &answers, int room);

    int m_answer = 0;
};

/// Asks by QuestionDialogs.
class DialogQuestioner : public Questioner
{
public:
    int ask(const Question &question) override;
};

#endif // QUESTIONDIALOG_H
