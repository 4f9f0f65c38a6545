// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef RECORDINGKEYPADS_H
#define RECORDINGKEYPADS_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QValidator>

#include <functional>

/// The state behind DeviceLog.
struct RecordingDevice
{
    struct Answer
    {
        bool accept = false;
        QString text;
        std::function<void()> action;
    };

    QStringList calls;
    QList<Answer> answers;
    QPointer<QObject> object;
    QPointer<QValidator> validator;
    bool touchScreen = true;
    bool instanceAvailable = true;

    static RecordingDevice &instance();
};

#endif // RECORDINGKEYPADS_H
