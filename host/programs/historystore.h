// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HISTORYSTORE_H
#define HISTORYSTORE_H

#include "base/filarixhostglobal.h"
#include "storage/filestamp.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QString>

/// One version of one program, as the history keeps it.
struct ProgramVersion
{
    /// Counts up from 1 over all programs. The number gives the order: a panel's clock may be set
    /// back.
    qint64 number = 0;
    QString name;
    /// When the history took the version in, UTC.
    QDateTime stored;
    qint64 bytes = 0;
    /// SHA-256 of the bytes.
    QByteArray hash;
    /// The file that holds the version, and the byte of the file, from 0, at which the program
    /// begins.
    QString path;
    qint64 offset = 0;
};

/// Versions of programs in a folder of their own, one file each.
///
/// A version's file is written beside its place, forced to the disk and renamed. Whenever the power
/// goes, the file is there complete or not at all. store() tells that a version is kept only after
/// that. The head of the file is text, then come the program's bytes as they are.
///
/// Where there is too much, the oldest version goes. The newest version of each program stays as
/// long as the newest ones alone are within the bytes.
///
/// The store needs no event loop. Threads may share a store: a second caller waits for the first
/// one.
///
///     HistoryStore store("/home/hmi/hmi/history", HistoryStore::Limits());
///     QString error;
///     if (store.open(&error)
///         && store.store("/home/hmi/cnc/coil.cnc", &error) == HistoryStore::Stored)
///         show(store.versions().last());
class FILARIX_HOST_EXPORT HistoryStore
{
    Q_DECLARE_TR_FUNCTIONS(HistoryStore)

public:
    /// How much is kept.
    struct Limits
    {
        int versions = 500;
        /// Twice what the import manager lets into the program directory, so that the newest of
        /// every program has its place.
        qint64 bytes = qint64(64) * 1024 * 1024;
    };

    enum Outcome {
        Stored,   ///< The file holds a version that is new, and it is kept now.
        Known,    ///< The newest version of that name is what the file holds.
        Restless, ///< The file was written just now or while it was read; it may not be complete.
        Failed    ///< The error says why. The next call tries again.
    };

    /// A file counts as complete when it has not been written for this long.
    static const int restMs = 100;

    HistoryStore(const QString &folder, const Limits &limits);

    /// Makes the folder, finds the versions and sweeps out what a killed program left. False with
    /// \a error when there is no such folder to be had.
    bool open(QString *error);
    bool isOpen() const;

    /// Takes in the file at \a path, under its name, if the file holds something new.
    Outcome store(const QString &path, QString *error);

    /// Whether the version that stands at \a path is kept, as store() found it; also when there is
    /// no file at all.
    bool holds(const QString &path) const;

    /// Oldest first.
    QList<ProgramVersion> versions() const;

private:
    QString pathOf(qint64 number) const;
    bool write(const ProgramVersion &version, const QByteArray &bytes, QString *error);
    const ProgramVersion *newest(const QString &name) const;
    void trim();
    int firstToGo(bool overBytes) const;

    const QString m_folder;
    const Limits m_limits;
    mutable QMutex m_mutex;
    bool m_isOpen = false;
    QList<ProgramVersion> m_versions;
    /// Each program's file as it was when its version was known to be kept.
    QHash<QString, FileStamp> m_seen;
    qint64 m_lastNumber = 0;
    qint64 m_bytes = 0;
};

#endif // HISTORYSTORE_H
