// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DEVICECAUSES_H
#define DEVICECAUSES_H

#include "programs/checkeddownload.h"
#include "stick/devicewatch.h"

/// Tells from the state of the devices when what a message was about is over.
///
///     connect(&watch, &DeviceWatch::changed, &causes, &DeviceCauses::take);
///     connect(&causes, &DeviceCauses::ended, &log, &MessageLog::end);
class DeviceCauses : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The PLC fails or is away: over when it answers again.
    static QString plc() { return CheckedDownload::plcCause(); }
    /// The stick that is in, or the lack of one: over when a stick comes or goes.
    static QString stick() { return QStringLiteral("stick"); }
    /// The programs' file system is full, or nearly: over when it has more room again.
    static QString storage() { return QStringLiteral("storage"); }

public Q_SLOTS:
    void take(const DeviceState &state);

Q_SIGNALS:
    void ended(const QString &cause);

private:
    DeviceState m_state;
};

#endif // DEVICECAUSES_H
