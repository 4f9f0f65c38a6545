// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMLISTING_H
#define PROGRAMLISTING_H

#include "base/filarixhostglobal.h"
#include "storage/filetaskrunner.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// Sizes and dates of the files of a folder, a few hundred a step.
///
///     auto listing = std::make_shared<ProgramListing>(folder, names);
///     connect(&runner, SIGNAL(ended()), ...); // then listing->entries()
///     runner.start(listing);
class FILARIX_HOST_EXPORT ProgramListing : public FileTask
{
public:
    /// What is known of one file.
    struct Entry
    {
        /// Bytes.
        qint64 size = 0;
        /// Milliseconds since 1970; 0 where there is no such file.
        qint64 written = 0;
    };

    ProgramListing(const QString &folder, const QStringList &names)
        : m_folder(folder), m_names(names)
    {}

    bool step() override;

    /// By their names. To be asked for when all steps are done.
    const QHash<QString, Entry> &entries() const { return m_entries; }
    /// Whether files can be made and removed in the folder. Known behind the first step.
    bool isWritable() const { return m_isWritable; }

private:
    const QString m_folder;
    const QStringList m_names;
    int m_next = 0;
    QHash<QString, Entry> m_entries;
    bool m_isWritable = true;
};

#endif // PROGRAMLISTING_H
