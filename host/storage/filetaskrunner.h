// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILETASKRUNNER_H
#define FILETASKRUNNER_H

#include "base/filarixhostglobal.h"
#include "storage/filethread.h"

#include <QScopedPointer>
#include <QTimer>

#include <atomic>

/// Long work on files, cut into steps.
///
/// The steps run in a FileThread, one at a time. Between two steps nothing runs, so whoever started
/// the work may read the task then.
///
/// A task that is given up, because a step hangs, changes nothing from then on, however late the
/// step comes back. For that it asks before whatever others can see, right before it does so:
///
///     if (!beginChange())
///         return false;
///     rename(...);
///     endChange();
class FILARIX_HOST_EXPORT FileTask
{
public:
    FileTask() = default;
    virtual ~FileTask() = default;

    /// Does a piece of the work that takes a moment; whether there is more to do.
    virtual bool step() = 0;
    /// How much is done, 0 to 100.
    virtual int percent() const { return 0; }
    /// Lets go of all files: the work ended, or will not go on. Called in the thread, maybe
    /// repeatedly.
    virtual void close() {}

    /// Takes the right to change anything away, for ever; never waits.
    void giveUp();
    bool isGivenUp() const { return m_state & GivenUp; }
    /// Whether a change was being made when the task was given up: the change may happen, or not.
    bool isUncertain() const { return m_isUncertain; }
    /// Whether a change is being made at this moment.
    bool isChanging() const { return m_state & Changing; }

protected:
    /// Whether something may be changed now; to be called in the thread. After a yes endChange()
    /// has to follow.
    bool beginChange();
    void endChange();

private:
    enum State { Idle = 0, Changing = 1, GivenUp = 2 };

    Q_DISABLE_COPY(FileTask)

    std::atomic<int> m_state{Idle};
    bool m_isUncertain = false;
};

/// Runs one FileTask at a time beside the event loop, tells how far it is, and can stop it.
///
/// Each start() ends in exactly one ended(), stopped() or stalled(), never before start() has
/// returned.
class FILARIX_HOST_EXPORT FileTaskRunner : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds that one step may take before the work counts as stalled.
    static const int stallMs = 15000;

    explicit FileTaskRunner(QObject *parent = nullptr);
    ~FileTaskRunner() override;

    bool isRunning() const { return bool(m_task); }
    /// Does nothing while another task runs. The task is closed in the thread when it ends.
    void start(const std::shared_ptr<FileTask> &task);
    /// Milliseconds in place of stallMs.
    void setStallTime(int ms) { m_stall.setInterval(ms); }
    /// Whether a task that was given up still makes a change. Whoever starts the next task now
    /// cannot know what there will be in the end.
    bool hasChangeUnderWay() const { return m_uncertain && m_uncertain->isChanging(); }

public Q_SLOTS:
    /// Lets the step in hand end, and no other begin.
    void stop();

Q_SIGNALS:
    void progressed(int percent);
    /// The task has said that there is nothing more to do.
    void ended();
    /// stop() came before the end of the task.
    void stopped();
    /// A step did not return in time. The task was given up: nobody but the thread may touch it any
    /// more, apart from what is made for several threads.
    void stalled();

private Q_SLOTS:
    void giveUp();

private:
    enum Step { More, Last };

    void post();
    void answer(Step step);
    void abandon();
    void close();

    QScopedPointer<FileThread> m_thread;
    std::shared_ptr<FileTask> m_task;
    std::shared_ptr<FileTask> m_uncertain;
    QTimer m_stall;
    bool m_stopping = false;
};

#endif // FILETASKRUNNER_H
