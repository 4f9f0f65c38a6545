// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"

#include "recordingkeypads.h"

namespace {

RecordingDevice &device()
{
    return RecordingDevice::instance();
}

} // namespace

RecordingDevice &RecordingDevice::instance()
{
    static RecordingDevice device;
    return device;
}

QStringList DeviceLog::calls()
{
    return device().calls;
}

QStringList DeviceLog::keypadCalls()
{
    QStringList result;
    Q_FOREACH (const QString &call, device().calls) {
        if (!call.startsWith(QLatin1String("HMIDeviceInfo."))
            && !call.endsWith(QLatin1String(".instance")))
            result.append(call);
    }
    return result;
}

QPointer<QObject> DeviceLog::object()
{
    return device().object;
}

QPointer<QValidator> DeviceLog::validator()
{
    return device().validator;
}

void DeviceLog::acceptWith(const QString &text)
{
    RecordingDevice::Answer answer;
    answer.accept = true;
    answer.text = text;
    device().answers.append(answer);
}

void DeviceLog::acceptForNextLine(const QString &text)
{
    acceptWith(text);
    device().answers.last().action = [] {
        if (device().object)
            device().object->setProperty("hmiNextLineChosen", true);
    };
}

void DeviceLog::cancel()
{
    device().answers.append(RecordingDevice::Answer());
}

void DeviceLog::runThenCancel(const std::function<void()> &action)
{
    RecordingDevice::Answer answer;
    answer.action = action;
    device().answers.append(answer);
}

int DeviceLog::answersLeft()
{
    return device().answers.size();
}

void DeviceLog::setTouchScreen(bool touch)
{
    device().touchScreen = touch;
}

void DeviceLog::setInstanceAvailable(bool available)
{
    device().instanceAvailable = available;
}

void DeviceLog::reset()
{
    device() = RecordingDevice();
}
