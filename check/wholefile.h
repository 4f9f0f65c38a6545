// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WHOLEFILE_H
#define WHOLEFILE_H

#include <QByteArray>

/// The companion's DurableFile does not serve a command. DurableFile takes names as text, and here
/// a name is the bytes that the shell gave, in any encoding. DurableFile replaces what its owner
/// made read-only, and writes to no pipe or device.
namespace WholeFile {

/// Writes \a bytes to the file \a name, all or nothing: what stood there before stays until the new
/// one is complete. What is no file, a pipe or a device, is written to directly. False with \a
/// error, half a sentence.
bool write(const QByteArray &name, const QByteArray &bytes, QByteArray *error);

/// Whether two names are of one and the same file. Devices and pipes are none, nor is what is not
/// there. "-" is the standard input.
bool isSame(const QByteArray &name, const QByteArray &other);

} // namespace WholeFile

#endif // WHOLEFILE_H
