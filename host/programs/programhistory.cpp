// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programhistory.h"

#include "base/hostcompat.h"
#include "base/sha256.h"
#include "storage/durablefile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace {

const int pollMs = 1000;
const int pieceBytes = 64 * 1024;
// Longer than it takes to keep all programs that a panel has room for, on a slow card.
const int patienceMs = 20000;
// How long a program may be written to before a restore gives way to its writer.
const int writerMs = 3000;
// What is younger may be in the making.
const int leftBehindMs = 60000;
// Begins the names of folders in the program directory. Hidden, and so no program to anybody who
// lists the directory.
const char halfRestored[] = ".filarix-restored";

enum Swap {
    NotSwapped, ///< The reason is in errno.
    Swapped,    ///< Each has the other's name.
    Replaced    ///< There is one file now.
};

QByteArray encoded(const QString &path)
{
    return QFile::encodeName(path);
}

/// Systems and file systems that cannot rename with flags say so.
bool renameWith(const QString &from, const QString &to, unsigned flags)
{
#ifdef RENAME_EXCHANGE
    return ::renameat2(AT_FDCWD, encoded(from).constData(), AT_FDCWD, encoded(to).constData(),
                       flags)
           == 0;
#else
    Q_UNUSED(from)
    Q_UNUSED(to)
    Q_UNUSED(flags)
    errno = ENOSYS;
    return false;
#endif
}

/// Gives the file \a from the name \a to. What had that name stays in hand where the system and
/// its file system can do that.
Swap swapNames(const QString &from, const QString &to)
{
    // The numbers are the system's, which not every C library names.
    const unsigned noReplace = 1;
    const unsigned exchange = 2;
    if (renameWith(from, to, exchange))
        return Swapped;
    if (errno == ENOENT && renameWith(from, to, noReplace))
        return Replaced;
    if (errno != EINVAL && errno != ENOSYS)
        return NotSwapped;
    return std::rename(encoded(from).constData(), encoded(to).constData()) == 0 ? Replaced
                                                                                : NotSwapped;
}

QString errnoText()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

QString causeOf(const QString &name)
{
    return name.isEmpty() ? QString::fromLatin1("history") : QLatin1String("history:") + name;
}

} // namespace

/// One look at the program directory: one program a step.
class Q_DECL_HIDDEN ProgramHistory::Scan : public FileTask
{
public:
    Scan(const QString &programDir, const std::shared_ptr<HistoryStore> &store)
        : m_programDir(programDir), m_store(store)
    {}

    bool step() override;

    /// What the store holds after the look.
    QList<ProgramVersion> versions() const { return m_versions; }
    /// Why programs are not kept, by their names; by the empty one, why there is no history.
    QHash<QString, QString> failures() const { return m_failures; }
    /// Programs that are being written.
    QStringList restless() const { return m_restless; }

private:
    bool begin();
    bool openStore();
    void sweep(const QString &folder);
    bool end();

    const QDir m_programDir;
    const std::shared_ptr<HistoryStore> m_store;
    QStringList m_names;
    bool m_hasBegun = false;
    QList<ProgramVersion> m_versions;
    QHash<QString, QString> m_failures;
    QStringList m_restless;
};

bool ProgramHistory::Scan::begin()
{
    m_hasBegun = true;
    m_names = m_programDir.entryList(QDir::Files | QDir::NoSymLinks, QDir::Time);
    return m_store->isOpen() || openStore();
}

bool ProgramHistory::Scan::openStore()
{
    QString error;
    if (!m_store->open(&error)) {
        m_failures.insert(QString(), error);
        return false;
    }
    // What a panel that was killed has left: a file half written, or a restore's folder.
    QDir dir(m_programDir);
    const QStringList names = dir.entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden);
    for (const QString &name : names) {
        const bool isHalf = DurableFile::isTemporary(name)
                            && FileStamp::of(dir.filePath(name)).age() > leftBehindMs;
        if (isHalf || name.startsWith(QLatin1String(halfRestored)))
            dir.remove(name);
    }
    const QStringList folders = m_programDir.entryList(
        {QLatin1String(halfRestored) + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden);
    for (const QString &folder : folders)
        sweep(m_programDir.filePath(folder));
    return true;
}

