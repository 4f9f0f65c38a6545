// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMCOMPARISON_H
#define PROGRAMCOMPARISON_H

#include "base/filarixhostglobal.h"
#include "storage/filestamp.h"
#include "storage/filetaskrunner.h"

#include <QString>

/// Compares what an editor shows of a program with the program's file.
///
///     auto comparison = std::make_shared<ProgramComparison>(path, editor->toPlainText());
///     work.start(comparison);
class FILARIX_HOST_EXPORT ProgramComparison : public FileTask
{
public:
    enum Verdict {
        Same,       ///< All of it is shown; a final line end alone doesn't count.
        Cleaned,    ///< Comments and empty lines are left out, nothing else.
        Incomplete, ///< The front part is shown, or nothing.
        Different,  ///< Something else is shown.
        Unreadable  ///< The file can't be read: see error().
    };

    ProgramComparison(const QString &path, const QString &shown);

    bool step() override;

    Verdict verdict() const { return m_verdict; }
    /// Lines as the editor counts, one more than there are line ends.
    qint64 fileLines() const { return m_fileLines; }
    qint64 shownLines() const { return m_shownLines; }
    QString error() const { return m_error; }
    /// The stamp of the file as it was before it was read.
    FileStamp stamp() const { return m_stamp; }

    /// What a file of this text counts as.
    static Verdict judge(const QString &file, const QString &shown);

private:
    const QString m_path;
    const QString m_shown;
    Verdict m_verdict = Unreadable;
    qint64 m_fileLines = 0;
    qint64 m_shownLines = 0;
    QString m_error;
    FileStamp m_stamp;
};

#endif // PROGRAMCOMPARISON_H
