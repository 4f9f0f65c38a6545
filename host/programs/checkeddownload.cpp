// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/checkeddownload.h"

#include "programs/programcomparison.h"
#include "programs/programtext.h"

#include <QPointer>

namespace {

// Work that takes less is over before anybody has read that it is done.
const int patienceMs = 300;
const int sendAnswer = 1;

DownloadFacts::Standing standingOf(ProgramComparison::Verdict verdict)
{
    switch (verdict) {
    case ProgramComparison::Same:
        return DownloadFacts::Same;
    case ProgramComparison::Cleaned:
        return DownloadFacts::Cleaned;
    case ProgramComparison::Incomplete:
        return DownloadFacts::Incomplete;
    case ProgramComparison::Different:
        return DownloadFacts::Different;
    case ProgramComparison::Unreadable:
        break;
    }
    return DownloadFacts::NotCompared;
}

} // namespace

CheckedDownload::CheckedDownload(const QString &plcDir, const QString &copyDir,
                                 Questioner *questioner, QObject *parent)
    : QObject(parent), m_snapshot(copyDir), m_transfer(plcDir), m_questioner(questioner)
{
    connect(&m_snapshot, SIGNAL(progress(int)), this, SLOT(showCopying(int)));
    connect(&m_snapshot, SIGNAL(taken()), this, SLOT(lookAtShown()));
    connect(&m_snapshot, SIGNAL(failed(QString)), this, SLOT(endUncopied(QString)));
    connect(&m_snapshot, SIGNAL(stopped(QString)), this, SLOT(endStopped(QString)));
    connect(&m_snapshot, SIGNAL(compared(ProgramSnapshot::Verdict)), this,
            SLOT(endSent(ProgramSnapshot::Verdict)));
    connect(&m_transfer, SIGNAL(progress(int)), this, SLOT(showSending(int)));
    connect(&m_transfer, SIGNAL(finished(QString, qint64)), &m_snapshot, SLOT(compare()));
    connect(&m_transfer, SIGNAL(failed(QString)), this, SLOT(endUnsent(QString)));
    connect(&m_transfer, SIGNAL(stopped(QString)), this, SLOT(endSendingStopped(QString)));
}

QString CheckedDownload::plcCause()
{
    return QLatin1String("plc");
}

void CheckedDownload::setStallTime(int ms)
{
    m_snapshot.setStallTime(ms);
    m_transfer.setStallTime(ms);
    m_jobs.setStallTime(ms);
}

void CheckedDownload::start(const QString &path)
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_isStopped = false;
    m_isCopying = true;
    m_facts = DownloadFacts();
    m_copyingFor.start();
    m_snapshot.take(path);
}

void CheckedDownload::stop()
{
    m_isStopped = m_isReading;
    m_snapshot.stop();
    m_transfer.stop();
}

/// Most programs are copied before an operator could read this. The snapshot reads once more at the
/// end.
void CheckedDownload::showCopying(int percent)
{
    if (m_isCopying && m_copyingFor.elapsed() >= patienceMs)
        Q_EMIT worked(tr("The program is made ready: %1 %").arg(percent), percent);
}

void CheckedDownload::lookAtShown()
{
    m_isCopying = false;
    m_isReading = true;
    m_facts.program = m_snapshot.facts();
    QString text;
    if (m_shown && m_shown(m_snapshot.programPath(), &text))
        compare(text);
    else
        inspect();
}

/// Compares the shown text with the copy: the program itself may be another one by now.
void CheckedDownload::compare(const QString &shownText)
{
    m_facts.shownLines = ProgramText::lines(shownText);
    const std::shared_ptr<ProgramComparison> comparison =
        std::make_shared<ProgramComparison>(m_snapshot.copyPath(), shownText);
    m_jobs.run(comparison, [this, comparison](bool hasEnded) {
        // What stalled may not be looked at any more.
        m_facts.standing =
            hasEnded ? standingOf(comparison->verdict()) : DownloadFacts::NotCompared;
        goOn([this] { inspect(); });
    });
}

