// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/plctransfer.h"

#include "base/sha256.h"
#include "programs/downloadsource.h"
#include "storage/durablefile.h"
#include "storage/filestamp.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

const int PlcTransfer::pieceBytes;
const qint64 PlcTransfer::largestProgram;

namespace {

// No download lasts so long: what is older was left behind by a panel that was switched off.
const qint64 leftBehindMs = qint64(24) * 60 * 60 * 1000;

} // namespace

/// The transfer itself, in the thread.
class Q_DECL_HIDDEN PlcTransfer::Task : public FileTask
{
public:
    Task(const QString &programPath, const QString &copyPath, const QString &dropDir,
         const QByteArray &hash)
        : m_folder(QFileInfo(programPath).path())
        , m_source(programPath, copyPath)
        , m_dropDir(dropDir)
        , m_targetPath(QDir(dropDir).filePath(m_source.name()))
        , m_shownHash(hash)
    {}

    bool step() override;
    int percent() const override;
    void close() override;

    QString error() const { return m_error; }
    bool isPlcAtFault() const { return m_isPlcAtFault; }
    QString targetPath() const { return m_targetPath; }
    qint64 size() const { return m_size; }
    /// The program has taken its name in the PLC's folder.
    bool hasArrived() const { return m_hasArrived; }
    QString name() const { return m_source.name(); }
    /// Lets the task end with that error, before it began.
    void refuse(const QString &error) { m_error = error; }

private:
    enum Stage { Opening, Sending, Committing, OpeningArrived, Comparing };

    bool open();
    void sweep();
    bool sendPiece();
    bool commit();
    bool openArrived();
    bool comparePiece();
    bool takeOut();
    bool fail(const QString &error);
    bool failAtPlc(const QString &error);

    const QString m_folder;
    DownloadSource m_source;
    const QString m_dropDir;
    const QString m_targetPath;
    const QByteArray m_shownHash;
    Sha256 m_hash;
    QScopedPointer<DurableFile> m_target;
    QFile m_arrived;
    /// Of what was sent, under whatever name.
    qint64 m_ownInode = 0;
    Stage m_stage = Opening;
    /// Read by whoever gave the task up.
    std::atomic<bool> m_hasArrived{false};
    qint64 m_size = 0;
    qint64 m_position = 0;
    QString m_error;
    bool m_isPlcAtFault = false;
};

bool PlcTransfer::Task::step()
{
    if (!m_error.isEmpty())
        return false;
    switch (m_stage) {
    case Opening:
        return open();
    case Sending:
        return sendPiece();
    case Committing:
        return commit();
    case OpeningArrived:
        return openArrived();
    case Comparing:
        return comparePiece();
    }
    return false;
}

bool PlcTransfer::Task::open()
{
    const QString reasonMissing = m_source.reasonMissing();
    if (!reasonMissing.isEmpty())
        return fail(reasonMissing);
    if (!QFileInfo(m_dropDir).isDir())
        return failAtPlc(tr("The PLC does not answer: there is no folder %1.").arg(m_dropDir));
    if (QFileInfo(m_dropDir).canonicalFilePath() == QFileInfo(m_folder).canonicalFilePath())
        return fail(tr("The PLC folder is the program directory itself. Choose another one."));
    if (m_source.file().size() > largestProgram)
        return fail(tr("The program %1 is larger than the PLC takes (%2 MB).")
                        .arg(name())
                        .arg(largestProgram / (qint64(1024) * 1024)));
    if (!m_source.file().open(QIODevice::ReadOnly))
        return fail(m_source.reasonUnread());
    m_size = m_source.file().size();
    sweep();
    m_target.reset(new DurableFile(m_targetPath));
    if (!m_target->open())
        return failAtPlc(tr("The PLC does not take the program: %1.").arg(m_target->errorString()));
    m_stage = Sending;
    return true;
}

/// Removes what a panel that was switched off has left there, and no file of somebody else.
void PlcTransfer::Task::sweep()
{
    const QDir folder(m_dropDir);
    const QStringList names = folder.entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden);
    for (const QString &name : names) {
        const QString path = folder.filePath(name);
        if (!DurableFile::isTemporary(name) || FileStamp::of(path).age() < leftBehindMs)
            continue;
        if (!beginChange())
            return;
        QFile::remove(path);
        endChange();
    }
}

bool PlcTransfer::Task::sendPiece()
{
    const QByteArray piece =
        m_source.file().read(std::min<qint64>(pieceBytes, m_size - m_position));
    if (piece.isEmpty() && m_position < m_size)
        return fail(m_source.reasonUnread());
    m_hash.addData(piece);
    if (!m_target->write(piece))
        return failAtPlc(tr("The PLC does not take the program: %1.").arg(m_target->errorString()));
    m_position += piece.size();
    if (m_position == m_size)
        m_stage = Committing;
    return true;
}

