// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programsnapshot.h"

#include "filestamp.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// A program that is written to is read again this often before it counts as restless.
const int kTries = 3;
const int kChecksumDigits = 8;

} // namespace

QString ProgramFacts::checksum(const QByteArray &hash)
{
    const QString digits = QString::fromLatin1(hash.toHex().left(kChecksumDigits)).toUpper();
    return digits.left(kChecksumDigits / 2) + QLatin1Char(' ') + digits.mid(kChecksumDigits / 2);
}

/// Reads a program in the thread, and copies it if there is a path to copy to.
class ProgramSnapshot::Task : public FileTask
{
public:
    Task(const QString &path, const QString &copyPath) : m_source(path), m_copy(copyPath)
    {
        m_facts.name = QFileInfo(path).fileName();
    }

    bool step() override;
    int percent() const override;
    void close() override;

    ProgramFacts facts() const { return m_facts; }
    QString error() const { return m_error; }

private:
    bool open();
    bool readPiece();
    bool fail(const QString &error);

    QFile m_source;
    QFile m_copy;
    FileStamp m_stamp;
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
    ProgramFacts m_facts;
    int m_tries = 0;
    QString m_error;
};

bool ProgramSnapshot::Task::step()
{
    return m_source.isOpen() ? readPiece() : open();
}

bool ProgramSnapshot::Task::open()
{
    if (m_source.fileName().isEmpty())
        return fail(tr("There is no program to download yet. Save it under a name first."));
    const QFileInfo info(m_source.fileName());
    if (!info.exists())
        return fail(tr("The program %1 is gone from the panel. Save it again, then download.")
                        .arg(m_facts.name));
    if (!info.isFile())
        return fail(tr("%1 is not a program file.").arg(m_facts.name));
    if (!m_source.open(QIODevice::ReadOnly))
        return fail(
            tr("The program %1 cannot be read: %2.").arg(m_facts.name, m_source.errorString()));
    m_stamp = FileStamp::of(m_source);
    m_hash.reset();
    m_facts.bytes = 0;
    m_facts.lines = 1;
    if (m_copy.fileName().isEmpty())
        return true;
    m_copy.close();
    QDir().mkpath(QFileInfo(m_copy.fileName()).path());
    if (!m_copy.open(QIODevice::WriteOnly))
        return fail(tr("The program %1 cannot be held for the download: %2.")
                        .arg(m_facts.name, m_copy.errorString()));
    return true;
}

bool ProgramSnapshot::Task::readPiece()
{
    // Up to where the end was at first: one that moves on could be followed for ever.
    const QByteArray piece = m_source.read(qMin<qint64>(kPiece, m_stamp.size - m_facts.bytes));
    if (m_source.error() != QFileDevice::NoError)
        return fail(
            tr("The program %1 cannot be read: %2.").arg(m_facts.name, m_source.errorString()));
    m_facts.bytes += piece.size();
    m_facts.lines += piece.count('\n');
    m_hash.addData(piece);
    if (m_copy.isOpen()
        && (m_copy.write(piece) != piece.size() || (piece.isEmpty() && !m_copy.flush())))
        return fail(tr("The program %1 cannot be held for the download: %2.")
                        .arg(m_facts.name, m_copy.errorString()));
    if (!piece.isEmpty())
        return true;

    m_facts.hash = m_hash.result();
    const bool isWhole =
        m_stamp == FileStamp::of(m_source) && m_stamp == FileStamp::of(m_source.fileName());
    m_source.close();
    if (isWhole)
        return false;
    if (++m_tries < kTries)
        return true;
    return fail(
        tr("The program %1 is being written. Download it when that is over.").arg(m_facts.name));
}

int ProgramSnapshot::Task::percent() const
{
    return m_stamp.size <= 0 ? 0 : int(qMin<qint64>(100, 100 * m_facts.bytes / m_stamp.size));
}

void ProgramSnapshot::Task::close()
{
    m_source.close();
    m_copy.close();
}

bool ProgramSnapshot::Task::fail(const QString &error)
{
    m_error = error;
    return false;
}

ProgramSnapshot::ProgramSnapshot(const QString &folder, QObject *parent)
    : QObject(parent), m_copyPath(folder + QLatin1String("/program"))
{
    connect(&m_work, &FileWork::progressed, this, &ProgramSnapshot::progress);
    connect(&m_work, &FileWork::ended, this, &ProgramSnapshot::end);
    connect(&m_work, &FileWork::stopped, this,
            [this] { giveUp(tr("The download was stopped. The PLC keeps what it had.")); });
    connect(&m_work, &FileWork::stalled, this, [this] {
        giveUp(tr("The panel's storage stopped answering. Switch the panel off and on, then "
                  "download once more."));
    });
    drop();
}

ProgramSnapshot::~ProgramSnapshot()
{
    drop();
}

void ProgramSnapshot::take(const QString &path)
{
    if (isRunning())
        return;
    m_path = path;
    m_comparing = false;
    begin(m_copyPath);
}

void ProgramSnapshot::compare()
{
    if (isRunning())
        return;
    m_comparing = true;
    begin(QString());
}

void ProgramSnapshot::stop()
{
    if (!m_comparing)
        m_work.stop();
}

void ProgramSnapshot::drop()
{
    QFile::remove(m_copyPath);
}

void ProgramSnapshot::begin(const QString &copyPath)
{
    m_task = std::make_shared<Task>(m_path, copyPath);
    m_work.start(m_task);
}

void ProgramSnapshot::end()
{
    const std::shared_ptr<Task> task = std::move(m_task);
    if (m_comparing) {
        Q_EMIT compared(!task->error().isEmpty()             ? Gone
                        : task->facts().hash != m_facts.hash ? Changed
                                                             : Same);
        return;
    }
    m_facts = task->facts();
    if (task->error().isEmpty())
        Q_EMIT taken();
    else
        Q_EMIT failed(task->error());
}

void ProgramSnapshot::giveUp(const QString &reason)
{
    m_task.reset();
    if (m_comparing)
        Q_EMIT compared(Gone);
    else
        Q_EMIT failed(reason);
}
