// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DEVICEWATCH_H
#define DEVICEWATCH_H

#include "base/filarixhostglobal.h"

#include <QMetaType>
#include <QObject>
#include <QTimer>

#include <functional>

class DeviceLooker;

/// What the panel knows of the devices around it.
struct FILARIX_HOST_EXPORT DeviceState
{
    /// Whether anything below is true: not so before the first look.
    bool isKnown = false;
    /// Whether the folder that stands for the PLC is there.
    bool plcReachable = false;
    /// Stick::isPresent().
    bool stickIn = false;
    /// Bytes that are left for programs, in the file system of their directory; -1 when it can't be
    /// told.
    qint64 freeBytes = -1;

    bool operator==(const DeviceState &other) const;
};

Q_DECLARE_METATYPE(DeviceState)

/// Looks at the devices every second, in a thread of its own. A folder on a network or on a dying
/// stick may keep whoever asks for it waiting, and the screen must not wait.
///
///     DeviceWatch watch([=] { return DeviceWatch::lookAt(plcDir, programDir); });
///     connect(&watch, SIGNAL(changed(DeviceState)), strip, SLOT(showDevices(DeviceState)));
class FILARIX_HOST_EXPORT DeviceWatch : public QObject
{
    Q_OBJECT

public:
    typedef std::function<DeviceState()> Probe;

    /// \a probe runs in the other thread, which may outlive the watch while a device keeps it
    /// waiting: it has to own what it uses.
    explicit DeviceWatch(const Probe &probe, QObject *parent = nullptr);
    ~DeviceWatch() override;

    /// The PLC's folder, the stick and the file system of \a programDir, now. May wait for them.
    static DeviceState lookAt(const QString &plcDir, const QString &programDir);

    /// What the last look has seen. Nothing is known before the first look has come back, and while
    /// a look is overdue for seconds.
    DeviceState state() const { return m_state; }

public Q_SLOTS:
    /// Has the devices looked at without waiting for the next second.
    void lookNow();

Q_SIGNALS:
    /// A look has seen something else than the one before, or is overdue.
    void changed(const DeviceState &state);

private Q_SLOTS:
    void take(const DeviceState &state);
    void forget();

private:
    DeviceLooker *m_looker;
    DeviceState m_state;
    QTimer m_patience;
};

#endif // DEVICEWATCH_H
