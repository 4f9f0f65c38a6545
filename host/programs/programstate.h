// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMSTATE_H
#define PROGRAMSTATE_H

#include "base/filarixhostglobal.h"
#include "base/message.h"

#include <QCoreApplication>
#include <QString>

/// How what the editor shows stands to the program's file.
class FILARIX_HOST_EXPORT ProgramState
{
    Q_DECLARE_TR_FUNCTIONS(ProgramState)

public:
    enum Kind {
        Plain,      ///< All of the file is shown, or there is none.
        Cleaned,    ///< Comments and empty lines of the file aren't.
        Different,  ///< Something else is.
        Incomplete, ///< The front part is, or nothing: a save would lose the rest.
        NotStored   ///< The file holds less than the editor: the last save failed.
    };

    Kind kind = Plain;
    /// The program's bare name.
    QString name;
    /// Lines as the editor counts, in the file and in the editor.
    qint64 fileLines = 0;
    qint64 shownLines = 0;
    /// Why a save failed, or a file couldn't be compared; in the system's words.
    QString reason;
    /// The operator said that the file may be replaced by what is shown.
    bool isAgreed = false;

    bool refusesSave() const { return kind == Incomplete; }
    bool refusesDownload() const { return kind == Incomplete || kind == NotStored; }
    bool asksBeforeSave() const { return (kind == Cleaned || kind == Different) && !isAgreed; }
    Message::Tone tone() const;

    /// One line, with the most important words first; empty when all is plain.
    QString line() const;
    /// What a save would do, for the question before it.
    QString saveQuestion() const;
    /// Why nothing is saved or sent, and what to do.
    QString refusal() const;
};

#endif // PROGRAMSTATE_H