bool PlcTransfer::Task::commit()
{
    if (!m_shownHash.isEmpty() && m_hash.result() != m_shownHash)
        return fail(tr("The copy of %1 has changed since it was shown, and was not sent. Download "
                       "once more.")
                        .arg(name()));
    bool mayReplace = false;
    m_ownInode = FileStamp::of(m_target->temporaryPath()).inode;
    const bool isDone = m_target->commit([&] { return mayReplace = beginChange(); });
    m_hasArrived = m_target->hasReplaced();
    if (mayReplace)
        endChange();
    if (!isDone && m_hasArrived)
        return failAtPlc(
            tr("%1 is in the PLC, but the PLC does not say that it is stored: %2. Download "
               "once more.")
                .arg(name(), m_target->errorString()));
    if (!isDone)
        return failAtPlc(tr("The PLC does not take the program: %1.").arg(m_target->errorString()));
    m_position = 0;
    m_stage = OpeningArrived;
    return true;
}

bool PlcTransfer::Task::openArrived()
{
    m_arrived.setFileName(m_targetPath);
    if (!m_arrived.open(QIODevice::ReadOnly) || !m_source.file().seek(0))
        return failAtPlc(
            tr("What arrived in the PLC cannot be read back: %1.").arg(m_arrived.errorString()));
    m_stage = Comparing;
    return true;
}

bool PlcTransfer::Task::comparePiece()
{
    // At the end of the program one more read has to find the end of the file.
    const QByteArray piece = m_arrived.read(pieceBytes);
    const QByteArray sent = m_source.file().read(std::min<qint64>(pieceBytes, m_size - m_position));
    if (piece != sent)
        return takeOut();
    m_position += piece.size();
    return !piece.isEmpty();
}

/// Takes out only what was sent: in a folder that others write to, the name may belong to another
/// file by now.
bool PlcTransfer::Task::takeOut()
{
    m_arrived.close();
    if (FileStamp::of(m_targetPath).inode == m_ownInode && beginChange()) {
        const bool isOut = QFile::remove(m_targetPath);
        endChange();
        if (isOut)
            return failAtPlc(
                tr("What arrived in the PLC differs from what was sent. It was taken out "
                   "again; download once more."));
    }
    return failAtPlc(
        tr("What is in the PLC as %1 differs from what was sent. Do not run it; download "
           "once more.")
            .arg(name()));
}

/// The two stages of a transfer count alike.
int PlcTransfer::Task::percent() const
{
    const double part = m_size == 0 ? 1.0 : double(m_position) / m_size;
    return int((hasArrived() ? 50 : 0) + part * 50);
}

void PlcTransfer::Task::close()
{
    m_source.file().close();
    m_arrived.close();
    m_target.reset();
}

bool PlcTransfer::Task::failAtPlc(const QString &error)
{
    m_isPlcAtFault = true;
    return fail(error);
}

bool PlcTransfer::Task::fail(const QString &error)
{
    m_error = error;
    return false;
}

PlcTransfer::PlcTransfer(const QString &dropDir, QObject *parent)
    : QObject(parent), m_dropDir(dropDir)
{
    connect(&m_work, SIGNAL(progressed(int)), this, SIGNAL(progress(int)));
    connect(&m_work, SIGNAL(ended()), this, SLOT(end()));
    connect(&m_work, SIGNAL(stopped()), this, SLOT(endStopped()));
    connect(&m_work, SIGNAL(stalled()), this, SLOT(endStalled()));
}

PlcTransfer::~PlcTransfer() = default;

void PlcTransfer::start(const QString &programPath, const QString &copyPath, const QByteArray &hash)
{
    if (isRunning())
        return;
    m_task = std::make_shared<Task>(programPath, copyPath, m_dropDir, hash);
    // The last download could take back the name of what is sent now, long after that was compared.
    if (m_work.hasChangeUnderWay())
        m_task->refuse(tr("The last download has not ended yet. Wait, or switch the PLC off and "
                          "on, then download once more."));
    m_work.start(m_task);
}

void PlcTransfer::stop()
{
    m_work.stop();
}

void PlcTransfer::end()
{
    const std::shared_ptr<Task> task = std::move(m_task);
    m_isPlcAtFault = task->isPlcAtFault();
    if (task->error().isEmpty())
        Q_EMIT finished(task->targetPath(), task->size());
    else
        Q_EMIT failed(task->error());
}

void PlcTransfer::endStopped()
{
    m_isUncompared = m_task->hasArrived();
    m_task.reset();
    Q_EMIT stopped(m_isUncompared ? tr("The download was stopped before the program in the PLC was "
                                       "compared. Download it once more.")
                                  : DownloadSource::stoppedText());
}

void PlcTransfer::endStalled()
{
    m_isPlcAtFault = true;
    const std::shared_ptr<Task> task = std::move(m_task);
    if (task->isUncertain())
        Q_EMIT failed(tr("The PLC stopped answering: whether it holds %1 is not known. Check it, "
                         "then download again.")
                          .arg(task->name()));
    else if (task->hasArrived())
        Q_EMIT failed(tr("%1 is in the PLC but not compared: the PLC stopped answering. Check the "
                         "PLC, then download again.")
                          .arg(task->name()));
    else
        Q_EMIT failed(tr("The PLC stopped answering during the download. Check the PLC and its "
                         "cable, then download once more."));
}
