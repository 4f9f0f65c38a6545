// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CHECKOPTIONS_H
#define CHECKOPTIONS_H

#include <QByteArray>
#include <QList>

/// What the command line asks of filarix-check.
///
/// Names of files stay the bytes that they are: a file system may have any.
struct CheckOptions
{
    enum Outcome {
        Run,
        ShowText, ///< Print `text` and end with success: --help, --version.
        Refuse    ///< `text` says what is wrong.
    };

    Outcome outcome = Run;
    QByteArray text;

    bool asJson = false;
    /// Empty for the built-in one.
    QByteArray profile;
    /// Empty when no picture is wanted.
    QByteArray svg;
    /// At least one; "-" is the standard input.
    QList<QByteArray> files;

    /// \a arguments are those behind the program's name.
    static CheckOptions parse(const QList<QByteArray> &arguments);
};

#endif // CHECKOPTIONS_H
