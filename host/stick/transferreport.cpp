// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stick/transferreport.h"

#include <QFile>

#include <fcntl.h>

namespace {

const qint64 pieceBytes = qint64(256) * 1024;

bool openForCompare(QFile *file)
{
    if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    // What the disk holds counts, not what the system remembers of the write.
    ::posix_fadvise(file->handle(), 0, 0, POSIX_FADV_DONTNEED);
    return true;
}

bool areSame(const QString &first, const QString &second)
{
    QFile a(first);
    QFile b(second);
    if (!openForCompare(&a) || !openForCompare(&b) || a.size() != b.size())
        return false;
    for (;;) {
        const QByteArray piece = a.read(pieceBytes);
        if (a.error() != QFile::NoError || piece != b.read(pieceBytes))
            return false;
        if (piece.isEmpty())
            return b.error() == QFile::NoError;
    }
}

} // namespace

TransferReport::TransferReport(Command command, const QString &programDir, const QString &stickDir,
                               const QString &name)
    : m_command(command), m_programDir(programDir), m_stickDir(stickDir), m_name(name)
{}

QString TransferReport::source() const
{
    return (m_command == CopyToStick ? m_programDir : m_stickDir) + QLatin1Char('/') + m_name;
}

QString TransferReport::target() const
{
    return (changesPrograms() ? m_programDir : m_stickDir) + QLatin1Char('/') + m_name;
}

void TransferReport::lookBefore()
{
    m_before = FileStamp::of(target());
}

TransferReport::Outcome TransferReport::judge() const
{
    const FileStamp now = FileStamp::of(target());
    if (m_command == DeleteFromPanel || m_command == DeleteFromStick)
        return m_before.isValid() && !now.isValid() ? Deleted : Nothing;
    if (!now.isValid())
        return m_before.isValid() ? Lost : NotCopied;
    if (now == m_before)
        return Nothing;
    return areSame(source(), target()) ? Copied : Different;
}