/// The folder may hold the file of a version that a save has put there in the last moment.
void ProgramHistory::Scan::sweep(const QString &folder)
{
    QDir dir(folder);
    const QStringList names = dir.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        QString error;
        if (DurableFile::isTemporary(name)
            || m_store->store(dir.filePath(name), &error) <= HistoryStore::Known)
            dir.remove(name);
    }
    QDir().rmdir(folder);
}

bool ProgramHistory::Scan::step()
{
    if (!m_hasBegun)
        return begin();
    if (m_names.isEmpty())
        return end();
    const QString name = m_names.takeFirst();
    QString error;
    switch (m_store->store(m_programDir.filePath(name), &error)) {
    case HistoryStore::Stored:
    case HistoryStore::Known:
        break;
    case HistoryStore::Restless:
        m_restless.append(name);
        break;
    case HistoryStore::Failed:
        // A program that went since the listing is no failure.
        if (QFileInfo(m_programDir.filePath(name)).exists())
            m_failures.insert(name, error);
        break;
    }
    return true;
}

bool ProgramHistory::Scan::end()
{
    m_versions = m_store->versions();
    return false;
}

/// Writes one version into the program directory, a piece a step.
///
/// The version is written in a folder of its own there, and then changes places with the program.
/// What stood in that place is looked at after that: it goes once the history holds it, and else
/// comes back.
class Q_DECL_HIDDEN ProgramHistory::Restore : public FileTask
{
public:
    Restore(const ProgramVersion &version, const QString &programDir,
            const std::shared_ptr<HistoryStore> &store, int writerPatienceMs)
        : m_version(version)
        , m_programDir(programDir)
        , m_targetPath(m_programDir.filePath(version.name))
        , m_folder(m_programDir.filePath(QLatin1String(halfRestored) + QLatin1Char('-')
                                         + HostCompat::uniqueName()))
        , m_halfPath(m_folder + QLatin1Char('/') + version.name)
        , m_store(store)
        , m_writerPatienceMs(writerPatienceMs)
        , m_source(version.path)
    {}

    bool step() override;
    int percent() const override;
    void close() override;

    QString error() const { return m_error; }
    /// Whether the program may be another one now; for whoever gave the task up, too.
    bool hasReplaced() const { return m_hasReplaced; }

private:
    bool open();
    bool writePiece();
    bool finish();
    bool replace();
    bool settle();
    bool putBack();
    bool isKept(const QString &path) const;
    bool fail(const QString &error);

    const ProgramVersion m_version;
    const QDir m_programDir;
    const QString m_targetPath;
    const QString m_folder;
    const QString m_halfPath;
    const std::shared_ptr<HistoryStore> m_store;
    const int m_writerPatienceMs;
    QFile m_source;
    QScopedPointer<DurableFile> m_half;
    Sha256 m_hash;
    qint64 m_done = 0;
    QString m_error;
    bool m_isReady = false;
    /// In the folder is not what was written there, but what stood in the program's place.
    bool m_isSwapped = false;
    std::atomic<bool> m_hasReplaced{false};
};

bool ProgramHistory::Restore::step()
{
    if (m_isReady)
        return replace();
    return m_source.isOpen() ? writePiece() : open();
}

bool ProgramHistory::Restore::open()
{
    if (!m_source.open(QIODevice::ReadOnly) || !m_source.seek(m_version.offset))
        return fail(tr("This version of %1 is not in the history any more.").arg(m_version.name));
    m_programDir.mkpath(QLatin1String("."));
    if (!m_programDir.mkdir(m_folder))
        return fail(tr("%1 cannot be written: %2.").arg(m_version.name, errnoText()));
    m_half.reset(new DurableFile(m_halfPath));
    if (!m_half->open(m_targetPath))
        return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half->errorString()));
    return true;
}

bool ProgramHistory::Restore::writePiece()
{
    const QByteArray piece = m_source.read(pieceBytes);
    if (piece.isEmpty())
        return finish();
    m_hash.addData(piece);
    m_done += piece.size();
    if (m_half->write(piece))
        return true;
    return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half->errorString()));
}

bool ProgramHistory::Restore::finish()
{
    if (m_hash.result() != m_version.hash)
        return fail(tr("This version of %1 is damaged and was not brought back. Try the one before "
                       "it.")
                        .arg(m_version.name));
    if (!m_half->commit())
        return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half->errorString()));
    m_isReady = true;
    return true;
}

