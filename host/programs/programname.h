// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMNAME_H
#define PROGRAMNAME_H

#include "base/filarixhostglobal.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What a program may be called.
class FILARIX_HOST_EXPORT ProgramName
{
    Q_DECLARE_TR_FUNCTIONS(ProgramName)

public:
    /// ".cnc".
    static QString suffix();
    /// What a program without a file is called wherever it is named: "New program", in the
    /// operator's language.
    static QString unnamed();
    /// What is proposed for a program that has no name yet: "program.cnc".
    static QString first();
    /// Why no program can have this name, a sentence for the operator; empty when one can.
    static QString complaint(const QString &name);
    /// Whether the name ends in no suffix at all.
    static bool isBare(const QString &name);
    /// \a name if it isn't among \a taken, or else with a number: "program_2.cnc". Names that
    /// differ in case alone count as one.
    static QString freeOne(const QString &name, const QStringList &taken);
    /// A name for the part of a program that is there: "coil-part.cnc" for "coil.cnc".
    static QString ofPart(const QString &name);
};

#endif // PROGRAMNAME_H
