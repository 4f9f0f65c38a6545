// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programondisk.h"

#include <QFile>
#include <QFileInfo>

namespace {

const int pieceSize = 64 * 1024;

} // namespace

bool ProgramOnDisk::step()
{
    const QFileInfo info(m_path);
    if (!info.exists() && !info.isSymLink())
        return false;
    m_kind = info.isFile() && !info.isSymLink() ? File : NoFile;
    m_written = info.lastModified();
    m_stamp = FileStamp::of(m_path);
    QFile file(m_path);
    if (m_kind == NoFile || !file.open(QIODevice::ReadOnly))
        return false;
    m_lines = 1;
    for (QByteArray piece = file.read(pieceSize); !piece.isEmpty(); piece = file.read(pieceSize))
        m_lines += piece.count('\n');
    return false;
}