// With the copy, too: those very bytes are sent.
void CheckedDownload::inspect()
{
    const std::shared_ptr<ProgramInspection> inspection =
        m_inspector ? m_inspector(m_snapshot.copyPath()) : std::shared_ptr<ProgramInspection>();
    if (!inspection)
        return ask();
    m_jobs.run(inspection, [this, inspection](bool hasEnded) {
        if (hasEnded)
            m_facts.verdict = inspection->verdict();
        else
            m_facts.verdict.state = ProgramVerdict::Unfinished;
        goOn([this] { ask(); });
    });
}

void CheckedDownload::goOn(const std::function<void()> &next)
{
    if (!m_isStopped)
        return next();
    m_isReading = false;
    endStopped(tr("The download was stopped. The PLC keeps what it had."));
}

void CheckedDownload::ask()
{
    m_isReading = false;
    const QPointer<CheckedDownload> self(this);
    const bool mayGo = isAgreedTo();
    if (!self)
        return;
    if (!mayGo)
        return end(tr("Nothing was sent. The PLC keeps what it had."), Message::Information);
    m_transfer.start(m_snapshot.programPath(), m_snapshot.copyPath(), m_facts.program.hash);
}

// The first question may outlive this object, which is then gone without an answer.
bool CheckedDownload::isAgreedTo()
{
    const QPointer<CheckedDownload> self(this);
    const DownloadFacts facts = m_facts;
    if (m_questioner->ask(facts.question()) != sendAnswer || facts.verdict.forbidsSending || !self)
        return false;
    return !facts.verdict.isDoubtful() || m_questioner->ask(facts.secondQuestion()) == sendAnswer;
}

void CheckedDownload::showSending(int percent)
{
    Q_EMIT worked(
        tr("%1 goes to the PLC: %2 %").arg(m_facts.program.name, QString::number(percent)),
        percent);
}

void CheckedDownload::endUncopied(const QString &reason)
{
    end(reason, Message::Warning);
}

void CheckedDownload::endStopped(const QString &text)
{
    end(text, Message::Information);
}

void CheckedDownload::endUnsent(const QString &reason)
{
    if (m_transfer.isPlcAtFault())
        end(reason, Message::Alarm, plcCause());
    else
        end(reason, Message::Warning);
}

/// The next download that is compared ends what is told about an uncompared program.
void CheckedDownload::endSendingStopped(const QString &text)
{
    if (m_transfer.isUncompared())
        end(text, Message::Warning, plcCause());
    else
        end(text, Message::Information);
}

void CheckedDownload::endSent(ProgramSnapshot::Verdict verdict)
{
    // Whatever became of the program on the panel, the PLC took what it was sent.
    Q_EMIT causeEnded(plcCause());
    const ProgramFacts &program = m_facts.program;
    switch (verdict) {
    case ProgramSnapshot::Same:
        return end(tr("%1 is in the PLC: %2 bytes, compared.")
                       .arg(program.name, QString::number(program.bytes)),
                   Message::Information);
    case ProgramSnapshot::Changed:
        return end(tr("%1 is in the PLC as shown, %2. On the panel it has changed since: download "
                      "it once more.")
                       .arg(program.name, program.checksum()),
                   Message::Warning);
    case ProgramSnapshot::Gone:
        return end(tr("%1 is in the PLC as it was shown, %2. On the panel it is gone.")
                       .arg(program.name, program.checksum()),
                   Message::Warning);
    }
}

/// Every way out of a download comes through here, so the host's key is always given back.
void CheckedDownload::end(const QString &text, Message::Tone tone, const QString &cause)
{
    m_snapshot.drop();
    m_isRunning = false;
    const QPointer<CheckedDownload> self(this);
    Q_EMIT ended();
    if (self)
        Q_EMIT told(text, tone, cause);
}
