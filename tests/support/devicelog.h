// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DEVICELOG_H
#define DEVICELOG_H

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QValidator>

#include <functional>

/// What the code under test asked of the device library, and what the keypads are to answer.
///
/// The recording keypads are real modal dialogs: exec() runs an event loop and ends by the next
/// scripted answer. Each answer serves one exec(); an exec() without one is a warning, and so
/// fails the test, and cancels.
namespace DeviceLog {

/// The calls in order, for example "GCodeKeypad.instance", "GCodeKeypad.setText(G01 X1)",
/// "NumericKeypad.setValidator(QIntValidator)", "CharacterKeypad.setValidator(null)",
/// "GCodeKeypad.setObject(WMMainWindow)", "NumericKeypad.exec", "HMIDeviceInfo.isTouchScreen".
QStringList calls();
/// The same without HMIDeviceInfo.isTouchScreen and the calls of instance().
QStringList keypadCalls();

/// The object and the validator that the last setObject() and setValidator() named.
QPointer<QObject> object();
QPointer<QValidator> validator();

/// The next exec() writes \a text to the object's property `text` and ends with 1.
void acceptWith(const QString &text);
/// Likewise, after the operator asked for the next line.
void acceptForNextLine(const QString &text);
/// The next exec() ends with 0 and writes nothing.
void cancel();
/// The next exec() runs \a action while the keypad is open, then ends with 0.
void runThenCancel(const std::function<void()> &action);
/// Number of answers that no exec() has used.
int answersLeft();

/// What HMIDeviceInfo::isTouchScreen() says; true after reset().
void setTouchScreen(bool touch);
/// Whether instance() gives a keypad or null; true after reset().
void setInstanceAvailable(bool available);

/// Forgets calls and answers, and goes back to a touch screen with keypads.
void reset();

} // namespace DeviceLog

#endif // DEVICELOG_H
