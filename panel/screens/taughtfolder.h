// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TAUGHTFOLDER_H
#define TAUGHTFOLDER_H

#include <QString>
#include <QStringList>

/// Where the taught programs lie, each a file of its own, with nothing else among them.
namespace TaughtFolder {

/// ".teach".
QString suffix();
/// What the first program is called: "program.teach".
QString firstName();
/// The file of the program that the operator calls \a name, with its suffix if that is missing.
QString pathOf(const QString &folder, const QString &name);

/// What came of adopt().
struct Adoption
{
    /// The names of the files that were copied.
    QStringList copied;
    /// Why some were not, a sentence for the operator; empty if all went well.
    QString error;
    /// The file to read first: the one that was stored last. It is that of firstName() where there
    /// is none, and where that was copied just now; in the old place where it couldn't be.
    QString first;
};

/// Copies the programs of \a earlier, where panels kept them before, that \a folder has not got.
/// The old files stay as they are. For a thread.
Adoption adopt(const QString &earlier, const QString &folder);

} // namespace TaughtFolder

#endif // TAUGHTFOLDER_H
