// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TRANSFERNAMES_H
#define TRANSFERNAMES_H

#include "base/filarixhostglobal.h"

#include <QString>
#include <QStringList>

/// The host's check of file names, made before a folder is offered to the import manager. The
/// manager hands paths to the shell without quotes: see docs/security.md.
///
///     Q_FOREACH (const QString &name, TransferNames::unsafeIn(stick)) {
///         const QString safe = TransferNames::proposal(name, QDir(stick).entryList());
///         if (!TransferNames::rename(stick, name, safe))
///             refuse(stick);
///     }
class FILARIX_HOST_EXPORT TransferNames
{
public:
    /// Whether every command line takes \a name for what it is. Such a name starts with an ASCII
    /// letter, a digit or "_", and goes on with these, ".", "-" and "+".
    static bool isSafe(const QString &name);

    /// A safe name that resembles \a name and differs from all of \a taken, upper and lower case
    /// being the same, as on most sticks. Accents are dropped, other characters become "_", and
    /// the suffix is kept. A safe \a name that is not taken is its own proposal.
    static QString proposal(const QString &name, const QStringList &taken);

    /// The names of the files directly in \a dir that are not safe, as the import manager would
    /// list them: neither hidden files nor links. Sorted; empty for a missing folder.
    static QStringList unsafeIn(const QString &dir);

    /// Renames a file in \a dir; never over another one. False if that failed, as on a
    /// write-protected stick, or if \a safe is not safe.
    static bool rename(const QString &dir, const QString &name, const QString &safe);
};

#endif // TRANSFERNAMES_H
