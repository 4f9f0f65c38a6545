// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programlisting.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const int filesPerStep = 250;
const qint64 msPerSecond = 1000;
const qint64 nsPerMs = 1000000;

ProgramListing::Entry entryOf(const QString &path)
{
    ProgramListing::Entry entry;
    struct stat status;
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
        return entry;
    entry.size = status.st_size;
    entry.written = qint64(status.st_mtim.tv_sec) * msPerSecond + status.st_mtim.tv_nsec / nsPerMs;
    return entry;
}

} // namespace

bool ProgramListing::step()
{
    if (m_next == 0)
        m_isWritable = ::access(QFile::encodeName(m_folder).constData(), W_OK) == 0;
    const int end = qMin(m_next + filesPerStep, m_names.size());
    for (; m_next < end; ++m_next) {
        const QString &name = m_names.at(m_next);
        m_entries.insert(name, entryOf(m_folder + QLatin1Char('/') + name));
    }
    return m_next < m_names.size();
}
