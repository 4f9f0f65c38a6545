// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/questioner.h"

QString Question::plainText() const
{
    QStringList lines = QStringList(text) + things;
    Q_FOREACH (const QuestionFact &fact, facts)
        lines.append(fact.heading + QLatin1String(": ") + fact.value);
    return lines.join(QLatin1String("\n"));
}