bool ProgramHistory::Restore::replace()
{
    const bool isLink = QFileInfo(m_targetPath).isSymLink();
    if (isLink || !isKept(m_targetPath))
        return fail(tr("%1 was not brought back: what it is now cannot be kept in the history "
                       "first.")
                        .arg(m_version.name));
    if (!beginChange())
        return false;
    // The last look. A file that another name was given in between waits for the next step.
    const bool isHeld = m_store->holds(m_targetPath);
    const Swap swap = isHeld ? swapNames(m_halfPath, m_targetPath) : NotSwapped;
    const bool isTaken = isHeld && swap == NotSwapped && errno == EEXIST;
    const QString reason = errnoText();
    m_isSwapped = swap == Swapped;
    m_hasReplaced = swap != NotSwapped;
    endChange();
    if (!isHeld || isTaken)
        return true;
    if (!m_hasReplaced)
        return fail(tr("%1 cannot be written: %2.").arg(m_version.name, reason));
    if (m_isSwapped && !settle())
        return false;
    if (!DurableFile::syncFolder(m_programDir.path()))
        return fail(tr("%1 is back, but it is not certain that it is stored: %2.")
                        .arg(m_version.name, errnoText()));
    return false;
}

/// A save may have come to an end in that file just before it lost its name, or go on in it.
bool ProgramHistory::Restore::settle()
{
    if (!isKept(m_halfPath))
        return putBack();
    if (!beginChange())
        return false;
    m_isSwapped = !QFile::remove(m_halfPath);
    endChange();
    return true;
}

bool ProgramHistory::Restore::putBack()
{
    if (!beginChange())
        return false;
    const bool isBack = swapNames(m_halfPath, m_targetPath) != NotSwapped;
    m_hasReplaced = !isBack;
    endChange();
    // A save may have gone into the one that was there for a moment.
    m_isSwapped = !isBack || !isKept(m_halfPath);
    return fail(tr("%1 was not brought back: it is being written. Try again when that is over.")
                    .arg(m_version.name));
}

/// Whether the history holds what stands there, when nobody writes to it any more.
bool ProgramHistory::Restore::isKept(const QString &path) const
{
    QElapsedTimer writing;
    writing.start();
    while (QFileInfo(path).exists()) {
        QString error;
        const HistoryStore::Outcome outcome = m_store->store(path, &error);
        if (outcome == HistoryStore::Stored || outcome == HistoryStore::Known)
            return true;
        if (outcome == HistoryStore::Failed || writing.hasExpired(m_writerPatienceMs))
            return false;
        HostCompat::sleep(HistoryStore::restMs / 5);
    }
    return true;
}

int ProgramHistory::Restore::percent() const
{
    return m_version.bytes == 0 ? 100 : int(100 * m_done / m_version.bytes);
}

void ProgramHistory::Restore::close()
{
    m_source.close();
    m_half.reset();
    // What is not ours and not kept stays; the next start takes it in.
    if (!m_isSwapped)
        QFile::remove(m_halfPath);
    QDir().rmdir(m_folder);
}

bool ProgramHistory::Restore::fail(const QString &error)
{
    m_error = error;
    return false;
}

ProgramHistory::ProgramHistory(const QString &programDir, const QString &folder,
                               const HistoryStore::Limits &limits, QObject *parent)
    : QObject(parent)
    , m_programDir(programDir)
    , m_store(std::make_shared<HistoryStore>(folder, limits))
    , m_patienceMs(patienceMs)
    , m_writerPatienceMs(writerMs)
{
    connect(&m_scanWork, SIGNAL(ended()), this, SLOT(endScan()));
    connect(&m_scanWork, SIGNAL(stalled()), this, SLOT(loseScan()));
    connect(&m_restoreWork, SIGNAL(progressed(int)), this, SLOT(tellProgress(int)));
    connect(&m_restoreWork, SIGNAL(ended()), this, SLOT(endRestore()));
    connect(&m_restoreWork, SIGNAL(stopped()), this, SLOT(endStopped()));
    connect(&m_restoreWork, SIGNAL(stalled()), this, SLOT(loseRestore()));
    connect(&m_pollTimer, SIGNAL(timeout()), this, SLOT(look()));
    m_restTimer.setSingleShot(true);
    connect(&m_restTimer, SIGNAL(timeout()), this, SLOT(beginScan()));
    m_patienceTimer.setSingleShot(true);
    connect(&m_patienceTimer, SIGNAL(timeout()), this, SLOT(serveThePatient()));
    m_unsettledFor.start();
    m_pollTimer.start(pollMs);
    beginScan();
}

