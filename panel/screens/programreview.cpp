// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/programreview.h"

#include "guards/checkmarks.h"
#include "programs/windinginspection.h"
#include "screens/coilpreview.h"

#include <algorithm>

ProgramReview::ProgramReview(CoilPreview *preview, QPlainTextEdit *editor, QObject *parent)
    : QObject(parent), m_preview(preview), m_marks(editor)
{
    m_preview->setCompanion([this] {
        m_next = std::make_shared<ProgramCheck>(m_preview->profile());
        return m_next;
    });
    connect(m_preview, &CoilPreview::settled, this, &ProgramReview::take);
    connect(m_preview, &CoilPreview::changed, this, &ProgramReview::changed);
    m_preview->setViewed(this, true);
}

ProgramReview::~ProgramReview()
{
    m_preview->setViewed(this, false);
    m_preview->setCompanion(nullptr);
}

ProgramReview::State ProgramReview::state() const
{
    if (!m_preview->profileFaults().isEmpty())
        return Off;
    return m_check && m_preview->isCurrent() ? Checked : Waiting;
}

QString ProgramReview::summary() const
{
    switch (state()) {
    case Off:
        return tr("No check: the machine's profile has a fault.");
    case Waiting:
        return m_preview->isStopped()
                   ? tr("The check was stopped. The next change, or the screen Preview, begins it "
                        "anew.")
                   : tr("The program is being checked.");
    case Checked:
        break;
    }
    if (m_findings.isEmpty())
        return tr("Nothing found, by the rules of \"%1\".").arg(rules());
    return counts();
}

QString ProgramReview::counts() const
{
    return tr("Errors: %1, warnings: %2").arg(errors()).arg(warnings());
}

QString ProgramReview::rules() const
{
    return m_preview->profile().name();
}

const MachineProfile &ProgramReview::profile() const
{
    return m_preview->profile();
}

int ProgramReview::after(int line) const
{
    const auto found = std::find_if(m_findings.begin(), m_findings.end(),
                                    [line](const Finding &finding) { return finding.line > line; });
    return found == m_findings.end() ? -1 : int(found - m_findings.begin());
}

int ProgramReview::before(int line) const
{
    for (int i = m_findings.size() - 1; i >= 0; --i) {
        if (m_findings.at(i).line < line)
            return i;
    }
    return -1;
}

int ProgramReview::indexOf(const Finding &finding) const
{
    const auto isSame = [&finding](const Finding &other) {
        return other.kind == finding.kind && other.line == finding.line
               && other.column == finding.column;
    };
    const auto found = std::find_if(m_findings.begin(), m_findings.end(), isSame);
    return found == m_findings.end() ? -1 : int(found - m_findings.begin());
}

std::shared_ptr<ProgramInspection> ProgramReview::inspect(const QString &path) const
{
    return std::make_shared<WindingInspection>(path, m_preview->profile());
}

int ProgramReview::count(Finding::Severity severity) const
{
    return m_check && !m_isSilent ? m_check->count(severity) : 0;
}

void ProgramReview::take()
{
    m_check = m_next;
    // Without rules each word would be a fault, and nobody has to end a program that is not begun.
    m_isSilent = state() == Off || m_preview->state() == CoilPreview::Empty;
    m_findings = m_check && !m_isSilent ? m_check->findings() : QVector<Finding>();
    CheckMarks::mark(m_findings, &m_marks);
    Q_EMIT changed();
}
