// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programcomparison.h"

#include "programs/programtext.h"

namespace {

/// Whether \a shown is what the loader makes of the file, as a whole or up to some piece.
ProgramComparison::Verdict follow(const QStringList &pieces, const QString &shown)
{
    int at = 0;
    bool isWhole = true;
    for (const QString &piece : pieces) {
        if (piece.isEmpty())
            continue;
        if (at == shown.size() && (at > 0 || shown.isEmpty())) {
            isWhole = false;
            break;
        }
        const QString expected = at > 0 ? QLatin1Char('\n') + piece : piece;
        if (shown.midRef(at, expected.size()) != expected)
            return ProgramComparison::Different;
        at += expected.size();
    }
    if (at != shown.size())
        return ProgramComparison::Different;
    return isWhole ? ProgramComparison::Cleaned : ProgramComparison::Incomplete;
}

} // namespace

ProgramComparison::ProgramComparison(const QString &path, const QString &shown)
    : m_path(path), m_shown(shown)
{}

bool ProgramComparison::step()
{
    m_shownLines = ProgramText::lines(m_shown);
    m_stamp = FileStamp::of(m_path);
    QString file;
    bool isFaithful = true;
    if (!ProgramText::read(m_path, &file, &m_error, &isFaithful))
        return false;
    m_fileLines = ProgramText::lines(file);
    m_verdict = judge(file, m_shown);
    // A save would store something else for what could not be decoded.
    if (!isFaithful && m_verdict == Same)
        m_verdict = Different;
    return false;
}

ProgramComparison::Verdict ProgramComparison::judge(const QString &file, const QString &shown)
{
    if (file == shown || file == shown + QLatin1Char('\n'))
        return Same;
    return follow(ProgramText::loaded(file), shown);
}
