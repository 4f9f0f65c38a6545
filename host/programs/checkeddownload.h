// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CHECKEDDOWNLOAD_H
#define CHECKEDDOWNLOAD_H

#include "base/filarixhostglobal.h"
#include "base/message.h"
#include "programs/downloadfacts.h"
#include "programs/plctransfer.h"
#include "programs/programsnapshot.h"
#include "storage/filetaskqueue.h"

#include <QElapsedTimer>

#include <functional>

class Questioner;

/// Sends a program to the PLC: exactly the bytes that the operator has agreed to, and no others.
///
/// A private copy of the program is taken first. The operator is asked whether the copy is the
/// right program, the copy is sent, and what arrived is compared with it. In the end the operator
/// is told, also when the program itself has become another one meanwhile. All of that goes beside
/// the event loop, and no file is touched in the caller's thread.
///
///     CheckedDownload download("/srv/plc", "/home/hmi/hmi/outgoing", &questioner);
///     connect(&download, SIGNAL(told(QString,Message::Tone,QString)), ...);
///     guard.setDownload(&download);   // A ProgramGuard: its window's Download key leads here.
class FILARIX_HOST_EXPORT CheckedDownload : public QObject
{
    Q_OBJECT

public:
    /// Gives the text that an editor shows of the program at \a path; false when the editor shows
    /// another one.
    typedef std::function<bool(const QString &path, QString *text)> Shown;
    /// Makes the check of the program whose private copy is at \a path.
    typedef std::function<std::shared_ptr<ProgramInspection>(const QString &path)> Inspector;

    /// Programs go to the folder \a plcDir, which is never made: without it a download fails.
    /// Copies wait in \a copyDir, a folder for them alone, made if it is missing. \a questioner
    /// must outlive this object.
    CheckedDownload(const QString &plcDir, const QString &copyDir, Questioner *questioner,
                    QObject *parent = nullptr);

    /// Without \a shown the question tells nothing of an editor.
    void setShown(const Shown &shown) { m_shown = shown; }
    /// Has each program checked before the question, which tells what was found. A program with
    /// errors, or one that could not be checked, takes a second question. One whose verdict forbids
    /// sending is not sent. Without \a inspector nothing is checked.
    void setInspector(const Inspector &inspector) { m_inspector = inspector; }

    bool isRunning() const { return m_isRunning; }
    /// What the question is about; of the last download once that has ended.
    DownloadFacts facts() const { return m_facts; }
    PlcTransfer *transfer() { return &m_transfer; }
    ProgramSnapshot *snapshot() { return &m_snapshot; }

    /// Milliseconds without progress after which a download fails; FileTaskRunner::stallMs at
    /// first.
    void setStallTime(int ms);

    /// Of messages that the PLC has to do with: over once a download was compared, or once the PLC
    /// answers again.
    static QString plcCause();

public Q_SLOTS:
    /// Sends the program at \a path; empty when it was never saved, which is told as a failure.
    /// Does nothing while a download runs. Otherwise ends in one ended() and one told() after it,
    /// never before start() has returned.
    void start(const QString &path);
    /// Ends a download that runs. A question that stands is not answered by it.
    void stop();

Q_SIGNALS:
    /// The download is over; what came of it is told next.
    void ended();
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    void causeEnded(const QString &cause);
    /// A line for the operator; \a percent is 0 to 100, and starts anew for each part of the work.
    void worked(const QString &text, int percent);

private Q_SLOTS:
    void lookAtShown();
    void showCopying(int percent);
    void showSending(int percent);
    void endUncopied(const QString &reason);
    void endStopped(const QString &text);
    void endUnsent(const QString &reason);
    void endSendingStopped(const QString &text);
    void endSent(ProgramSnapshot::Verdict verdict);

private:
    void compare(const QString &shownText);
    void inspect();
    void goOn(const std::function<void()> &next);
    void ask();
    bool isAgreedTo();
    void end(const QString &text, Message::Tone tone, const QString &cause = QString());

    ProgramSnapshot m_snapshot;
    PlcTransfer m_transfer;
    FileTaskQueue m_jobs;
    Questioner *m_questioner;
    Shown m_shown;
    Inspector m_inspector;
    DownloadFacts m_facts;
    QElapsedTimer m_copyingFor;
    bool m_isRunning = false;
    bool m_isCopying = false;
    /// The copy is read once more, to be compared and checked.
    bool m_isReading = false;
    bool m_isStopped = false;
};

#endif // CHECKEDDOWNLOAD_H
