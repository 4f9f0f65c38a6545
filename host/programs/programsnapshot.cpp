// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programsnapshot.h"

#include "base/hostcompat.h"
#include "base/sha256.h"
#include "programs/downloadsource.h"
#include "storage/filestamp.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A program that is written to is read again this often before it counts as restless.
const int mostTries = 3;
const int checksumDigits = 8;
const char copyStart[] = "program-";
// What panels of before called theirs.
const char oldCopy[] = "program";

QByteArray encoded(const QString &path)
{
    return QFile::encodeName(path);
}

/// Whether the file that is open as \a handle still has the name \a path.
bool hasName(int handle, const QString &path)
{
    struct stat open = {};
    struct stat named = {};
    return ::fstat(handle, &open) == 0 && ::stat(encoded(path).constData(), &named) == 0
           && open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

/// Takes away the copies in \a folder that no panel holds.
void sweep(const QString &folder)
{
    const QDir dir(folder);
    const QStringList names =
        dir.entryList({QLatin1String(oldCopy), QLatin1String(copyStart) + QLatin1Char('*')},
                      QDir::Files | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QString path = dir.filePath(name);
        const int handle = ::open(encoded(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (handle < 0)
            continue;
        if (::flock(handle, LOCK_EX | LOCK_NB) == 0)
            ::unlink(encoded(path).constData());
        ::close(handle);
    }
}

} // namespace

QString ProgramFacts::checksum(const QByteArray &hash)
{
    const QString digits = QString::fromLatin1(hash.toHex().left(checksumDigits)).toUpper();
    return digits.left(checksumDigits / 2) + QLatin1Char(' ') + digits.mid(checksumDigits / 2);
}

/// The file of a copy, for threads. The lock on it says to other panels that it is wanted.
class Q_DECL_HIDDEN ProgramSnapshot::Copy
{
public:
    explicit Copy(const QString &folder)
        : m_path(folder + QLatin1Char('/') + QLatin1String(copyStart) + HostCompat::uniqueName())
    {}
    ~Copy() { remove(); }

    QString path() const { return m_path; }
    /// Makes the file, or empties it.
    bool open();
    bool write(const QByteArray &bytes);
    void remove();
    /// Why the last call failed, in the system's words.
    QString errorString() const { return QString::fromLocal8Bit(std::strerror(m_error)); }

private:
    Q_DISABLE_COPY(Copy)

    bool fail();

    const QString m_path;
    int m_handle = -1;
    int m_error = 0;
};

bool ProgramSnapshot::Copy::open()
{
    if (m_handle >= 0)
        return (::ftruncate(m_handle, 0) == 0 && ::lseek(m_handle, 0, SEEK_SET) == 0) || fail();
    QDir().mkpath(QFileInfo(m_path).path());
    // Another panel may take an unlocked one away between the two calls.
    for (int i = 0; i < mostTries && m_handle < 0; ++i) {
        m_handle =
            ::open(encoded(m_path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (m_handle < 0)
            return fail();
        if (::flock(m_handle, LOCK_EX | LOCK_NB) == 0 && hasName(m_handle, m_path))
            return true;
        m_error = errno;
        ::close(m_handle);
        m_handle = -1;
    }
    return false;
}

bool ProgramSnapshot::Copy::write(const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            ::write(m_handle, bytes.constData() + done, size_t(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            return fail();
        done += qMax<ssize_t>(0, count);
    }
    return true;
}

void ProgramSnapshot::Copy::remove()
{
    if (m_handle < 0)
        return;
    ::unlink(encoded(m_path).constData());
    ::close(m_handle);
    m_handle = -1;
}

bool ProgramSnapshot::Copy::fail()
{
    m_error = errno;
    return false;
}

/// Reads a program in the thread, and copies it if there is somewhere to copy to.
class Q_DECL_HIDDEN ProgramSnapshot::Task : public FileTask
{
public:
    Task(const QString &path, const std::shared_ptr<Copy> &copy) : m_source(path), m_copy(copy)
    {
        m_facts.name = m_source.name();
    }

    bool step() override;
    int percent() const override;
    void close() override;

    ProgramFacts facts() const { return m_facts; }
    QString error() const { return m_error; }
    /// The copy, when it is whole.
    std::shared_ptr<Copy> copy() const { return m_isWhole ? m_copy : std::shared_ptr<Copy>(); }

private:
    bool open();
    bool readPiece();
    bool fail(const QString &error);

    DownloadSource m_source;
    const std::shared_ptr<Copy> m_copy;
    FileStamp m_stamp;
    Sha256 m_hash;
    ProgramFacts m_facts;
    int m_tries = 0;
    bool m_isWhole = false;
    QString m_error;
};

bool ProgramSnapshot::Task::step()
{
    return m_source.file().isOpen() ? readPiece() : open();
}

bool ProgramSnapshot::Task::open()
{
    const QString reasonMissing = m_source.reasonMissing();
    if (!reasonMissing.isEmpty())
        return fail(reasonMissing);
    if (!m_source.file().open(QIODevice::ReadOnly))
        return fail(m_source.reasonUnread());
    m_stamp = FileStamp::of(m_source.file());
    m_hash = Sha256();
    m_facts.bytes = 0;
    m_facts.lines = 1;
    if (m_copy && !m_copy->open())
        return fail(tr("The program %1 cannot be held for the download: %2.")
                        .arg(m_facts.name, m_copy->errorString()));
    return true;
}

bool ProgramSnapshot::Task::readPiece()
{
    // Up to where the end was at first: one that moves on could be followed for ever.
    const QByteArray piece =
        m_source.file().read(qMin<qint64>(pieceBytes, m_stamp.size - m_facts.bytes));
    if (m_source.file().error() != QFile::NoError)
        return fail(m_source.reasonUnread());
    m_facts.bytes += piece.size();
    m_facts.lines += piece.count('\n');
    m_hash.addData(piece);
    if (m_copy && !m_copy->write(piece))
        return fail(tr("The program %1 cannot be held for the download: %2.")
                        .arg(m_facts.name, m_copy->errorString()));
    if (!piece.isEmpty())
        return true;

    m_facts.hash = m_hash.result();
    m_isWhole = m_stamp == FileStamp::of(m_source.file())
                && m_stamp == FileStamp::of(m_source.file().fileName());
    m_source.file().close();
    if (m_isWhole)
        return false;
    if (++m_tries < mostTries)
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
    m_source.file().close();
    // A copy that came too late for whoever wanted it goes, too.
    if (m_copy && (!m_isWhole || isGivenUp()))
        m_copy->remove();
}

bool ProgramSnapshot::Task::fail(const QString &error)
{
    m_error = error;
    return false;
}

ProgramSnapshot::ProgramSnapshot(const QString &folder, QObject *parent)
    : QObject(parent), m_folder(folder)
{
    connect(&m_work, SIGNAL(progressed(int)), this, SIGNAL(progress(int)));
    connect(&m_work, SIGNAL(ended()), this, SLOT(end()));
    connect(&m_work, SIGNAL(stopped()), this, SLOT(endStopped()));
    connect(&m_work, SIGNAL(stalled()), this, SLOT(endStalled()));
    m_keeper.post([folder] { sweep(folder); }, [] {});
}

ProgramSnapshot::~ProgramSnapshot()
{
    const std::shared_ptr<Copy> copy = std::move(m_copy);
    if (copy)
        m_keeper.setLast([copy] { copy->remove(); });
}

QString ProgramSnapshot::copyPath() const
{
    return m_copy ? m_copy->path() : QString();
}

void ProgramSnapshot::take(const QString &path)
{
    if (isRunning())
        return;
    drop();
    m_path = path;
    m_comparing = false;
    begin(std::make_shared<Copy>(m_folder));
}

void ProgramSnapshot::compare()
{
    if (isRunning())
        return;
    m_comparing = true;
    begin(std::shared_ptr<Copy>());
}

void ProgramSnapshot::stop()
{
    if (!m_comparing)
        m_work.stop();
}

void ProgramSnapshot::drop()
{
    const std::shared_ptr<Copy> copy = std::move(m_copy);
    if (copy)
        m_keeper.post([copy] { copy->remove(); }, [] {});
}

void ProgramSnapshot::begin(const std::shared_ptr<Copy> &copy)
{
    m_task = std::make_shared<Task>(m_path, copy);
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
    m_copy = task->copy();
    if (task->error().isEmpty())
        Q_EMIT taken();
    else
        Q_EMIT failed(task->error());
}

void ProgramSnapshot::endStopped()
{
    m_task.reset();
    Q_EMIT stopped(DownloadSource::stoppedText());
}

void ProgramSnapshot::endStalled()
{
    m_task.reset();
    if (m_comparing)
        Q_EMIT compared(Gone);
    else
        Q_EMIT failed(tr("The panel's storage stopped answering. Switch the panel off and on, then "
                         "download once more."));
}
