// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DOWNLOADFACTS_H
#define DOWNLOADFACTS_H

#include "base/filarixhostglobal.h"
#include "base/questioner.h"
#include "programs/programinspection.h"
#include "programs/programsnapshot.h"

#include <QCoreApplication>

/// What an operator has to know of a program before it goes to the machine.
class FILARIX_HOST_EXPORT DownloadFacts
{
    Q_DECLARE_TR_FUNCTIONS(DownloadFacts)

public:
    /// How what the editor shows stands to the file that would be sent.
    enum Standing {
        NotShown,   ///< The editor shows another program, or there is no editor.
        Same,       ///< The editor shows all of it.
        Cleaned,    ///< Comments and empty lines are in the file only.
        Incomplete, ///< The editor shows the front part, or nothing.
        Different,  ///< The editor shows something else.
        NotCompared ///< The file could not be read a second time.
    };

    /// Facts of the file that would be sent.
    ProgramFacts program;
    Standing standing = NotShown;
    /// As the editor counts; -1 when the editor doesn't show the program.
    qint64 shownLines = -1;
    /// What a check says of that file.
    ProgramVerdict verdict;

    /// The number of lines in words; with the editor's where the two differ, and a note where the
    /// numbers are equal but the lines aren't.
    QString lines() const;
    /// Whether this program is to be sent: answer 0 is Cancel, answer 1 is Send. A program that
    /// must not be sent has the first answer alone. The facts have the keys "name", "lines" and
    /// "checksum"; after a check there is "check", too.
    Question question() const;
    /// What is asked after Send when the verdict is doubtful, with the same answers.
    Question secondQuestion() const;
};

#endif // DOWNLOADFACTS_H
