// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PLCTRANSFER_H
#define PLCTRANSFER_H

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QSaveFile>
#include <QScopedPointer>
#include <QTimer>

/// Copies one program into the drop folder that stands for the PLC.
///
/// The program is read at once and sent in pieces from the event loop: the screen stays alive, and
/// a program that is saved again meanwhile does not arrive as a mixture. It takes its name in the
/// folder only once it is complete, and is then read back and compared byte by byte with what was
/// sent.
///
/// Each start() ends in exactly one finished() or failed(), never before start() has returned.
///
///     PlcTransfer transfer("/srv/plc");
///     connect(&transfer, &PlcTransfer::failed, ...);
///     transfer.start("/home/hmi/cnc/coil.cnc");
class PlcTransfer : public QObject
{
    Q_OBJECT

public:
    /// Bytes that move in one turn of the event loop.
    static const int kPiece = 16 * 1024;
    /// Bytes that a program may have: it is read in one go and held in memory.
    static const qint64 kLargestProgram = 64 * 1024 * 1024;

    /// The folder need not exist yet; a transfer into a missing one fails.
    explicit PlcTransfer(const QString &dropDir, QObject *parent = nullptr);
    ~PlcTransfer() override;

    QString dropDir() const { return m_dropDir; }
    bool isRunning() const { return m_stage != Idle; }

    /// Starts to send the file at \a programPath; empty when the program was never saved. Does
    /// nothing while a transfer runs.
    void start(const QString &programPath);
    /// Gives up a running transfer, which then fails; what the PLC had before stays.
    void stop();

Q_SIGNALS:
    /// 0 to 100 over sending and comparing.
    void progress(int percent);
    /// All \a bytes stand in the file \a target and equal what was sent.
    void finished(const QString &target, qint64 bytes);
    /// \a reason is a sentence for the operator.
    void failed(const QString &reason);

private:
    enum Stage { Idle, Opening, Sending, Comparing };

    void step();
    void open();
    void sendPiece();
    void openArrived();
    void comparePiece();
    void report();
    void end();
    void fail(const QString &reason);
    QString targetPath() const;

    const QString m_dropDir;
    QString m_programPath;
    QTimer m_timer;
    Stage m_stage = Idle;
    QByteArray m_program;
    QScopedPointer<QSaveFile> m_target;
    QFile m_arrived;
    int m_position = 0;
};

#endif // PLCTRANSFER_H
