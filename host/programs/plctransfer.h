// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PLCTRANSFER_H
#define PLCTRANSFER_H

#include "base/filarixhostglobal.h"
#include "storage/filetaskrunner.h"

/// Copies one program into the drop folder that stands for the PLC.
///
/// The program goes in pieces, beside the event loop: the screen stays alive however slow the
/// folder is. A complete program takes its name in the folder, and no other does. Then the file is
/// read back and compared byte by byte with what was sent.
///
/// A transfer that hangs is given up, and changes nothing from then on. If the one step hangs that
/// gives the program its name, the operator is told that nobody knows. No other transfer begins
/// before that step has come back.
///
/// Each start() ends in exactly one finished(), stopped() or failed(), never before start() has
/// returned.
///
///     PlcTransfer transfer("/srv/plc");
///     connect(&transfer, SIGNAL(failed(QString)), ...);
///     transfer.start("/home/hmi/cnc/coil.cnc");
class FILARIX_HOST_EXPORT PlcTransfer : public QObject
{
    Q_OBJECT

public:
    /// Bytes that move in one step.
    static const int pieceBytes = 16 * 1024;
    /// Bytes that a program may have.
    static const qint64 largestProgram = qint64(64) * 1024 * 1024;

    /// The folder need not exist yet; a transfer into a missing one fails.
    explicit PlcTransfer(const QString &dropDir, QObject *parent = nullptr);
    ~PlcTransfer() override;

    QString dropDir() const { return m_dropDir; }
    bool isRunning() const { return m_work.isRunning(); }

    /// Starts to send the file at \a programPath; empty when the program was never saved. With
    /// \a copyPath that file is sent, under the program's name. With \a hash, the SHA-256 of what
    /// the operator was shown, nothing else is sent. Does nothing while a transfer runs.
    void start(const QString &programPath, const QString &copyPath = QString(),
               const QByteArray &hash = QByteArray());
    /// Ends a running transfer; what the PLC had before stays, unless the program stands there
    /// already.
    void stop();

    /// Whether the last transfer that failed did so because of the PLC, not of the program.
    bool isPlcAtFault() const { return m_isPlcAtFault; }
    /// Whether the last transfer that was stopped left its program in the PLC, not compared.
    bool isUncompared() const { return m_isUncompared; }

    /// Milliseconds without progress after which a transfer fails; FileTaskRunner::stallMs at
    /// first.
    void setStallTime(int ms) { m_work.setStallTime(ms); }

Q_SIGNALS:
    /// 0 to 100 over sending and comparing.
    void progress(int percent);
    /// All \a bytes stand in the file \a target and equal what was sent.
    void finished(const QString &target, qint64 bytes);
    /// stop() came before the end. \a text says what the PLC has now.
    void stopped(const QString &text);
    /// \a reason is a sentence for the operator, and says what to do.
    void failed(const QString &reason);

private Q_SLOTS:
    void end();
    void endStopped();
    void endStalled();

private:
    class Task;

    const QString m_dropDir;
    FileTaskRunner m_work;
    std::shared_ptr<Task> m_task;
    bool m_isPlcAtFault = false;
    bool m_isUncompared = false;
};

#endif // PLCTRANSFER_H
