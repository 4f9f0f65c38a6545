// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMSOURCE_H
#define PROGRAMSOURCE_H

#include <QByteArray>
#include <QtGlobal>

class ProgramReading;

namespace ProgramSource {

/// What is longer is no program. The limit also ends what would never end by itself.
const qint64 mostBytes = qint64(256) << 20;

/// Reads the program \a name piece by piece into \a reading; "-" is the standard input. Takes
/// files, and pipes that a shell opened. Folders, devices and pipes with a name of their own are
/// refused: "*.cnc" never waits for somebody to write. False with \a error, half a sentence.
bool read(const QByteArray &name, ProgramReading *reading, QByteArray *error);

} // namespace ProgramSource

#endif // PROGRAMSOURCE_H
