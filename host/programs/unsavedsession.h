// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef UNSAVEDSESSION_H
#define UNSAVEDSESSION_H

#include "base/filarixhostglobal.h"

#include <QList>
#include <QString>

#include <memory>

/// The folder in which one run of the program keeps its unsaved work.
///
/// A lock holds the folder for as long as the run lasts, however the run ends. A folder that nobody
/// holds was left by a run that was killed, or whose work was to be kept. All calls may wait for
/// the disk, and belong into a FileThread.
class FILARIX_HOST_EXPORT UnsavedSession
{
public:
    typedef std::shared_ptr<UnsavedSession> Pointer;

    /// A new session in \a folder, which is made. Null, with the reason in errno, when that fails.
    static Pointer make(const QString &folder);
    /// The sessions in \a folder that nobody else holds, the newest first, and no more than an
    /// operator would look through. These sessions are held from now on. Empty ones are cleared
    /// away.
    static QList<Pointer> left(const QString &folder);

    /// Lets go of the folder; what is in it stays.
    ~UnsavedSession();

    QString path() const { return m_path; }
    QString filePath(const QString &name) const;
    /// Removes the folder with what the program keeps in such a one. What stands there besides
    /// stays, and the folder with it.
    bool remove();

private:
    UnsavedSession(const QString &path, int handle) : m_path(path), m_handle(handle) {}
    Q_DISABLE_COPY(UnsavedSession)

    const QString m_path;
    const int m_handle;
};

#endif // UNSAVEDSESSION_H
