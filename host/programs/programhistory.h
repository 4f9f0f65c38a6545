// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMHISTORY_H
#define PROGRAMHISTORY_H

#include "base/filarixhostglobal.h"
#include "base/message.h"
#include "programs/historystore.h"
#include "storage/filetaskrunner.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Keeps what the programs were: each version that stands in the program directory goes into a
/// HistoryStore, and can be brought back.
///
/// The history looks at the directory's sizes and times every second, and at once when scan() is
/// called. What changed is read. All of that happens in a thread.
///
/// Whoever is about to write over a program, or to take one away, waits for the history first:
///
///     ProgramHistory history("/home/hmi/cnc", "/home/hmi/hmi/history");
///     connect(&history, SIGNAL(told(QString,Message::Tone,QString)), ...);
///     history.whenSettled(this, [this] { writeTheFile(); });
class FILARIX_HOST_EXPORT ProgramHistory : public QObject
{
    Q_OBJECT

public:
    /// Begins to look at once. \a folder is the history's own and is made if it is missing.
    ProgramHistory(const QString &programDir, const QString &folder,
                   const HistoryStore::Limits &limits = HistoryStore::Limits(),
                   QObject *parent = nullptr);
    ~ProgramHistory() override;

    /// Looks at the program directory now, or once more if it is just doing so.
    void scan();
    /// Whether everything that stood in the program directory at the last scan() is kept by now, or
    /// was told to be impossible. Also when that takes longer than anybody waits.
    bool isSettled() const;
    /// Looks now. Calls \a then from the event loop once all that stands in the program directory
    /// now is kept, or was told to be impossible. Also calls when that takes longer than anybody
    /// waits, and at once when the storage is lost: isKept() tells. Never calls before this has
    /// returned, and not at all once \a context is gone.
    void whenSettled(QObject *context, const std::function<void()> &then);
    /// Whether the program \a name was kept as it stood at the last look, or was not there. Nothing
    /// is kept before the first look has ended.
    bool isKept(const QString &name) const;
    /// A sentence for the operator; empty when it isKept().
    QString reasonNotKept(const QString &name) const;

    /// Oldest first, as of the last look.
    QList<ProgramVersion> versions() const { return m_versions; }
    /// When the version was kept, in the panel's time: "2026-11-21 13:05".
    static QString shownDate(const ProgramVersion &version);

    /// Writes a version over the program of its name, whose own last version is kept before, with
    /// the permissions of that one. Does nothing while another one is brought back. Ends in told().
    void restore(const ProgramVersion &version);
    void stopRestoring();
    bool isRestoring() const { return m_isRestoring; }

    /// Milliseconds that a step of a look or of a restore may take.
    void setStallTime(int ms);
    /// Milliseconds after which everything counts as settled; 20 seconds at first.
    void setPatience(int ms) { m_patienceMs = ms; }
    /// Milliseconds from one look at the directory to the next; 1000 at first.
    void setLookInterval(int ms) { m_pollTimer.setInterval(ms); }
    /// Milliseconds for which a restore waits for whoever writes to the program; 3000 at first.
    /// The next restore goes by it.
    void setWriterPatience(int ms) { m_writerPatienceMs = ms; }

Q_SIGNALS:
    void versionsChanged();
    /// Something came of a restore(), or the history cannot do its work. The causes are "history"
    /// for the whole of it and "history:NAME" for a program that is not kept as it is.
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    void causeEnded(const QString &cause);
    /// A restore() goes on: \a percent of it is done.
    void worked(const QString &text, int percent);

private Q_SLOTS:
    void look();
    void beginScan();
    void endScan();
    void loseScan();
    void serveThePatient();
    void tellProgress(int percent);
    void endRestore();
    void endStopped();
    void loseRestore();

private:
    class Scan;
    class Restore;

    struct Waiter
    {
        QPointer<QObject> context;
        std::function<void()> then;
        /// The first look that sees what stood there.
        int look;
        QElapsedTimer since;
    };

    void takeOver(const QList<ProgramVersion> &versions);
    void tellFailures(const QHash<QString, QString> &failures);
    void serve(int look);
    void beginRestore();
    void tellRestore(const QString &text, Message::Tone tone);
    void setSettled(bool isSettled);

    const QString m_programDir;
    std::shared_ptr<HistoryStore> m_store;
    FileTaskRunner m_scanWork;
    FileTaskRunner m_restoreWork;
    std::shared_ptr<Scan> m_scan;
    std::shared_ptr<Restore> m_restore;
    ProgramVersion m_wanted;
    QTimer m_pollTimer;
    QTimer m_restTimer;
    QTimer m_patienceTimer;
    QList<ProgramVersion> m_versions;
    /// Why programs are not kept, by their names; by the empty one, why there is no history.
    QHash<QString, QString> m_failures;
    QStringList m_restless;
    QList<Waiter> m_waiters;
    QElapsedTimer m_unsettledFor;
    int m_patienceMs;
    int m_writerPatienceMs;
    int m_looks = 0;
    int m_endedLook = 0;
    /// The last one that somebody did not wait for.
    int m_overdueLook = 0;
    bool m_hasLooked = false;
    bool m_isSettled = false;
    bool m_scanAgain = false;
    bool m_isRestoring = false;
    bool m_isLost = false;
};

#endif // PROGRAMHISTORY_H