ProgramHistory::~ProgramHistory() = default;

void ProgramHistory::setStallTime(int ms)
{
    m_scanWork.setStallTime(ms);
    m_restoreWork.setStallTime(ms);
}

void ProgramHistory::scan()
{
    if (m_isLost)
        return;
    setSettled(false);
    m_scanAgain = m_scanWork.isRunning();
    look();
}

void ProgramHistory::look()
{
    if (!m_scanWork.isRunning())
        beginScan();
}

bool ProgramHistory::isSettled() const
{
    return m_isSettled || m_unsettledFor.hasExpired(m_patienceMs);
}

void ProgramHistory::whenSettled(QObject *context, const std::function<void()> &then)
{
    if (m_isLost) {
        HostCompat::callLater(context, then);
        return;
    }
    Waiter waiter{context, then, m_looks + 1, QElapsedTimer()};
    waiter.since.start();
    m_waiters.append(waiter);
    if (!m_patienceTimer.isActive())
        m_patienceTimer.start(m_patienceMs);
    scan();
}

bool ProgramHistory::isKept(const QString &name) const
{
    // What an earlier look found may have changed before the one that somebody gave up waiting for.
    return m_hasLooked && m_endedLook >= m_overdueLook && !m_isLost
           && !m_failures.contains(QString()) && !m_failures.contains(name)
           && !m_restless.contains(name);
}

QString ProgramHistory::reasonNotKept(const QString &name) const
{
    if (isKept(name))
        return QString();
    const QString failure = m_failures.value(QString(), m_failures.value(name));
    return failure.isEmpty() ? tr("The history has not taken in %1 yet.").arg(name) : failure;
}

void ProgramHistory::beginScan()
{
    m_restTimer.stop();
    m_scanAgain = false;
    ++m_looks;
    m_scan = std::make_shared<Scan>(m_programDir, m_store);
    m_scanWork.start(m_scan);
}

void ProgramHistory::endScan()
{
    const std::shared_ptr<Scan> scan = std::move(m_scan);
    const int look = m_looks;
    m_hasLooked = true;
    m_endedLook = look;
    m_restless = scan->restless();
    tellFailures(scan->failures());
    if (!m_failures.contains(QString()))
        takeOver(scan->versions());

    if (m_scanAgain)
        beginScan();
    else
        setSettled(m_restless.isEmpty());
    if (m_restless.isEmpty())
        serve(look);
    else if (!m_scanWork.isRunning())
        m_restTimer.start(HistoryStore::restMs);
}

void ProgramHistory::takeOver(const QList<ProgramVersion> &versions)
{
    const auto isSame = [](const ProgramVersion &a, const ProgramVersion &b) {
        return a.number == b.number;
    };
    if (versions.size() == m_versions.size()
        && std::equal(versions.begin(), versions.end(), m_versions.begin(), isSame))
        return;
    m_versions = versions;
    Q_EMIT versionsChanged();
}

void ProgramHistory::tellFailures(const QHash<QString, QString> &failures)
{
    const QHash<QString, QString> before = m_failures;
    // Nothing is known of the programs while there is no history.
    if (failures.contains(QString()))
        m_failures.insert(QString(), failures.value(QString()));
    else
        m_failures = failures;
    const QStringList known = before.keys();
    for (const QString &name : known) {
        if (m_failures.contains(name))
            continue;
        // Nobody knows yet what became of one that is being written.
        if (m_restless.contains(name))
            m_failures.insert(name, before.value(name));
        else
            Q_EMIT causeEnded(causeOf(name));
    }
    // Told once, not at every look.
    const QStringList names = m_failures.keys();
    for (const QString &name : names) {
        if (m_failures.value(name) != before.value(name))
            Q_EMIT told(m_failures.value(name), Message::Alarm, causeOf(name));
    }
}

/// The store may still be in use by what hangs there.
void ProgramHistory::loseScan()
{
    m_isLost = true;
    m_pollTimer.stop();
    m_scan.reset();
    setSettled(true);
    Q_EMIT told(tr("The panel's storage stopped answering: nothing goes into the history any more. "
                   "Switch the panel off and on."),
                Message::Alarm, causeOf(QString()));
    serve(m_looks + 1);
}

