// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/filetaskqueue.h"

FileTaskQueue::FileTaskQueue(QObject *parent) : QObject(parent)
{
    connect(&m_work, SIGNAL(ended()), this, SLOT(noteEnd()));
    connect(&m_work, SIGNAL(stalled()), this, SLOT(noteStall()));
}

void FileTaskQueue::run(const std::shared_ptr<FileTask> &task, const Answer &answer)
{
    m_jobs.enqueue({task, answer});
    if (!m_work.isRunning())
        begin();
}

void FileTaskQueue::begin()
{
    m_work.start(m_jobs.head().task);
}

/// The answer may run an event loop, in which the next job does its work.
void FileTaskQueue::end(bool hasEnded)
{
    const Answer answer = m_jobs.dequeue().answer;
    if (!m_jobs.isEmpty())
        begin();
    answer(hasEnded);
}
