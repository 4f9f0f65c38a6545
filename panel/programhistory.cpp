// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programhistory.h"

#include "durably.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

const int kPollMs = 1000;
const int kPiece = 64 * 1024;
// Longer than it takes to keep all programs that a panel has room for, on a slow card.
const int kPatienceMs = 20000;
// Hidden, and so no program to anybody who lists the directory.
const char kHalfRestored[] = ".filarix-restored";

} // namespace

/// One look at the program directory: one program a step.
class ProgramHistory::Scan : public FileTask
{
public:
    Scan(const QString &programDir, const std::shared_ptr<HistoryStore> &store)
        : m_programDir(programDir), m_store(store)
    {}

    bool step() override;

    QString error() const { return m_error; }
    bool hasStored() const { return m_hasStored; }
    bool hasRestless() const { return m_hasRestless; }

private:
    bool begin();

    const QDir m_programDir;
    const std::shared_ptr<HistoryStore> m_store;
    QStringList m_names;
    bool m_hasBegun = false;
    QString m_error;
    bool m_hasStored = false;
    bool m_hasRestless = false;
};

bool ProgramHistory::Scan::begin()
{
    m_hasBegun = true;
    m_names = m_programDir.entryList(QDir::Files | QDir::NoSymLinks, QDir::Time);
    if (m_store->isOpen())
        return true;
    // Of a restore that was killed.
    QDir folder(m_programDir);
    const QStringList halves = folder.entryList({QLatin1String(kHalfRestored) + QLatin1Char('*')},
                                                QDir::Files | QDir::Hidden);
    for (const QString &half : halves)
        folder.remove(half);
    m_hasStored = m_store->open(&m_error);
    return m_hasStored;
}

bool ProgramHistory::Scan::step()
{
    if (!m_hasBegun)
        return begin();
    if (m_names.isEmpty())
        return false;
    const HistoryStore::Outcome outcome =
        m_store->store(m_programDir.filePath(m_names.takeFirst()), &m_error);
    m_hasStored |= outcome == HistoryStore::Stored;
    m_hasRestless |= outcome == HistoryStore::Restless;
    return true;
}

/// Writes one version into the program directory, a piece a step.
class ProgramHistory::Restore : public FileTask
{
public:
    Restore(const ProgramVersion &version, const QString &programDir)
        : m_version(version)
        , m_programDir(programDir)
        , m_halfPath(m_programDir.filePath(QLatin1String(kHalfRestored)))
        , m_source(version.path)
        , m_half(m_halfPath)
    {}

    bool step() override;
    int percent() const override;
    void close() override;

    QString error() const { return m_error; }

private:
    bool open();
    bool finish();
    bool fail(const QString &error);

    const ProgramVersion m_version;
    const QDir m_programDir;
    const QString m_halfPath;
    QFile m_source;
    QSaveFile m_half;
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
    qint64 m_done = 0;
    QString m_error;
};

bool ProgramHistory::Restore::step()
{
    if (!m_source.isOpen())
        return open();
    const QByteArray piece = m_source.read(kPiece);
    if (piece.isEmpty())
        return finish();
    m_hash.addData(piece);
    m_done += piece.size();
    if (m_half.write(piece) == piece.size())
        return true;
    return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half.errorString()));
}

bool ProgramHistory::Restore::open()
{
    if (!m_source.open(QIODevice::ReadOnly) || !m_source.seek(m_version.offset))
        return fail(tr("This version of %1 is not in the history any more.").arg(m_version.name));
    m_programDir.mkpath(QLatin1String("."));
    if (!m_half.open(QIODevice::WriteOnly))
        return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half.errorString()));
    return true;
}

bool ProgramHistory::Restore::finish()
{
    if (m_hash.result() != m_version.hash)
        return fail(tr("This version of %1 is damaged and was not brought back. Try the one before "
                       "it.")
                        .arg(m_version.name));
    if (!m_half.commit())
        return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half.errorString()));
    if (Durably::replace(m_halfPath, m_programDir.filePath(m_version.name)))
        return false;
    QFile::remove(m_halfPath);
    return fail(tr("%1 cannot be replaced in the program directory.").arg(m_version.name));
}

int ProgramHistory::Restore::percent() const
{
    return m_version.bytes == 0 ? 100 : int(100 * m_done / m_version.bytes);
}

