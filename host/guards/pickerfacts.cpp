// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/pickerfacts.h"

#include "programs/programname.h"
#include "winding/coilfigures.h"

#include <QStringList>

const int PickerFacts::restMs;
const int PickerFacts::stallMs;

namespace {

const int edge = 4;
const int bytesPerKilobyte = 1024;

} // namespace

PickerFacts::PickerFacts(const QString &folder, const MachineProfile &profile, bool isForSaving,
                         QWidget *parent)
    : QLabel(parent), m_folder(folder), m_profile(profile), m_isForSaving(isForSaving)
{
    setObjectName(QLatin1String("pickerFacts"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setMargin(edge);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMs);
    connect(&m_rest, SIGNAL(timeout()), SLOT(begin()));
    m_runner.setStallTime(stallMs);
    connect(&m_runner, SIGNAL(progressed(int)), SLOT(showProgress()));
    connect(&m_runner, SIGNAL(ended()), SLOT(showAll()));
    connect(&m_runner, SIGNAL(stopped()), SLOT(begin()));
    connect(&m_runner, SIGNAL(stalled()), SLOT(showStalled()));
}

void PickerFacts::tell(const QString &name)
{
    m_name = name;
    clear();
    if (m_runner.isRunning())
        m_runner.stop();
    m_rest.start();
}

/// A reader that was stopped is heard of when its step has come back, and only then is the next one
/// begun.
void PickerFacts::begin()
{
    if (m_rest.isActive() || m_runner.isRunning())
        return;
    m_summary.reset();
    // What no program can be called needs no look at the disk.
    if (m_name.isEmpty() || !ProgramName::complaint(m_name).isEmpty())
        return clear();
    setText(tr("Reading %1 ...").arg(m_name));
    m_summary = std::make_shared<ProgramSummary>(m_folder + QLatin1Char('/') + m_name, m_profile);
    m_runner.start(m_summary);
}

void PickerFacts::showProgress()
{
    if (!m_rest.isActive())
        setText(linesOf(*m_summary, false));
}

void PickerFacts::showAll()
{
    // The choice has moved on in the last step.
    if (m_rest.isActive())
        return;
    setText(linesOf(*m_summary, true));
}

/// The reader may still be at work: nobody looks at it any more.
void PickerFacts::showStalled()
{
    m_summary.reset();
    if (m_rest.isActive())
        return;
    setText(tr("The panel's storage does not answer."));
}

QString PickerFacts::missing() const
{
    return m_isForSaving ? tr("A new program.") : tr("There is no program of this name.");
}

QString PickerFacts::linesOf(const ProgramSummary &summary, bool isDone) const
{
    switch (summary.kind()) {
    case ProgramSummary::Missing:
        return missing();
    case ProgramSummary::NoProgram:
        return tr("This is no program file.");
    case ProgramSummary::Unreadable:
        return tr("It cannot be read: %1.").arg(summary.error());
    default:
        break;
    }
    QStringList lines;
    if (m_isForSaving)
        lines.append(tr("It is there already."));
    if (!summary.comment().isEmpty())
        lines.append(summary.comment());
    if (isDone && !summary.isWhole())
        lines.append(tr("More than %1 lines: too long to be read here.").arg(summary.lines()));
    else if (isDone)
        lines.append(tr("%1 lines").arg(summary.lines()));
    else
        lines.append(tr("Reading: %1 %").arg(summary.percent()));
    if (summary.turns() > 0)
        lines.append(tr("%1 turns, %2 m of wire")
                         .arg(CoilFigures::number(summary.turns(), 1),
                              CoilFigures::number(summary.wireLength(), 1)));
    lines.append(tr("%1 KB").arg((summary.size() + bytesPerKilobyte - 1) / bytesPerKilobyte));
    lines.append(summary.written().toLocalTime().toString(QLatin1String("yyyy-MM-dd HH:mm")));
    return lines.join(QLatin1String("\n"));
}