void ProgramHistory::serve(int look)
{
    QList<Waiter> later;
    for (const Waiter &waiter : HostCompat::readOnly(m_waiters)) {
        if (waiter.look > look)
            later.append(waiter);
        else if (waiter.context)
            HostCompat::callLater(waiter.context.data(), waiter.then);
    }
    m_waiters = later;
    if (m_waiters.isEmpty())
        m_patienceTimer.stop();
}

/// The waiters stand in the order in which they came, so the first one has waited longest.
void ProgramHistory::serveThePatient()
{
    while (!m_waiters.isEmpty() && m_waiters.first().since.hasExpired(m_patienceMs - 1)) {
        const Waiter waiter = m_waiters.takeFirst();
        m_overdueLook = qMax(m_overdueLook, waiter.look);
        if (waiter.context)
            HostCompat::callLater(waiter.context.data(), waiter.then);
    }
    if (!m_waiters.isEmpty())
        m_patienceTimer.start(qMax(0, m_patienceMs - int(m_waiters.first().since.elapsed())));
}

void ProgramHistory::restore(const ProgramVersion &version)
{
    if (m_isRestoring)
        return;
    m_wanted = version;
    m_isRestoring = true;
    whenSettled(this, [this] { beginRestore(); });
}

/// A restore that waits for the history has no checksum from now on, and ends when it would begin.
void ProgramHistory::stopRestoring()
{
    if (!m_restore)
        m_wanted.hash.clear();
    m_restoreWork.stop();
}

void ProgramHistory::beginRestore()
{
    if (m_wanted.hash.isEmpty())
        return endStopped();
    if (m_isLost)
        return tellRestore(tr("%1 was not brought back.").arg(m_wanted.name), Message::Warning);
    if (!isKept(m_wanted.name))
        return tellRestore(tr("%1 was not brought back: what it is now cannot be kept in the "
                              "history first.")
                               .arg(m_wanted.name),
                           Message::Warning);
    if (m_restoreWork.hasChangeUnderWay())
        return tellRestore(
            tr("%1 was not brought back: the last restore has not ended yet. Switch the "
               "panel off and on.")
                .arg(m_wanted.name),
            Message::Warning);
    m_restore = std::make_shared<Restore>(m_wanted, m_programDir, m_store, m_writerPatienceMs);
    m_restoreWork.start(m_restore);
}

void ProgramHistory::endRestore()
{
    const QString error = m_restore->error();
    if (!error.isEmpty())
        return tellRestore(error, Message::Warning);
    tellRestore(
        tr("%1 is back as of %2. Open it to see it.").arg(m_wanted.name, shownDate(m_wanted)),
        Message::Information);
    scan();
}

void ProgramHistory::loseRestore()
{
    const bool isKnown = !m_restore->isUncertain() && !m_restore->hasReplaced();
    tellRestore(isKnown ? tr("The panel's storage stopped answering; %1 was not brought back.")
                              .arg(m_wanted.name)
                        : tr("The panel's storage stopped answering: the version of %1 is not "
                             "known. Switch the panel off and on.")
                              .arg(m_wanted.name),
                Message::Alarm);
}

void ProgramHistory::tellProgress(int percent)
{
    Q_EMIT worked(tr("%1 is brought back: %2 %").arg(m_wanted.name, QString::number(percent)),
                  percent);
}

void ProgramHistory::endStopped()
{
    tellRestore(tr("Stopped. %1 is as it was.").arg(m_wanted.name), Message::Information);
}

void ProgramHistory::tellRestore(const QString &text, Message::Tone tone)
{
    m_restore.reset();
    m_isRestoring = false;
    Q_EMIT told(text, tone);
}

void ProgramHistory::setSettled(bool isSettled)
{
    if (m_isSettled && !isSettled)
        m_unsettledFor.start();
    m_isSettled = isSettled;
}

/// The date has one form in all languages: such dates can be sorted, and nobody takes the month for
/// the day.
QString ProgramHistory::shownDate(const ProgramVersion &version)
{
    return version.stored.toLocalTime().toString(QLatin1String("yyyy-MM-dd HH:mm"));
}
