// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filework.h"

const int FileWork::kStallMs;

FileWork::FileWork(QObject *parent) : QObject(parent)
{
    m_stall.setSingleShot(true);
    m_stall.setInterval(kStallMs);
    connect(&m_stall, &QTimer::timeout, this, &FileWork::giveUp);
}

FileWork::~FileWork() = default;

void FileWork::start(const std::shared_ptr<FileTask> &task)
{
    if (isRunning())
        return;
    if (!m_thread)
        m_thread.reset(new FileThread);
    m_task = task;
    m_stopping = false;
    post();
}

void FileWork::stop()
{
    m_stopping = isRunning();
}

void FileWork::post()
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

void FileWork::answer(Step step)
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

// In the thread: to close a file can take as long as to write it.
void FileWork::close()
{
    const std::shared_ptr<FileTask> task = m_task;
    m_task.reset();
    m_thread->post([task] { task->close(); }, [] {});
}

void FileWork::giveUp()
{
    m_thread->giveUp();
    m_thread.reset();
    m_task.reset();
    Q_EMIT stalled();
}
