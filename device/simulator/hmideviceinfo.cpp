// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "hmidevice/hmideviceinfo.h"

#include <QCoreApplication>
#include <QVariant>

bool HMIDeviceInfo::isTouchScreen()
{
    const QVariant touch = qApp ? qApp->property("hmiTouchScreen") : QVariant();
    return !touch.isValid() || touch.toBool();
}
