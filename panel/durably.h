// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DURABLY_H
#define DURABLY_H

#include <QString>

/// What the toolkit's files leave to the file system's mood: that a name is on the disk, too.
namespace Durably {

/// Forces the names in \a folder to the disk. False when the system refuses.
bool syncFolder(const QString &folder);
/// Gives the file \a from the place of \a to, in the same folder, in one step.
bool replace(const QString &from, const QString &to);

} // namespace Durably

#endif // DURABLY_H
