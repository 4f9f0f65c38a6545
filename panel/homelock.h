// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HOMELOCK_H
#define HOMELOCK_H

#include <QString>

/// Keeps a home for one panel: two would cover each other's files.
///
/// The system holds the lock for as long as the process lives, whatever its end, and across process
/// namespaces.
///
///     HomeLock lock("/home/panel/hmi/panel.lock");
///     if (lock.take() == HomeLock::Taken)
///         return occupied();
class HomeLock
{
public:
    enum Answer {
        Own,       ///< The home is this panel's.
        Taken,     ///< Another panel works on it.
        Impossible ///< Nobody knows: see errorString().
    };

    explicit HomeLock(const QString &path) : m_path(path) {}
    ~HomeLock();

    /// Makes the file and its folder if they are missing. A second call on an own lock changes
    /// nothing.
    Answer take();
    /// Why a lock is impossible, in the system's words.
    QString errorString() const;

private:
    Q_DISABLE_COPY(HomeLock)

    const QString m_path;
    int m_handle = -1;
    int m_error = 0;
};

#endif // HOMELOCK_H
