// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef IMPORTGUARD_H
#define IMPORTGUARD_H

#include "base/filarixhostglobal.h"
#include "base/message.h"
#include "stick/devicewatch.h"
#include "stick/transferreport.h"
#include "storage/filejob.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class ClickGate;
class ImportManage;
class ProgramHistory;
class QMessageBox;
class Questioner;
struct Question;

/// Stands between the operator and the import manager's commands. The commands hand file names to
/// the shell as they are, and write and delete without a look at what gets lost.
///
/// Each press on a transfer key of a manager waits, while the panel goes on, until both folders
/// were looked at. Every name there has to be safe, and so have the chosen ones, which may be of a
/// stick that has gone. Where names are not safe, the operator is asked whether to rename them.
/// Without a stick there are no transfers.
///
/// Before a program is covered or deleted, the history takes the program in. A program that the
/// history can't keep goes only after a question. What a command has come to is told.
///
///     new ImportGuard(ProgramDirectory::path(), Stick::mountPoint(), &questioner, &history,
///     window);
class FILARIX_HOST_EXPORT ImportGuard : public QObject
{
    Q_OBJECT

public:
    enum Settled {
        /// All names were safe.
        WereSafe,
        /// All names are safe by now.
        Renamed,
        /// Names are left that are not safe, or nobody knows.
        NotSettled
    };

    /// Watches all import managers of the application from now on. \a programDir and \a stickDir
    /// are the manager's two folders. Without a \a history programs are covered and deleted
    /// unkept. \a questioner and a history must outlive the guard.
    ImportGuard(const QString &programDir, const QString &stickDir, Questioner *questioner,
                ProgramHistory *history = nullptr, QObject *parent = nullptr);

    /// Looks for unsafe names. If there are any, asks whether to rename them, and does so when the
    /// operator wants it. Ends in \a then, from the event loop. While the guard is busy nothing is
    /// done, and \a then never comes.
    void settle(const std::function<void(Settled)> &then = [](Settled) {});
    /// Whether a press waits, or a question.
    bool isBusy() const;
    /// Milliseconds after which the stick counts as one that does not answer.
    void setStallTime(int ms) { m_job.setStallTime(ms); }

    /// Keeps no event back.
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// For DeviceWatch::changed(): a stick that was just plugged in is settled, before the operator
    /// uses it. While the guard is busy the first press on a transfer key does so.
    void settleNewStick(const DeviceState &state);

Q_SIGNALS:
    /// \a text is for the operator. The cause is "stick", or none.
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    void causeEnded(const QString &cause);
    /// Names were changed, or a command of a manager has ended.
    void filesChanged();

private Q_SLOTS:
    void report();

private:
    struct Look;

    typedef QPointer<ClickGate> Gate;

    bool isBusyBeside(const Gate &gate) const;
    void watch(ImportManage *manager);
    void watch(QMessageBox *box);
    void press(const Gate &gate, ImportManage *manager, TransferReport::Command command);
    void confirm(const Gate &gate);
    void hold(const Gate &gate);
    void drop(const Gate &gate);
    void look(const std::function<void(const Look &)> &then, const FileJob::Work &stalled);
    void judge(const Gate &gate, const Look &look);
    void judgeNames(const Gate &gate, const Look &look);
    void waitForHistory(const Gate &gate);
    void passUnlessLost(const Gate &gate);
    bool mayLose(const QString &name);
    bool isConfirmed(const Question &question);
    void ask(const Look &look, const std::function<void(Settled)> &then);
    void renameAll(const Look &look, const std::function<void(Settled)> &then);
    void tellOutcome(const TransferReport &report, TransferReport::Outcome outcome);
    void tellStall();
    bool isProgramDirSafe() const;

    const QString m_programDir;
    const QString m_stickDir;
    Questioner *m_questioner;
    ProgramHistory *m_history;
    FileJob m_job;
    FileThread m_reports;
    /// The command that was chosen last, and what it found.
    std::shared_ptr<TransferReport> m_report;
    QPointer<ImportManage> m_manager;
    Gate m_held;
    bool m_isAsking = false;
};

#endif // IMPORTGUARD_H
