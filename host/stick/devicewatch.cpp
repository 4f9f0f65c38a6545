// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stick/devicewatch.h"

#include "stick/stick.h"

#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QThread>
#include <QWaitCondition>

#include <sys/statvfs.h>

namespace {

const int periodMs = 1000;
const int patienceMs = 5000;
const int partingMs = 500;

qint64 freeBytesAt(const QString &folder)
{
    struct statvfs storage = {};
    if (::statvfs(QFile::encodeName(folder).constData(), &storage) != 0)
        return -1;
    return qint64(storage.f_bavail) * qint64(storage.f_frsize);
}

} // namespace

class DeviceLooker : public QThread
{
    Q_OBJECT

public:
    explicit DeviceLooker(const DeviceWatch::Probe &probe) : m_probe(probe) {}

    void wake()
    {
        const QMutexLocker locker(&m_mutex);
        m_isWanted = true;
        m_condition.wakeOne();
    }

    void stop()
    {
        const QMutexLocker locker(&m_mutex);
        m_isStopped = true;
        m_condition.wakeOne();
    }

Q_SIGNALS:
    void looked(const DeviceState &state);

protected:
    void run() override
    {
        QMutexLocker locker(&m_mutex);
        while (!m_isStopped) {
            m_isWanted = false;
            locker.unlock();
            const DeviceState state = m_probe();
            locker.relock();
            if (m_isStopped)
                return;
            Q_EMIT looked(state);
            if (!m_isWanted)
                m_condition.wait(&m_mutex, periodMs);
        }
    }

private:
    const DeviceWatch::Probe m_probe;
    QMutex m_mutex;
    QWaitCondition m_condition;
    bool m_isWanted = false;
    bool m_isStopped = false;
};

bool DeviceState::operator==(const DeviceState &other) const
{
    return isKnown == other.isKnown && plcReachable == other.plcReachable
           && stickIn == other.stickIn && freeBytes == other.freeBytes;
}

DeviceWatch::DeviceWatch(const Probe &probe, QObject *parent)
    : QObject(parent), m_looker(new DeviceLooker(probe))
{
    qRegisterMetaType<DeviceState>("DeviceState");
    connect(m_looker, SIGNAL(looked(DeviceState)), this, SLOT(take(DeviceState)));
    m_patience.setSingleShot(true);
    m_patience.setInterval(patienceMs);
    connect(&m_patience, SIGNAL(timeout()), this, SLOT(forget()));
    m_patience.start();
    m_looker->start(QThread::LowPriority);
}

DeviceWatch::~DeviceWatch()
{
    m_looker->stop();
    if (m_looker->wait(partingMs)) {
        delete m_looker;
        return;
    }
    // A looker that a device keeps waiting goes when the device lets it go, or ends with the
    // program.
    connect(m_looker, SIGNAL(finished()), m_looker, SLOT(deleteLater()));
    if (m_looker->isFinished())
        m_looker->deleteLater();
}

DeviceState DeviceWatch::lookAt(const QString &plcDir, const QString &programDir)
{
    DeviceState state;
    state.isKnown = true;
    state.plcReachable = QFileInfo(plcDir).isDir();
    state.stickIn = Stick::isPresent();
    state.freeBytes = freeBytesAt(programDir);
    return state;
}

void DeviceWatch::lookNow()
{
    m_looker->wake();
}

void DeviceWatch::take(const DeviceState &state)
{
    m_patience.start();
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT changed(m_state);
}

void DeviceWatch::forget()
{
    m_state = DeviceState();
    Q_EMIT changed(m_state);
}

#include "devicewatch.moc"
