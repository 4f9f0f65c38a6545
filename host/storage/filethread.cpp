// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/filethread.h"

#include <QMutex>
#include <QMutexLocker>
#include <QThread>

namespace {

// What a step takes on storage that answers. More would be a wait for storage that hangs.
const int partingMs = 100;

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
    : m_link(std::make_shared<Link>()), m_thread(new QThread), m_worker(new QObject)
{
    m_link->owner = this;
    m_worker->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
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
    QMetaObject::invokeMethod(
        m_worker,
        [thread, last] {
            if (last)
                last();
            thread->quit();
        },
        Qt::QueuedConnection);
    if (m_thread->wait(m_givenUp ? 0 : partingMs)) {
        delete m_thread;
        return;
    }
    // To end a thread in the middle of a system call would take the program with it. It goes when
    // it is let go, or ends with the program.
    connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
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
            QMetaObject::invokeMethod(link->owner, answer, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(m_worker, run, Qt::QueuedConnection);
}
