// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HMIDEVICE_HMIDEVICEINFO_H
#define HMIDEVICE_HMIDEVICEINFO_H

#include <QtGlobal>

/// Facts about the panel that the program runs on. Static functions only.
class Q_DECL_EXPORT HMIDeviceInfo
{
public:
    /// True when the panel has a touch screen, so that texts are entered on the keypads.
    static bool isTouchScreen();
};

#endif // HMIDEVICE_HMIDEVICEINFO_H
