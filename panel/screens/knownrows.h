// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KNOWNROWS_H
#define KNOWNROWS_H

#include <QList>
#include <QMutex>
#include <QStringList>

/// The rows that a screen knows its file to hold. With such a reader a RowKeeper puts aside what
/// somebody else has made of the file since.
///
/// May be used from two threads.
class KnownRows
{
public:
    /// From now on read() accepts these rows alone.
    void set(const QList<QStringList> &rows);
    /// RowFile::read(). False as well, with an \a error in words, for other rows than the known.
    bool read(const QString &path, QList<QStringList> *rows, QString *error) const;

private:
    mutable QMutex m_mutex;
    bool m_isSet = false;
    QList<QStringList> m_rows;
};

#endif // KNOWNROWS_H
