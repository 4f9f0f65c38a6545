// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/windinginspection.h"

namespace {

const int pieceBytes = 1 << 18;

} // namespace

WindingInspection::WindingInspection(const QString &path, const MachineProfile &profile)
    : m_file(path)
    , m_hasProfile(profile.isValid())
    , m_check(profile)
    , m_reading(profile, &m_check)
    , m_piece(pieceBytes, Qt::Uninitialized)
{}

std::function<std::shared_ptr<ProgramInspection>(const QString &path)>
WindingInspection::by(const MachineProfile &profile)
{
    return [profile](const QString &path) {
        return std::make_shared<WindingInspection>(path, profile);
    };
}

bool WindingInspection::step()
{
    if (!m_hasProfile)
        return end(ProgramVerdict::Unfinished);
    if (!m_file.isOpen() && !m_file.open(QFile::ReadOnly))
        return end(ProgramVerdict::Unfinished);
    const qint64 count = m_file.read(m_piece.data(), m_piece.size());
    if (count < 0)
        return end(ProgramVerdict::Unfinished);
    if (count == 0) {
        m_reading.finish();
        return end(ProgramVerdict::Checked);
    }
    m_reading.addBytes(m_piece.constData(), count);
    m_percent = int(100 * m_file.pos() / qMax(m_file.size(), m_file.pos()));
    return true;
}

int WindingInspection::percent() const
{
    return m_percent;
}

void WindingInspection::close()
{
    m_file.close();
}

ProgramVerdict WindingInspection::verdict() const
{
    ProgramVerdict verdict;
    verdict.state = m_state;
    verdict.errors = m_check.count(Finding::Error);
    verdict.warnings = m_check.count(Finding::Warning);
    verdict.forbidsSending = m_check.forbidsSending();
    return verdict;
}

bool WindingInspection::end(ProgramVerdict::State state)
{
    m_state = state;
    return false;
}
