// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLES_H
#define SAMPLES_H

#include <QStringList>

/// The sample programs that come with the panel program.
namespace Samples {

/// Names of the samples, shortest program first.
QStringList names();
/// Copies the samples into \a programDir if no program (*.cnc) lies there; it is made if it is
/// missing. A file that is in the way stays as it is. Returns the names of those that were copied.
QStringList install(const QString &programDir);

/// Gives an empty \a folder that stands in for a stick two programs, one of them with a name that
/// the transfer would mistake. Returns the names.
QStringList fillStick(const QString &folder);

} // namespace Samples

#endif // SAMPLES_H
