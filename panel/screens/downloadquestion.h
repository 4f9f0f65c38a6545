// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DOWNLOADQUESTION_H
#define DOWNLOADQUESTION_H

#include "dialog.h"
#include "shell/questiondialog.h"

/// A question of two answers, with facts to compare by eye: whether this very program is to go to
/// the machine. The facts are its name, its length and a checksum that can be held next to the one
/// of another panel or PC. Accepted by the second answer.
class DownloadQuestion : public Dialog
{
    Q_OBJECT

public:
    /// The facts' values stand in labels with their keys as object names.
    explicit DownloadQuestion(const Question &question, QWidget *parent = nullptr);
};

/// Asks by DownloadQuestions where there are facts, and by QuestionDialogs elsewhere.
class DownloadQuestioner : public DialogQuestioner
{
public:
    int ask(const Question &question) override;
};

#endif // DOWNLOADQUESTION_H
