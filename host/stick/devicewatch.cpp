// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stick/devicewatch.h"

#include "stick/stick.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QStorageInfo>
#include <QThread>
#include <QWaitCondition>

namespace {

const int kPeriodMs = 1000;
const int kPatienceMs = 5000;
const int kPartingMs = 500;

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
                m_condition.wait(&m_mutex, kPeriodMs);
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
    qRegisterMetaType<DeviceState>();
    connect(m_looker, &DeviceLooker::looked, this, &DeviceWatch::take);
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        m_state = DeviceState();
        Q_EMIT changed(m_state);
    });
    m_patience.start();
    m_looker->start(QThread::LowPriority);
}

DeviceWatch::~DeviceWatch()
{
    m_looker->stop();
    if (m_looker->wait(kPartingMs)) {
        delete m_looker;
        return;
    }
    // One that a device keeps waiting goes when it is let go, or ends with the program.
    connect(m_looker, &QThread::finished, m_looker, &QObject::deleteLater);
    if (m_looker->isFinished())
        m_looker->deleteLater();
}

DeviceState DeviceWatch::lookAt(const QString &plcDir, const QString &programDir)
{
    DeviceState state;
    state.isKnown = true;
    state.plcReachable = QFileInfo(plcDir).isDir();
    state.stickIn = Stick::isPresent();
    const QStorageInfo storage(programDir);
    if (storage.isValid() && storage.isReady())
        state.freeBytes = storage.bytesAvailable();
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

#include "devicewatch.moc"
