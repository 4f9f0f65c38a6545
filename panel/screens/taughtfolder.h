// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TAUGHTFOLDER_H
#define TAUGHTFOLDER_H

#include "storage/filetaskrunner.h"

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
    /// The file to read first: the one that was stored last. Where there is none, and where the old
    /// file was copied just now, the file of firstName(). Where the old file couldn't be copied,
    /// that one.
    QString first;
};

/// Copies the programs of an earlier place, where panels kept them before, that a folder has not
/// got: one a step. The old files stay as they are.
class Adopting : public FileTask
{
public:
    Adopting(const QString &earlier, const QString &folder);

    bool step() override;
    /// What came of the steps so far. To be read between two of them.
    const Adoption &adoption() const { return m_adoption; }

private:
    void list();
    void copyNext();
    bool copy(const QString &from, const QString &to, QString *error);

    const QString m_earlier;
    const QString m_folder;
    QStringList m_names;
    bool m_isListed = false;
    Adoption m_adoption;
};

/// All steps of Adopting at once. For a thread.
Adoption adopt(const QString &earlier, const QString &folder);

} // namespace TaughtFolder

#endif // TAUGHTFOLDER_H
