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
const char lineGap[] = "   ";

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

void PickerFacts::setRoom(Room room)
{
    m_room = room;
    setWordWrap(room != OneLine);
    setAlignment((room == OneLine ? Qt::AlignVCenter : Qt::AlignTop) | Qt::AlignLeft);
    fit();
}

void PickerFacts::tell(const QString &name)
{
    m_name = name;
    m_isStopped = false;
    say(QString());
    if (m_runner.isRunning())
        m_runner.stop();
    m_summary.reset();
    m_rest.start();
}

/// A reader that was stopped is heard of when its step has come back, and only then is the next one
/// begun.
void PickerFacts::begin()
{
    if (m_rest.isActive() || m_runner.isRunning())
        return;
    m_summary.reset();
    if (m_isStopped) {
        say(tr("Not read to its end: it was stopped."));
        Q_EMIT settled();
        return;
    }
    // What no program can be called needs no look at the disk.
    if (m_name.isEmpty() || !ProgramName::complaint(m_name).isEmpty()) {
        say(QString());
        Q_EMIT settled();
        return;
    }
    say(tr("Reading %1 ...").arg(m_name));
    m_summary = std::make_shared<ProgramSummary>(m_folder + QLatin1Char('/') + m_name, m_profile);
    m_runner.start(m_summary);
}

void PickerFacts::stop()
{
    if (!m_runner.isRunning() || m_rest.isActive())
        return;
    m_isStopped = true;
    m_runner.stop();
}

void PickerFacts::showProgress()
{
    if (!m_summary)
        return;
    display(factsOf(*m_summary, false));
    Q_EMIT progressed(m_summary->percent());
}

void PickerFacts::showAll()
{
    // The choice has moved on in the last step, which may have taken longer than the rest.
    if (!m_summary)
        return begin();
    display(factsOf(*m_summary, true));
    Q_EMIT settled();
}

/// The reader may still be at work: nobody looks at it any more.
void PickerFacts::showStalled()
{
    m_summary.reset();
    if (m_rest.isActive())
        return;
    say(tr("The panel's storage does not answer."));
    Q_EMIT settled();
}

void PickerFacts::say(const QString &words)
{
    display(words.isEmpty() ? QStringList() : QStringList(words));
}

void PickerFacts::display(const QStringList &facts)
{
    m_shown = facts;
    fit();
}

/// The first one stays, however long it is.
void PickerFacts::fit()
{
    const QString gap = QLatin1String(m_room == OneLine ? lineGap : "\n");
    QString shown = m_shown.value(0);
    for (int i = 1; i < m_shown.size(); ++i) {
        const QString more = shown + gap + m_shown.at(i);
        if (m_room == AllOfThem || fits(more))
            shown = more;
    }
    if (shown != text())
        setText(shown);
}

bool PickerFacts::fits(const QString &text) const
{
    const QSize room = contentsRect().size() - QSize(2 * margin(), 2 * margin());
    if (m_room == OneLine)
        return fontMetrics().width(text) <= room.width();
    const QRect place(0, 0, room.width(), QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(place, Qt::TextWordWrap, text).height() <= room.height();
}

void PickerFacts::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}

void PickerFacts::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fit();
}

QString PickerFacts::missing() const
{
    return m_isForSaving ? tr("A new program.") : tr("There is no program of this name.");
}

QStringList PickerFacts::factsOf(const ProgramSummary &summary, bool isDone) const
{
    switch (summary.kind()) {
    case ProgramSummary::Missing:
        return QStringList(missing());
    case ProgramSummary::NoProgram:
        return QStringList(tr("This is no program file."));
    case ProgramSummary::Unreadable:
        return QStringList(tr("It cannot be read: %1.").arg(summary.error()));
    default:
        break;
    }
    QStringList lines;
    if (m_isForSaving)
        lines.append(tr("It is there already."));
    // In one line the comment takes what room is left.
    if (!summary.comment().isEmpty() && m_room != OneLine)
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
    // The pickers show all of the others, and have no room for one more.
    if (summary.seconds() > 0 && m_room != AllOfThem)
        lines.append(tr("Runs for %1").arg(CoilFigures::timeText(summary.seconds())));
    lines.append(tr("%1 KB").arg((summary.size() + bytesPerKilobyte - 1) / bytesPerKilobyte));
    lines.append(summary.written().toLocalTime().toString(QLatin1String("yyyy-MM-dd HH:mm")));
    if (!summary.comment().isEmpty() && m_room == OneLine)
        lines.append(summary.comment());
    return lines;
}
