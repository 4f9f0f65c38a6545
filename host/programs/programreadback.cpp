// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programreadback.h"

#include "programs/programtext.h"
#include "storage/durablefile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <unistd.h>

ProgramReadback::ProgramReadback(const QString &path, const QString &text)
    : m_path(path), m_text(text)
{}

bool ProgramReadback::step()
{
    const QByteArray bytes = ProgramText::encoded(m_text);
    m_isFaithful = ProgramText::decoded(bytes) == m_text;
    m_isStored = readsBack(bytes);
    if (!m_isStored && m_reason.isEmpty())
        probe(bytes);
    return false;
}

bool ProgramReadback::readsBack(const QByteArray &bytes)
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_reason = file.errorString();
        return false;
    }
    // A disk may tell only now that it has no room.
    if (::fsync(file.handle()) != 0) {
        m_reason = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    m_stamp = FileStamp::of(file);
    if (file.readAll() != bytes)
        return false;
    DurableFile::syncFolder(QFileInfo(m_path).path());
    return true;
}

/// The library didn't look why its write failed. A second file of the same bytes meets the same
/// trouble, and tells.
void ProgramReadback::probe(const QByteArray &bytes)
{
    DurableFile file(m_path);
    if (file.open() && file.write(bytes))
        file.commit([] { return false; });
    m_reason = file.errorString();
}
