// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// The device library of a machine that has none: the library asks for a keypad, gets none, and
// opens nothing. The other functions are never called; they are here to be linked.

#include "hmidevice/characterkeypad.h"
#include "hmidevice/gcodekeypad.h"
#include "hmidevice/hmideviceinfo.h"
#include "hmidevice/numerickeypad.h"

CharacterKeypad *CharacterKeypad::instance()
{
    return nullptr;
}

CharacterKeypad::~CharacterKeypad() {}
void CharacterKeypad::setObject(QObject *) {}
void CharacterKeypad::setValidator(const QValidator *) {}
void CharacterKeypad::setText(const QString &) {}
void CharacterKeypad::setShowType(int) {}

GCodeKeypad *GCodeKeypad::instance()
{
    return nullptr;
}

GCodeKeypad::~GCodeKeypad() {}
void GCodeKeypad::setObject(QObject *) {}
void GCodeKeypad::setValidator(const QValidator *) {}
void GCodeKeypad::setText(const QString &) {}
void GCodeKeypad::setLimitToolTip(const QString &) {}

NumericKeypad *NumericKeypad::instance()
{
    return nullptr;
}

NumericKeypad::~NumericKeypad() {}
void NumericKeypad::setObject(QObject *) {}
void NumericKeypad::setValidator(const QValidator *) {}
void NumericKeypad::setText(const QString &) {}
void NumericKeypad::setLimitToolTip(const QString &) {}
void NumericKeypad::setShowType(int) {}
void NumericKeypad::setEditMode(int) {}
void NumericKeypad::setDecimalPointEnabled(bool) {}

bool HMIDeviceInfo::isTouchScreen()
{
    return false;
}
