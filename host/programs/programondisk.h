// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMONDISK_H
#define PROGRAMONDISK_H

#include "base/filarixhostglobal.h"
#include "storage/filestamp.h"
#include "storage/filetaskrunner.h"

#include <QDateTime>
#include <QString>

/// What an operator tells a stored program by, before another one is written over it.
class FILARIX_HOST_EXPORT ProgramOnDisk : public FileTask
{
public:
    enum Kind { Missing, File, NoFile };

    explicit ProgramOnDisk(const QString &path) : m_path(path) {}

    bool step() override;

    /// NoFile: a folder, a link, a device.
    Kind kind() const { return m_kind; }
    /// Lines as the editor counts; 0 when the file can't be read.
    qint64 lines() const { return m_lines; }
    /// In local time; invalid for none.
    QDateTime written() const { return m_written; }
    FileStamp stamp() const { return m_stamp; }

private:
    const QString m_path;
    Kind m_kind = Missing;
    qint64 m_lines = 0;
    QDateTime m_written;
    FileStamp m_stamp;
};

#endif // PROGRAMONDISK_H
