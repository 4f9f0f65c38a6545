// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "plctransfer.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

const int PlcTransfer::kPiece;
const qint64 PlcTransfer::kLargestProgram;

PlcTransfer::PlcTransfer(const QString &dropDir, QObject *parent)
    : QObject(parent), m_dropDir(dropDir)
{
    connect(&m_timer, &QTimer::timeout, this, &PlcTransfer::step);
}

PlcTransfer::~PlcTransfer() = default;

void PlcTransfer::start(const QString &programPath)
{
    if (isRunning())
        return;
    m_programPath = programPath;
    m_stage = Opening;
    m_timer.start(0);
}

void PlcTransfer::stop()
{
    if (isRunning())
        fail(tr("The download was stopped. The PLC keeps what it had."));
}

void PlcTransfer::step()
{
    switch (m_stage) {
    case Idle:
        break;
    case Opening:
        open();
        break;
    case Sending:
        sendPiece();
        break;
    case Comparing:
        comparePiece();
        break;
    }
}

void PlcTransfer::open()
{
    if (m_programPath.isEmpty())
        return fail(tr("There is no program to download yet. Save it under a name first."));
    const QFileInfo program(m_programPath);
    if (!program.exists())
        return fail(tr("The program %1 is gone from the panel. Save it again, then download.")
                        .arg(program.fileName()));
    if (!program.isFile())
        return fail(tr("%1 is not a program file.").arg(program.fileName()));
    if (!QFileInfo(m_dropDir).isDir())
        return fail(tr("The PLC does not answer: there is no folder %1.").arg(m_dropDir));
    if (QFileInfo(m_dropDir).canonicalFilePath() == QFileInfo(program.path()).canonicalFilePath())
        return fail(tr("The PLC folder is the program directory itself. Choose another one."));
    if (program.size() > kLargestProgram)
        return fail(tr("The program %1 is larger than the PLC takes (%2 MB).")
                        .arg(program.fileName())
                        .arg(kLargestProgram / (1024 * 1024)));

    QFile source(m_programPath);
    if (source.open(QIODevice::ReadOnly))
        m_program = source.readAll();
    if (source.error() != QFileDevice::NoError)
        return fail(
            tr("The program %1 cannot be read: %2.").arg(program.fileName(), source.errorString()));
    m_target.reset(new QSaveFile(targetPath()));
    if (!m_target->open(QIODevice::WriteOnly))
        return fail(tr("The PLC does not take the program: %1.").arg(m_target->errorString()));
    m_stage = Sending;
    report();
}

// Whoever listens to the progress may stop the transfer: report() comes last everywhere.
void PlcTransfer::sendPiece()
{
    const int length = std::min(kPiece, m_program.size() - m_position);
    if (m_target->write(m_program.constData() + m_position, length) != length)
        return fail(tr("The PLC does not take the program: %1.").arg(m_target->errorString()));
    m_position += length;
    if (m_position == m_program.size())
        return openArrived();
    report();
}

void PlcTransfer::openArrived()
{
    if (!m_target->commit())
        return fail(tr("The PLC does not take the program: %1.").arg(m_target->errorString()));
    m_arrived.setFileName(targetPath());
    if (!m_arrived.open(QIODevice::ReadOnly))
        return fail(
            tr("What arrived in the PLC cannot be read back: %1.").arg(m_arrived.errorString()));
    m_position = 0;
    m_stage = Comparing;
    report();
}

void PlcTransfer::comparePiece()
{
    const QByteArray piece = m_arrived.read(kPiece);
    const int length = std::min(kPiece, m_program.size() - m_position);
    // At the end of the program one more read has to find the end of the file.
    const bool equal =
        piece.size() == length
        && std::memcmp(piece.constData(), m_program.constData() + m_position, size_t(length)) == 0;
    if (!equal) {
        m_arrived.close();
        QFile::remove(targetPath());
        return fail(tr("What arrived in the PLC differs from what was sent. It was taken out "
                       "again; download once more."));
    }
    m_position += length;
    if (length > 0)
        return report();

    const QString target = targetPath();
    const qint64 bytes = m_program.size();
    end();
    Q_EMIT finished(target, bytes);
}

// Both stages count alike.
void PlcTransfer::report()
{
    const double part = m_program.isEmpty() ? 1.0 : double(m_position) / m_program.size();
    Q_EMIT progress(int((m_stage == Comparing ? 50 : 0) + part * 50));
}

void PlcTransfer::end()
{
    m_timer.stop();
    m_stage = Idle;
    m_arrived.close();
    m_target.reset();
    m_program = QByteArray();
    m_position = 0;
}

void PlcTransfer::fail(const QString &reason)
{
    end();
    Q_EMIT failed(reason);
}

QString PlcTransfer::targetPath() const
{
    return QDir(m_dropDir).filePath(QFileInfo(m_programPath).fileName());
}
