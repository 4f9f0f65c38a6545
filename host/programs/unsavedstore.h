// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef UNSAVEDSTORE_H
#define UNSAVEDSTORE_H

#include "base/filarixhostglobal.h"
#include "programs/keptwork.h"
#include "programs/unsavedsession.h"

#include <QByteArray>
#include <QHash>

/// Unsaved work on the disk, so that a power cut takes the last moment of it at most.
///
/// Each subject has a file that is written as a whole, and a journal behind it. A change of a long
/// text is appended to the journal, and costs as much as the change is long. Reading leaves out
/// what a power cut has torn at the journal's end. Reading also leaves out a journal that belongs
/// to an earlier file than the one beside it.
///
/// One caller at a time, in a FileThread. Nothing is made on the disk before there is work to keep.
class FILARIX_HOST_EXPORT UnsavedStore
{
public:
    /// Journals are no longer than this many bytes; keep() begins a new one.
    static const qint64 longestJournal = qint64(1024) * 1024;

    enum Reading { Nothing, Whole, Broken };

    /// Sessions are made in \a folder.
    explicit UnsavedStore(const QString &folder) : m_folder(folder) {}
    ~UnsavedStore();

    /// Writes the work of its subject as a whole.
    bool keep(const KeptWork &work);
    /// Adds \a changes to what keep() wrote. False also when the journal is full, or broke off;
    /// then keep() has to follow.
    bool append(const QString &subject, const KeptHead &head, const QList<TextChange> &changes);
    /// The subject has no unsaved work any more. A folder that is empty then goes, too.
    bool drop(const QString &subject);
    /// Why the last call failed, in the system's words; empty when keep() will do.
    QString errorString() const;
    /// Bytes written to all files since the store was made.
    qint64 bytesWritten() const { return m_bytesWritten; }

    /// What the session keeps of \a subject.
    static Reading read(const UnsavedSession &session, const QString &subject, KeptWork *work);
    /// Puts files that could not be read under another name, where nobody looks for work; the name.
    static QString putAside(const UnsavedSession &session, const QString &subject);
    /// Removes what the session keeps of \a subject; false, with the reason in errno, if it stays.
    static bool remove(const UnsavedSession &session, const QString &subject);
    /// Whether a store makes files of that name.
    static bool isOwn(const QString &fileName);

private:
    struct Journal
    {
        int handle = -1;
        qint64 size = 0;
        /// The checksum of all that stands before the end.
        QByteArray link;
    };

    bool openSession();
    bool beginJournal(const QString &subject, const QByteArray &link);
    void closeJournal(const QString &subject);
    bool fail(int error);

    const QString m_folder;
    UnsavedSession::Pointer m_session;
    QHash<QString, Journal> m_journals;
    qint64 m_bytesWritten = 0;
    int m_error = 0;
    QString m_reason;
};

#endif // UNSAVEDSTORE_H
