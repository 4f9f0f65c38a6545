// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILEJOB_H
#define FILEJOB_H

#include "base/filarixhostglobal.h"
#include "storage/filetaskrunner.h"

#include <functional>

/// One short piece of work on files at a time, beside the event loop.
///
///     const std::shared_ptr<Rows> rows = std::make_shared<Rows>();
///     m_job.run([rows, path] { rows->read(path); }, [this, rows] { show(*rows); },
///               [this] { tellThatStorageHangs(); });
class FILARIX_HOST_EXPORT FileJob : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void()> Work;

    explicit FileJob(QObject *parent = nullptr);

    bool isRunning() const { return m_work.isRunning(); }
    /// Runs \a work in a thread, and then \a done from the event loop. \a stalled runs in the place
    /// of \a done when the work does not return in time; nobody waits for the work any more then.
    /// \a work has to own what it uses. All three have to be given. Does nothing while other work
    /// runs, and calls none of them then: see isRunning().
    void run(const Work &work, const Work &done, const Work &stalled);
    /// Runs the event loop until the work has ended or is given up.
    void wait();
    /// Milliseconds after which the work counts as stalled; FileTaskRunner::stallMs at first.
    void setStallTime(int ms) { m_work.setStallTime(ms); }

Q_SIGNALS:
    /// The work has ended or is given up, and what followed it is done.
    void finished();

private Q_SLOTS:
    void finishDone() { finish(m_done); }
    void finishStalled() { finish(m_stalled); }

private:
    void finish(const Work &answer);

    FileTaskRunner m_work;
    Work m_done;
    Work m_stalled;
};

#endif // FILEJOB_H
