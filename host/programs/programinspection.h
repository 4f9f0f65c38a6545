// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMINSPECTION_H
#define PROGRAMINSPECTION_H

#include "base/filarixhostglobal.h"
#include "storage/filetaskrunner.h"

#include <QCoreApplication>

/// What a check says of a program that is about to go to the machine.
struct FILARIX_HOST_EXPORT ProgramVerdict
{
    Q_DECLARE_TR_FUNCTIONS(ProgramVerdict)

public:
    enum State {
        NotAsked,  ///< The host has no check.
        Checked,   ///< All of the program was checked.
        Unfinished ///< The check came to no end. Nobody knows how many errors there are.
    };

    State state = NotAsked;
    /// Of the part that was checked.
    int errors = 0;
    int warnings = 0;
    /// The program must not be sent, whatever the operator answers.
    bool forbidsSending = false;

    /// A line for the operator: "Errors: 2, warnings: 1". Empty without a check.
    QString line() const;
    /// Whether the operator has to touch Send twice.
    bool isDoubtful() const { return errors > 0 || state == Unfinished; }
};

/// A host's own check of a program, of exactly the bytes that would be sent.
///
/// The check runs in a thread of its own, in steps of a moment each.
class FILARIX_HOST_EXPORT ProgramInspection : public FileTask
{
public:
    /// Asked for once there is no step left to do.
    virtual ProgramVerdict verdict() const = 0;
};

#endif // PROGRAMINSPECTION_H
