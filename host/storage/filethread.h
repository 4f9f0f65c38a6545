// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILETHREAD_H
#define FILETHREAD_H

#include "base/filarixhostglobal.h"

#include <QObject>

#include <functional>
#include <memory>

class QThread;

/// A thread for work on files: a slow disk, or a PLC that hangs, never stops the screen.
///
///     m_thread.post([job] { job->copyPiece(); }, [this] { showProgress(); });
class FILARIX_HOST_EXPORT FileThread : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void()> Work;

    FileThread();
    /// The piece of work in hand ends, those behind it are dropped, and so is every answer. Work
    /// that hangs is left behind with its thread, at once after giveUp() and else after a moment.
    ~FileThread() override;

    /// Runs \a work in the thread, behind what was posted before, and then \a answer from the event
    /// loop of this object's thread. What the work uses must belong to it: the object that posted
    /// it may be gone by then.
    void post(const Work &work, const Work &answer);
    /// What the thread does at its end, whatever else is dropped: to close what is open.
    void setLast(const Work &last) { m_last = last; }
    /// Nobody waits for the work in hand any more.
    void giveUp() { m_givenUp = true; }

protected:
    void customEvent(QEvent *event) override;

private:
    struct Link;

    std::shared_ptr<Link> m_link;
    QThread *m_thread;
    QObject *m_worker;
    Work m_last;
    bool m_givenUp = false;
};

#endif // FILETHREAD_H
