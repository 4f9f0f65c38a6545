// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/filetaskrunner.h"

const int FileTaskRunner::stallMs;

void FileTask::giveUp()
{
    m_isUncertain = m_state.fetch_or(GivenUp) & Changing;
}

bool FileTask::beginChange()
{
    int idle = Idle;
    return m_state.compare_exchange_strong(idle, Changing);
}

void FileTask::endChange()
{
    m_state.fetch_and(~Changing);
}

FileTaskRunner::FileTaskRunner(QObject *parent) : QObject(parent)
{
    m_stall.setSingleShot(true);
    m_stall.setInterval(stallMs);
    connect(&m_stall, SIGNAL(timeout()), this, SLOT(giveUp()));
}

FileTaskRunner::~FileTaskRunner()
{
    if (isRunning())
        abandon();
}

void FileTaskRunner::start(const std::shared_ptr<FileTask> &task)
{
    if (isRunning())
        return;
    if (!m_thread)
        m_thread.reset(new FileThread);
    m_task = task;
    m_stopping = false;
    post();
}

void FileTaskRunner::stop()
{
    m_stopping = isRunning();
}

void FileTaskRunner::post()
{
    m_stall.start();
    const std::shared_ptr<FileTask> task = m_task;
    const std::shared_ptr<Step> step = std::make_shared<Step>(Last);
    m_thread->post(
        [task, step] {
            *step = task->step() ? More : Last;
            if (*step == Last)
                task->close();
        },
        [this, step] { answer(*step); });
}

void FileTaskRunner::answer(Step step)
{
    m_stall.stop();
    if (step == Last) {
        m_task.reset();
        Q_EMIT ended();
        return;
    }
    // Whoever listens may stop the work.
    if (!m_stopping)
        Q_EMIT progressed(m_task->percent());
    if (!m_stopping)
        return post();
    close();
    Q_EMIT stopped();
}

/// Files are closed in the thread: to close one can take as long as to write it.
void FileTaskRunner::close()
{
    const std::shared_ptr<FileTask> task = m_task;
    m_task.reset();
    m_thread->post([task] { task->close(); }, [] {});
}

void FileTaskRunner::giveUp()
{
    abandon();
    m_thread->giveUp();
    m_thread.reset();
    Q_EMIT stalled();
}

/// The task lets go of its files in the thread, when the step in hand has come back.
void FileTaskRunner::abandon()
{
    const std::shared_ptr<FileTask> task = m_task;
    m_task.reset();
    task->giveUp();
    if (task->isUncertain())
        m_uncertain = task;
    m_thread->setLast([task] { task->close(); });
}
