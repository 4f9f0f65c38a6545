// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/checkmarks.h"

#include "base/hostcompat.h"

#include <QTextBlock>

#include <algorithm>

namespace {

ErrorMarks::Severity markOf(Finding::Severity severity)
{
    switch (severity) {
    case Finding::Note:
        return ErrorMarks::Note;
    case Finding::Warning:
        return ErrorMarks::Warning;
    case Finding::Error:
        break;
    }
    return ErrorMarks::Error;
}

bool isMilder(const Finding &one, const Finding &other)
{
    return one.severity < other.severity;
}

} // namespace

/// Knows besides whether the program has begun: nobody has to end one that has not.
class Q_DECL_HIDDEN CheckMarks::Check : public ProgramCheck
{
public:
    explicit Check(const MachineProfile &profile) : ProgramCheck(profile) {}

    void add(const GCodeBlock &block, const WindingStep &step, const WindingModel &model) override
    {
        m_hasBegun = m_hasBegun || block.wordCount > 0 || block.faultCount > 0;
        ProgramCheck::add(block, step, model);
    }

    bool hasBegun() const { return m_hasBegun; }

private:
    bool m_hasBegun = false;
};

const int CheckMarks::pauseMs;

CheckMarks::CheckMarks(QPlainTextEdit *editor, QObject *parent)
    : QObject(parent), m_editor(editor), m_marks(editor)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMs);
    m_review.setListenerMaker([this] {
        m_check = std::make_shared<Check>(m_review.profile());
        return m_check;
    });
    connect(&m_pause, SIGNAL(timeout()), SLOT(begin()));
    connect(&m_review, SIGNAL(reviewed()), SLOT(take()));
    connect(editor, SIGNAL(textChanged()), SLOT(noteChange()));
}

CheckMarks::~CheckMarks() = default;

void CheckMarks::setProfile(const MachineProfile &profile)
{
    m_review.setProfile(profile);
    m_hasProfile = true;
    begin();
}

bool CheckMarks::isCurrent() const
{
    return m_editor && m_check && !m_pause.isActive() && !m_review.isRunning()
           && m_review.revision() == m_editor->document()->revision();
}

/// A program that is loaded comes in pieces, and each piece is a change.
void CheckMarks::noteChange()
{
    if (!m_hasProfile)
        return;
    m_review.stop();
    m_pause.start();
}

void CheckMarks::begin()
{
    m_pause.stop();
    if (m_editor)
        m_review.start(m_editor->document());
}

void CheckMarks::take()
{
    m_findings = m_check->hasBegun() ? m_check->findings() : QVector<Finding>();
    mark(m_findings, &m_marks);
    Q_EMIT checked();
}

QString CheckMarks::goToNext()
{
    if (!m_editor || m_marks.rows().isEmpty())
        return QString();
    const int next = m_marks.nextRow(m_editor->textCursor().blockNumber() + 1);
    const int row = next > 0 ? next : m_marks.nextRow(0);
    m_editor->setTextCursor(QTextCursor(m_editor->document()->findBlockByNumber(row - 1)));
    return m_marks.text(row);
}

// The worst of a line comes last, and stays.
void CheckMarks::mark(const QVector<Finding> &findings, ErrorMarks *marks)
{
    marks->clear();
    QVector<Finding> sorted = findings;
    std::stable_sort(sorted.begin(), sorted.end(), isMilder);
    for (const Finding &finding : HostCompat::readOnly(sorted))
        marks->mark(finding.line, markOf(finding.severity), finding.text());
}
