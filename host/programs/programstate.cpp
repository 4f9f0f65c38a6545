// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programstate.h"

Message::Tone ProgramState::tone() const
{
    switch (kind) {
    case Plain:
        return Message::Information;
    case Cleaned:
    case Different:
    case Incomplete:
        return Message::Warning;
    case NotStored:
        return Message::Alarm;
    }
    return Message::Information;
}

QString ProgramState::line() const
{
    switch (kind) {
    case Plain:
        return QString();
    case Cleaned:
        return tr("%1 lines in the file, %2 shown: no comments, no empty lines")
            .arg(fileLines)
            .arg(shownLines);
    case Different:
        if (!reason.isEmpty())
            return tr("Not compared with the file: %1").arg(reason);
        if (fileLines == shownLines)
            return tr("Not as in the file: it has characters that cannot be shown, or has changed");
        return tr("Not as in the file: %1 lines there, %2 shown").arg(fileLines).arg(shownLines);
    case Incomplete:
        return tr("Incomplete: %1 lines in the file, %2 shown").arg(fileLines).arg(shownLines);
    case NotStored:
        return tr("%1 is not stored: %2").arg(name, reason);
    }
    return QString();
}

QString ProgramState::saveQuestion() const
{
    if (kind == Cleaned)
        return tr("%1 has %2 lines, %3 are shown. Saving takes out its comments and empty lines.")
            .arg(name, QString::number(fileLines), QString::number(shownLines));
    return tr("%1 is shown otherwise than the file has it. Saving replaces the file by what is "
              "shown.")
        .arg(name);
}

QString ProgramState::refusal() const
{
    if (kind == NotStored)
        return tr("%1 is not stored: %2. Save it first.").arg(name, reason);
    return tr("Only a part of %1 is here: saving or sending loses the rest. Open it again, or take "
              "another name.")
        .arg(name);
}
