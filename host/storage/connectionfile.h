// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CONNECTIONFILE_H
#define CONNECTIONFILE_H

#include "base/filarixhostglobal.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

/// The machine's connections as the bytes of their file hold them.
///
/// The toolkit's settings answer by path from a memory of their own, which is ahead of the disk
/// when that is full. So each look goes through a private copy of what was read from the disk. All
/// of these functions may wait for the disk.
///
/// The library's table edits a private copy, by ConnEditor on a file in a folder of its own. There
/// ConnEditor cuts the port from each address that has one, and stores an address for each
/// connection that has none, whatever the operator changed. So what the operator changed is put
/// into what was read, and all else stays as it was:
///
///     const ConnectionFile::Contents was = ConnectionFile::read(path);
///     const QMap<int, QString> changes = letTheOperatorEditACopyOf(was.bytes);
///     const QStringList wanted = ConnectionFile::changedAddresses(was, changes);
///     const QByteArray bytes = ConnectionFile::withAddresses(was, wanted);
///     const QString error =
///         ConnectionFile::store(path, was.bytes, bytes, wanted, [] { return true; });
namespace ConnectionFile {

/// One connection, with its texts as the file has them.
struct Connection
{
    QString name;
    QString cid;
    QString baud;
    /// Empty where none is stored yet.
    QString address;
};

/// What the file held when it was read.
struct Contents
{
    bool isThere = false;
    /// The whole file.
    QByteArray bytes;
    QList<Connection> connections;
    /// How many the file says there are. No more than mostConnections are read.
    int count = 0;
    /// Why nothing could be read, in words; empty when it was.
    QString error;
};

/// As many as the library's table shows.
const int mostConnections = 1000;

/// What the file holds. A missing one is made first, its folder too, with the connections of a
/// typical winding machine.
FILARIX_HOST_EXPORT Contents read(const QString &path);
/// The port of an address, with the colon before it; empty where it has none.
FILARIX_HOST_EXPORT QString portOf(const QString &address);
/// The addresses of all connections, after \a changes: what the operator entered, by the
/// connection's place in \a before, counted from 0. A port that was stored stays, for the library's
/// table takes none. Connections of one name share an address, the last one that was entered.
FILARIX_HOST_EXPORT QStringList changedAddresses(const Contents &before,
                                                 const QMap<int, QString> &changes);
/// The bytes of \a before with the addresses \a wanted, one for each connection. The bytes are the
/// same where nothing differs, and incomplete where the temporary storage is full: store() sees
/// that.
FILARIX_HOST_EXPORT QByteArray withAddresses(const Contents &before, const QStringList &wanted);
/// Writes \a bytes, which were edited, in the place of \a before, and reads them back. Returns the
/// reason in words when the file does not hold the addresses \a wanted then, one for each
/// connection in their order; else nothing. Nothing is replaced when somebody else has changed the
/// file since, or when \a mayReplace, which has to be given, says no.
FILARIX_HOST_EXPORT QString store(const QString &path, const QByteArray &before,
                                  const QByteArray &bytes, const QStringList &wanted,
                                  const std::function<bool()> &mayReplace);

} // namespace ConnectionFile

#endif // CONNECTIONFILE_H
