// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINDING_H
#define FINDING_H

#include "base/filarixhostglobal.h"

#include <QCoreApplication>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// One thing that the check of a program found.
///
/// A value. Both sentences are made when somebody asks for them, in the language of that moment.
struct FILARIX_HOST_EXPORT Finding
{
    Q_DECLARE_TR_FUNCTIONS(Finding)

public:
    enum Severity {
        Note,    ///< Good to know; the machine winds what was meant.
        Warning, ///< The machine runs, but hardly as was meant.
        Error    ///< The machine stops, winds something else, or tears the wire.
    };

    static const int severityCount = Error + 1;

    /// What was found. The numbers may change; the names of name() stay.
    enum Kind {
        // How the line is written.
        ControlCharacter,
        NonAscii,
        NonAsciiInComment,
        StrayCharacter,
        NumberMissing,
        NumberMalformed,
        NumberTooLarge,
        CommentNotClosed,
        TooManyWords,
        LineTooLong,
        // What the words mean to the machine.
        UnknownWord,
        UnknownTool,
        DoubleWord,
        GroupClash,
        IdleWord,
        NegativeValue,
        // What a block lacks.
        NoMotion,
        NoFeed,
        NoPitch,
        NoDwellTime,
        SpindleStands,
        // What goes beyond a limit.
        AxisLimit,
        SpeedLimit,
        PitchLimit,
        TensionLimit,
        TensionJump,
        OutsideBobbin,
        Overfull,
        // How the program goes on from begin to end.
        NotClamped,
        NotCut,
        NoEnd,
        BehindEnd
    };

    static const int kindCount = BehindEnd + 1;

    Kind kind = StrayCharacter;
    Severity severity = Error;
    /// From 1.
    int line = 0;
    /// From 1, in characters, and as many of them; an empty line has length 0.
    int column = 0;
    int length = 0;

    /// What happened and what it means: a short sentence.
    QString text() const;
    /// What to do: a short sentence.
    QString advice() const;

    /// For other programs: "axis-limit". The same in each language.
    static QByteArray name(Kind kind);
    /// Likewise: "error", "warning", "note".
    static QByteArray name(Severity severity);
    static Severity severityOf(Kind kind);

    /// What stands for %1 and so on in both sentences.
    QStringList arguments;
};

Q_DECLARE_METATYPE(Finding)

#endif // FINDING_H
