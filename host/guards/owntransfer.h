// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef OWNTRANSFER_H
#define OWNTRANSFER_H

#include "base/filarixhostglobal.h"
#include "base/message.h"
#include "programs/programsnapshot.h"
#include "storage/filejob.h"

#include <QObject>
#include <QPointer>

#include <atomic>
#include <functional>
#include <memory>

class WMMainWindow;

/// Sends the program of the library's window to a machine that takes no files, by a way of the
/// host's own.
///
///     OwnTransfer *transfer = new OwnTransfer(window, copyDir, send, window);
///     connect(transfer, SIGNAL(told(QString, Message::Tone, QString)), ...);
///
/// The Download key has a private copy made, which nobody changes meanwhile, and the host's way
/// runs in a thread. The key is off until that ends, however it ends. A ProgramGuard of the same
/// window keeps a program back that is not whole.
class FILARIX_HOST_EXPORT OwnTransfer : public QObject
{
    Q_OBJECT

public:
    /// Carries the copy over. Gives why the machine did not take it, a sentence for the operator,
    /// or nothing. Runs in another thread, and has to own what it uses.
    typedef std::function<QString(const QString &copyPath, const ProgramFacts &facts)> Send;

    /// Milliseconds after which nobody waits for the machine any more. No other download begins
    /// until the host's way has returned.
    static const int longestMs = 10 * 60 * 1000;

    /// Copies wait in \a copyDir, a folder for them alone, made if it is missing. \a window may go
    /// first.
    OwnTransfer(WMMainWindow *window, const QString &copyDir, const Send &send,
                QObject *parent = nullptr);

    bool isRunning() const { return m_isRunning; }
    /// Milliseconds in place of longestMs.
    void setStallTime(int ms) { m_job.setStallTime(ms); }

Q_SIGNALS:
    /// What came of a download, once for each.
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());

private Q_SLOTS:
    void take(const QString &path);
    void begin();
    void giveUp(const QString &reason);

private:
    void end(const QString &text, Message::Tone tone);
    void endSent(const QString &reason);
    void setRunning(bool isRunning);

    QPointer<WMMainWindow> m_window;
    ProgramSnapshot m_copy;
    const Send m_send;
    FileJob m_job;
    /// The host's way has not returned yet.
    std::shared_ptr<std::atomic<bool>> m_isSending;
    bool m_isRunning = false;
};

#endif // OWNTRANSFER_H
