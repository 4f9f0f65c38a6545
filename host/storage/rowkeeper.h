// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWKEEPER_H
#define ROWKEEPER_H

#include "base/filarixhostglobal.h"
#include "storage/filejob.h"

#include <QList>
#include <QStringList>

/// Reads and stores the rows of a screen beside the event loop, and loses nothing that stood in
/// their file. A file that the keeper has not read, or can't read, is put aside before it is
/// replaced.
///
///     RowKeeper keeper("Taught program", &TaughtProgram::load);
///     keeper.load(path, [this](const RowKeeper::Loaded &loaded) { ... });
class FILARIX_HOST_EXPORT RowKeeper : public QObject
{
    Q_OBJECT

public:
    /// Reads a file in a thread. False, with the reason in words, for a file of another kind.
    typedef std::function<bool(const QString &path, QList<QStringList> *rows, QString *error)>
        Reader;

    /// What came of load().
    struct Loaded
    {
        enum State {
            Read,
            /// There is no such file, and none was put aside.
            Missing,
            /// There is one, and nobody knows what it holds.
            Broken,
            /// The storage keeps whoever asks for the file waiting.
            Stalled
        };

        State state = Missing;
        QList<QStringList> rows;
        /// Why there are no rows, in words. Set for Broken and Stalled.
        QString error;
    };

    /// What came of store().
    struct Stored
    {
        bool isStored = false;
        /// Why the rows are not stored, in words.
        QString error;
        /// Where the file went that had not been read; empty when there was none.
        QString asidePath;
    };

    /// \a comment is the first line of the file: see RowFile. \a reader has to be given.
    RowKeeper(const QString &comment, const Reader &reader, QObject *parent = nullptr);

    bool isBusy() const { return m_job.isRunning(); }
    /// Does nothing while the keeper is busy.
    void load(const QString &path, const std::function<void(const Loaded &)> &answer);
    /// Makes the file's folder if it is missing. Does nothing while the keeper is busy.
    void store(const QString &path, const QList<QStringList> &rows,
               const std::function<void(const Stored &)> &answer);
    /// Runs the event loop until the keeper has answered.
    void wait() { m_job.wait(); }
    /// Milliseconds after which the storage counts as one that does not answer.
    void setStallTime(int ms) { m_job.setStallTime(ms); }

    /// What a file that was put aside is called: the first that is free of "name.broken",
    /// "name.broken.2", ...
    static QString asidePath(const QString &path);

private:
    const QString m_comment;
    const Reader m_reader;
    /// The file whose rows the screen has.
    QString m_known;
    FileJob m_job;
};

#endif // ROWKEEPER_H
