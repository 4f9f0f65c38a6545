// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILETASKQUEUE_H
#define FILETASKQUEUE_H

#include "base/filarixhostglobal.h"
#include "storage/filetaskrunner.h"

#include <QQueue>

#include <functional>

/// Runs FileTasks one after the other beside the event loop, in the order of the calls.
///
///     const auto task = std::make_shared<ProgramComparison>(path, editor->toPlainText());
///     queue.run(task, [task](bool hasEnded) { show(hasEnded ? task->verdict() : unknown); });
class FILARIX_HOST_EXPORT FileTaskQueue : public QObject
{
    Q_OBJECT

public:
    /// \a hasEnded is false when the task stalled: then nobody may touch the task any more.
    typedef std::function<void(bool hasEnded)> Answer;

    explicit FileTaskQueue(QObject *parent = nullptr);

    bool isRunning() const { return m_work.isRunning(); }
    /// \a answer comes from the event loop, once.
    void run(const std::shared_ptr<FileTask> &task, const Answer &answer);
    /// Milliseconds that one step of a task may take; FileTaskRunner::stallMs at first.
    void setStallTime(int ms) { m_work.setStallTime(ms); }

private Q_SLOTS:
    void noteEnd() { end(true); }
    void noteStall() { end(false); }

private:
    struct Job
    {
        std::shared_ptr<FileTask> task;
        Answer answer;
    };

    void begin();
    void end(bool hasEnded);

    FileTaskRunner m_work;
    QQueue<Job> m_jobs;
};

#endif // FILETASKQUEUE_H
