// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/filejob.h"

#include <QEventLoop>
#include <QPointer>

namespace {

class OneStep : public FileTask
{
public:
    explicit OneStep(const FileJob::Work &work) : m_work(work) {}

    bool step() override
    {
        m_work();
        return false;
    }

private:
    const FileJob::Work m_work;
};

} // namespace

FileJob::FileJob(QObject *parent) : QObject(parent)
{
    connect(&m_work, SIGNAL(ended()), this, SLOT(finishDone()));
    connect(&m_work, SIGNAL(stalled()), this, SLOT(finishStalled()));
}

void FileJob::run(const Work &work, const Work &done, const Work &stalled)
{
    if (isRunning())
        return;
    m_done = done;
    m_stalled = stalled;
    m_work.start(std::make_shared<OneStep>(work));
}

/// By value: the answer may begin the next work, and may end the job's owner.
void FileJob::finish(const Work &answer)
{
    const Work held = answer;
    const QPointer<FileJob> guard(this);
    held();
    if (guard)
        Q_EMIT finished();
}

void FileJob::wait()
{
    if (!isRunning())
        return;
    QEventLoop loop;
    connect(this, SIGNAL(finished()), &loop, SLOT(quit()));
    connect(this, SIGNAL(destroyed()), &loop, SLOT(quit()));
    loop.exec();
}
