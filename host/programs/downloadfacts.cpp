// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/downloadfacts.h"

QString DownloadFacts::lines() const
{
    if (standing != NotShown && shownLines != program.lines)
        return tr("%1 in the file, %2 shown").arg(program.lines).arg(shownLines);
    switch (standing) {
    case Cleaned:
        return tr("%1 in the file, comments not shown").arg(program.lines);
    case Incomplete:
    case Different:
        return tr("%1 in the file, others shown").arg(program.lines);
    case NotCompared:
        return tr("%1 in the file, not compared").arg(program.lines);
    case NotShown:
    case Same:
        break;
    }
    return QString::number(program.lines);
}

Question DownloadFacts::question() const
{
    Question question(tr("Download"), tr("Send this program to the PLC?"),
                      QStringList() << tr("Cancel") << tr("Send"));
    question.facts << QuestionFact(QLatin1String("name"), tr("Program"), program.name.simplified(),
                                   false)
                   << QuestionFact(QLatin1String("lines"), tr("Lines"), lines(), true)
                   << QuestionFact(QLatin1String("checksum"), tr("Checksum"), program.checksum(),
                                   false);
    return question;
}
