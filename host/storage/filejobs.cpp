// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/filejobs.h"

FileJobs::FileJobs(QObject *parent) : QObject(parent)
{
    connect(&m_work, &FileWork::ended, this, [this] { end(true); });
    connect(&m_work, &FileWork::stalled, this, [this] { end(false); });
}

void FileJobs::run(const std::shared_ptr<FileTask> &task, const Answer &answer)
{
    m_jobs.enqueue({task, answer});
    if (!m_work.isRunning())
        begin();
}

void FileJobs::begin()
{
    m_work.start(m_jobs.head().task);
}

// The answer may run an event loop, in which the next job does its work.
void FileJobs::end(bool hasEnded)
{
    const Answer answer = m_jobs.dequeue().answer;
    if (!m_jobs.isEmpty())
        begin();
    answer(hasEnded);
}