void ProgramHistory::Restore::close()
{
    m_source.close();
    m_half.cancelWriting();
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
{
    connect(&m_scanWork, &FileWork::ended, this, &ProgramHistory::endScan);
    connect(&m_scanWork, &FileWork::stalled, this, &ProgramHistory::loseScan);
    connect(&m_restoreWork, &FileWork::progressed, this, [this](int percent) {
        Q_EMIT worked(tr("%1 is brought back: %2 %").arg(m_wanted.name).arg(percent), percent);
    });
    connect(&m_restoreWork, &FileWork::ended, this, &ProgramHistory::endRestore);
    connect(&m_restoreWork, &FileWork::stopped, this,
            [this] { tellRestore(tr("Stopped. %1 is as it was.").arg(m_wanted.name), true); });
    connect(&m_restoreWork, &FileWork::stalled, this, [this] {
        tellRestore(tr("The panel's storage stopped answering; %1 was not brought back.")
                        .arg(m_wanted.name),
                    false);
    });
    connect(&m_pollTimer, &QTimer::timeout, this, &ProgramHistory::look);
    m_restTimer.setSingleShot(true);
    connect(&m_restTimer, &QTimer::timeout, this, &ProgramHistory::beginScan);
    m_unsettledFor.start();
    m_pollTimer.start(kPollMs);
    beginScan();
}

ProgramHistory::~ProgramHistory() = default;

void ProgramHistory::scan()
{
    if (m_isLost)
        return;
    setSettled(false);
    look();
}

void ProgramHistory::look()
{
    if (m_scanWork.isRunning())
        m_scanAgain = true;
    else
        beginScan();
}

bool ProgramHistory::isSettled() const
{
    return m_isSettled || m_unsettledFor.hasExpired(kPatienceMs);
}

void ProgramHistory::beginScan()
{
    m_restTimer.stop();
    m_scanAgain = false;
    m_scan = std::make_shared<Scan>(m_programDir, m_store);
    m_scanWork.start(m_scan);
}

void ProgramHistory::endScan()
{
    const std::shared_ptr<Scan> scan = std::move(m_scan);
    if (scan->hasStored()) {
        m_versions = m_store->versions();
        Q_EMIT versionsChanged();
    }
    // Told once, not at every look.
    const QString error = scan->error();
    if (!error.isEmpty() && error != m_lastError)
        Q_EMIT told(error, false);
    m_lastError = error;

    if (m_scanAgain)
        return beginScan();
    setSettled(!scan->hasRestless());
    if (scan->hasRestless())
        m_restTimer.start(HistoryStore::kRestMs);
    else if (m_isRestoring && !m_restoreWork.isRunning())
        beginRestore();
}

// The store may still be in use by what hangs there.
void ProgramHistory::loseScan()
{
    m_isLost = true;
    m_pollTimer.stop();
    m_scan.reset();
    setSettled(true);
    Q_EMIT told(tr("The panel's storage stopped answering: nothing goes into the history any more. "
                   "Switch the panel off and on."),
                false);
    if (m_isRestoring)
        tellRestore(tr("%1 was not brought back.").arg(m_wanted.name), false);
}

void ProgramHistory::restore(const ProgramVersion &version)
{
    if (m_isRestoring || m_isLost)
        return;
    m_wanted = version;
    m_isRestoring = true;
    scan();
}

void ProgramHistory::stopRestoring()
{
    m_restoreWork.stop();
}

void ProgramHistory::beginRestore()
{
    if (!m_store->holds(QDir(m_programDir).filePath(m_wanted.name)))
        return tellRestore(tr("%1 was not brought back: what it is now cannot be kept in the "
                              "history first.")
                               .arg(m_wanted.name),
                           false);
    m_restore = std::make_shared<Restore>(m_wanted, m_programDir);
    m_restoreWork.start(m_restore);
}

void ProgramHistory::endRestore()
{
    const QString error = m_restore->error();
    if (!error.isEmpty())
        return tellRestore(error, false);
    tellRestore(
        tr("%1 is back as of %2. Open it to see it.").arg(m_wanted.name, shownDate(m_wanted)),
        true);
    scan();
}

void ProgramHistory::tellRestore(const QString &text, bool isGood)
{
    m_restore.reset();
    m_isRestoring = false;
    Q_EMIT told(text, isGood);
}

void ProgramHistory::setSettled(bool isSettled)
{
    if (m_isSettled && !isSettled)
        m_unsettledFor.start();
    m_isSettled = isSettled;
}

// In one form for all languages: it can be sorted, and nobody takes the month for the day.
QString ProgramHistory::shownDate(const ProgramVersion &version)
{
    return version.stored.toLocalTime().toString(QLatin1String("yyyy-MM-dd HH:mm"));
}
