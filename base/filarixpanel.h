// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIXPANEL_H
#define FILARIXPANEL_H

#include <QtGlobal>

/// Facts about a panel that the library goes by, and that hosts may go by too. A header alone.
///
///     const bool isStickThere = QFile::exists(QLatin1String(FilarixPanel::stickMarker));
namespace FilarixPanel {

/// The folder where the system mounts the USB stick.
const char stickDir[] = "/mnt/Storage";
/// A file that exists while the system knows of a USB stick.
const char stickMarker[] = "/tmp/udiskattach";

/// Bytes that the import manager lets into the program directory: a figure of the library's own,
/// whatever the file system has left.
const quint32 programSpace = 31457280;

/// Pixels. A screen whose width or height is below this is small: things that stand side by side
/// elsewhere stand one below the other there.
const int smallBelow = 400;
/// Pixels. A screen of this width or more has room for keys beside its list.
const int wideFrom = 760;

} // namespace FilarixPanel

#endif // FILARIXPANEL_H
