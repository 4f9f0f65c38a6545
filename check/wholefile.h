// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WHOLEFILE_H
#define WHOLEFILE_H

#include <QByteArray>

namespace WholeFile {

/// Writes \a bytes to the file \a name, all or nothing: what stood there before stays until the new
/// one is complete. What is no file, a pipe or a device, is written to directly. False with \a
/// error, half a sentence.
bool write(const QByteArray &name, const QByteArray &bytes, QByteArray *error);

} // namespace WholeFile

#endif // WHOLEFILE_H
