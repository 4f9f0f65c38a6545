// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programwrite.h"

#include "programs/programname.h"
#include "programs/programreadback.h"
#include "programs/programtext.h"
#include "storage/durablefile.h"

#include <QDir>
#include <QFileInfo>

ProgramWrite::ProgramWrite(const QString &path, const QString &text, Place place)
    : m_path(path), m_text(text), m_place(place)
{}

bool ProgramWrite::step()
{
    if (m_place == BesideAll) {
        const QDir folder = QFileInfo(m_path).dir();
        const QStringList taken = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
        m_path = folder.filePath(ProgramName::freeOne(QFileInfo(m_path).fileName(), taken));
    }
    DurableFile file(m_path);
    m_isStored = file.open() && file.write(ProgramText::encoded(m_text))
                 && file.commit([this] { return m_leave.take(); });
    m_reason = file.errorString();
    if (m_isStored)
        readBack();
    return false;
}

/// What counts is what the disk gives back.
void ProgramWrite::readBack()
{
    ProgramReadback readback(m_path, m_text);
    readback.step();
    m_isStored = readback.isStored();
    m_isFaithful = readback.isFaithful();
    m_stamp = readback.stamp();
    m_reason = readback.reason();
}
