// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/filethread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMutex>
#include <QMutexLocker>
#include <QThread>

namespace {

// What a step takes on storage that answers. More would be a wait for storage that hangs.
const int partingMs = 100;

/// A function on its way into another thread.
class CallEvent : public QEvent
{
public:
    explicit CallEvent(const FileThread::Work &work) : QEvent(User), m_work(work) {}

    void call() const { m_work(); }

private:
    const FileThread::Work m_work;
};

/// What lives in the thread.
class Worker : public QObject
{
protected:
    void customEvent(QEvent *event) override { static_cast<CallEvent *>(event)->call(); }
};

} // namespace

/// Where answers go; nowhere once the owner is gone, while its last piece of work may still run.
struct Q_DECL_HIDDEN FileThread::Link
{
    bool hasOwner()
    {
        const QMutexLocker lock(&mutex);
        return owner;
    }

    QMutex mutex;
    FileThread *owner;
};

FileThread::FileThread()
    : m_link(std::make_shared<Link>()), m_thread(new QThread), m_worker(new Worker)
{
    m_link->owner = this;
    // Shown by the system's lists of threads, which cut a name behind 15 letters.
    m_thread->setObjectName(QLatin1String("Filarix files"));
    m_worker->moveToThread(m_thread);
    connect(m_thread, SIGNAL(finished()), m_worker, SLOT(deleteLater()));
    m_thread->start();
}

FileThread::~FileThread()
{
    {
        const QMutexLocker lock(&m_link->mutex);
        m_link->owner = nullptr;
    }
    // Behind the piece in hand: the loop would end without what was posted.
    QThread *thread = m_thread;
    const Work last = m_last;
    m_last = Work();
    const auto end = [thread, last] {
        if (last)
            last();
        thread->quit();
    };
    // Without memory for an event no program goes on.
    // NOLINTNEXTLINE(bugprone-unhandled-exception-at-new)
    QCoreApplication::postEvent(m_worker, new CallEvent(end));
    if (m_thread->wait(m_givenUp ? 0 : partingMs)) {
        delete m_thread;
        return;
    }
    // To end a thread in the middle of a system call would take the program with it. The thread
    // goes when the system lets it go, or ends with the program.
    connect(m_thread, SIGNAL(finished()), m_thread, SLOT(deleteLater()));
    if (m_thread->isFinished())
        m_thread->deleteLater();
}

void FileThread::post(const Work &work, const Work &answer)
{
    const std::shared_ptr<Link> link = m_link;
    const auto run = [link, work, answer] {
        if (!link->hasOwner())
            return;
        work();
        const QMutexLocker lock(&link->mutex);
        if (link->owner)
            QCoreApplication::postEvent(link->owner, new CallEvent(answer));
    };
    QCoreApplication::postEvent(m_worker, new CallEvent(run));
}

void FileThread::customEvent(QEvent *event)
{
    static_cast<CallEvent *>(event)->call();
}
