// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/owntransfer.h"

#include "wmmainwindow.h"

const int OwnTransfer::longestMs;

OwnTransfer::OwnTransfer(WMMainWindow *window, const QString &copyDir, const Send &send,
                         QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_copy(copyDir)
    , m_send(send)
    , m_isSending(std::make_shared<std::atomic<bool>>(false))
{
    m_job.setStallTime(longestMs);
    connect(window, SIGNAL(signal_download(QString)), SLOT(take(QString)));
    connect(&m_copy, SIGNAL(taken()), SLOT(begin()));
    connect(&m_copy, SIGNAL(failed(QString)), SLOT(giveUp(QString)));
}

void OwnTransfer::take(const QString &path)
{
    if (m_isRunning)
        return;
    if (*m_isSending) {
        Q_EMIT told(tr("The machine has not ended the last download yet. Wait, then download once "
                       "more."),
                    Message::Warning);
        return;
    }
    setRunning(true);
    m_copy.take(path);
}

void OwnTransfer::begin()
{
    const Send send = m_send;
    const QString copy = m_copy.copyPath();
    const ProgramFacts facts = m_copy.facts();
    const std::shared_ptr<QString> reason = std::make_shared<QString>();
    const std::shared_ptr<std::atomic<bool>> isSending = m_isSending;
    m_job.run(
        [send, copy, facts, reason, isSending] {
            *isSending = true;
            *reason = send(copy, facts);
            *isSending = false;
        },
        [this, reason] { endSent(*reason); },
        [this] {
            end(tr("The machine stopped answering: whether it holds %1 is not known. Check it, "
                   "then download again.")
                    .arg(m_copy.facts().name),
                Message::Alarm);
        });
}

void OwnTransfer::giveUp(const QString &reason)
{
    end(reason, Message::Warning);
}

void OwnTransfer::endSent(const QString &reason)
{
    if (!reason.isEmpty())
        return end(reason, Message::Warning);
    end(tr("%1 is in the machine.").arg(m_copy.facts().name), Message::Information);
}

void OwnTransfer::end(const QString &text, Message::Tone tone)
{
    m_copy.drop();
    setRunning(false);
    Q_EMIT told(text, tone);
}

void OwnTransfer::setRunning(bool isRunning)
{
    m_isRunning = isRunning;
    if (m_window)
        m_window->setDownloading(isRunning);
}
