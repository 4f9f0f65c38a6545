// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILEWORK_H
#define FILEWORK_H

#include "filethread.h"

#include <QScopedPointer>
#include <QTimer>

/// Long work on files, cut into steps.
///
/// All of it runs in a FileThread, one step at a time; between two steps nothing does, so whoever
/// started the work may read it then.
class FileTask
{
public:
    FileTask() = default;
    virtual ~FileTask() = default;

    /// Does a piece of the work that takes a moment; whether there is more to do.
    virtual bool step() = 0;
    /// How much is done, 0 to 100.
    virtual int percent() const { return 0; }
    /// Lets go of all files: the work ended, or will not go on.
    virtual void close() {}

private:
    Q_DISABLE_COPY(FileTask)
};

/// Runs one FileTask at a time beside the event loop, tells how far it is, and can stop it.
///
/// Each start() ends in exactly one ended(), stopped() or stalled(), never before start() has
/// returned.
class FileWork : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds that one step may take before the work counts as stalled.
    static const int kStallMs = 15000;

    explicit FileWork(QObject *parent = nullptr);
    ~FileWork() override;

    bool isRunning() const { return bool(m_task); }
    /// Does nothing while another task runs. The task is closed in the thread when it ends.
    void start(const std::shared_ptr<FileTask> &task);
    /// Lets the step in hand end, and no other begin.
    void stop();
    void setStallTime(int ms) { m_stall.setInterval(ms); }

Q_SIGNALS:
    void progressed(int percent);
    /// The task said that there is nothing more to do.
    void ended();
    /// stop() came before that.
    void stopped();
    /// A step did not return in time. It was given up: nobody may touch the task any more.
    void stalled();

private:
    enum Step { More, Last };

    void post();
    void answer(Step step);
    void giveUp();
    void close();

    QScopedPointer<FileThread> m_thread;
    std::shared_ptr<FileTask> m_task;
    QTimer m_stall;
    bool m_stopping = false;
};

#endif // FILEWORK_H
