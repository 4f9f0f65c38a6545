// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SCRIPTQUESTIONER_H
#define SCRIPTQUESTIONER_H

#include "base/questioner.h"

#include <QList>

/// Answers by script, in order; what no answer is left for gets the harmless one.
class ScriptQuestioner : public Questioner
{
public:
    int ask(const Question &question) override
    {
        asked.append(question);
        return answers.isEmpty() ? 0 : answers.takeFirst();
    }

    QList<Question> asked;
    QList<int> answers;
};

#endif // SCRIPTQUESTIONER_H
