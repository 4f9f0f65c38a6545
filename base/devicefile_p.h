// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DEVICEFILE_P_H
#define DEVICEFILE_P_H

#include <QLatin1String>
#include <QString>

/// The panel's own INI file of facts about itself. The library only reads it.
namespace DeviceFile {

inline QString path()
{
    return QLatin1String("/usr/share/qt/bin/settingex.ini");
}

} // namespace DeviceFile

#endif // DEVICEFILE_P_H
