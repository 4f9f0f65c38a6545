// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMHISTORY_H
#define PROGRAMHISTORY_H

#include "filework.h"
#include "historystore.h"

#include <QElapsedTimer>
#include <QTimer>

/// Keeps what the programs were: each version that stands in the program directory goes into a
/// HistoryStore, and can be brought back.
///
/// It looks at the directory's sizes and times every second, and at once when scan() is called, and
/// reads what changed. All of that happens in a thread.
///
///     ProgramHistory history("/home/hmi/cnc", "/home/hmi/hmi/history");
///     connect(&history, &ProgramHistory::told, ...);
class ProgramHistory : public QObject
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

    /// Oldest first, as of the last look.
    QList<ProgramVersion> versions() const { return m_versions; }
    /// When the version was kept, in the panel's time: "2026-11-21 13:05".
    static QString shownDate(const ProgramVersion &version);

    /// Writes a version over the program of its name, whose own last version is kept before. Does
    /// nothing while another one is brought back. Ends in told().
    void restore(const ProgramVersion &version);
    void stopRestoring();

    void setStallTime(int ms) { m_scanWork.setStallTime(ms); }

Q_SIGNALS:
    void versionsChanged();
    /// Something came of a restore(), or the history cannot do its work; in words.
    void told(const QString &text, bool isGood);
    /// A restore() goes on: \a percent of it is done.
    void worked(const QString &text, int percent);

private:
    class Scan;
    class Restore;

    void look();
    void beginScan();
    void endScan();
    void loseScan();
    void beginRestore();
    void endRestore();
    void tellRestore(const QString &text, bool isGood);
    void setSettled(bool isSettled);

    const QString m_programDir;
    std::shared_ptr<HistoryStore> m_store;
    FileWork m_scanWork;
    FileWork m_restoreWork;
    std::shared_ptr<Scan> m_scan;
    std::shared_ptr<Restore> m_restore;
    ProgramVersion m_wanted;
    QTimer m_pollTimer;
    QTimer m_restTimer;
    QList<ProgramVersion> m_versions;
    QString m_lastError;
    QElapsedTimer m_unsettledFor;
    bool m_isSettled = false;
    bool m_scanAgain = false;
    bool m_isRestoring = false;
    bool m_isLost = false;
};

#endif // PROGRAMHISTORY_H
