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
    if (verdict.forbidsSending) {
        question.text = tr("This machine takes no program with errors. Mend them, then send it.");
        question.answers.removeLast();
    }
    question.facts << QuestionFact(QLatin1String("name"), tr("Program"), program.name.simplified(),
                                   false)
                   << QuestionFact(QLatin1String("lines"), tr("Lines"), lines(), true)
                   << QuestionFact(QLatin1String("checksum"), tr("Checksum"), program.checksum(),
                                   false);
    if (verdict.state != ProgramVerdict::NotAsked)
        question.facts << QuestionFact(QLatin1String("check"), tr("Check"), verdict.line(), true);
    return question;
}

Question DownloadFacts::secondQuestion() const
{
    const QString text =
        verdict.errors > 0
            ? tr("The check found errors: %1. The machine may stop or wind something else.")
                  .arg(verdict.errors)
            : tr("The program could not be checked to the end. Errors may be in it.");
    return Question(tr("Download"), text + QLatin1Char(' ') + tr("Send it all the same?"),
                    QStringList() << tr("Cancel") << tr("Send"));
}
