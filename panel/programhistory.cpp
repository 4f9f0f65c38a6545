// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programhistory.h"

#include "durablefile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

const int pollMs = 1000;
const int pieceBytes = 64 * 1024;
// Longer than it takes to keep all programs that a panel has room for, on a slow card.
const int patienceMs = 20000;
// Hidden, and so no program to anybody who lists the directory.
const char halfRestored[] = ".filarix-restored";

QString causeOf(const QString &name)
{
    return name.isEmpty() ? QString::fromLatin1("history") : QLatin1String("history:") + name;
}

} // namespace

/// One look at the program directory: one program a step.
class ProgramHistory::Scan : public FileTask
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
    // Of a restore that was killed.
    QDir folder(m_programDir);
    const QStringList halves = folder.entryList({QLatin1String(halfRestored) + QLatin1Char('*')},
                                                QDir::Files | QDir::Hidden);
    for (const QString &half : halves)
        folder.remove(half);
    QString error;
    if (m_store->open(&error))
        return true;
    m_failures.insert(QString(), error);
    return false;
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
        // One that went since it was listed is no failure.
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
class ProgramHistory::Restore : public FileTask
{
public:
    Restore(const ProgramVersion &version, const QString &programDir)
        : m_version(version), m_programDir(programDir), m_source(version.path)
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
    QFile m_source;
    QScopedPointer<DurableFile> m_half;
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
    qint64 m_done = 0;
    QString m_error;
};

bool ProgramHistory::Restore::step()
{
    if (!m_source.isOpen())
        return open();
    const QByteArray piece = m_source.read(pieceBytes);
    if (piece.isEmpty())
        return finish();
    m_hash.addData(piece);
    m_done += piece.size();
    if (m_half->write(piece))
        return true;
    return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half->errorString()));
}

bool ProgramHistory::Restore::open()
{
    if (!m_source.open(QIODevice::ReadOnly) || !m_source.seek(m_version.offset))
        return fail(tr("This version of %1 is not in the history any more.").arg(m_version.name));
    m_programDir.mkpath(QLatin1String("."));
    m_half.reset(new DurableFile(m_programDir.filePath(m_version.name)));
    if (!m_half->open())
        return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half->errorString()));
    return true;
}

bool ProgramHistory::Restore::finish()
{
    if (m_hash.result() != m_version.hash)
        return fail(tr("This version of %1 is damaged and was not brought back. Try the one before "
                       "it.")
                        .arg(m_version.name));
    if (!m_half->commit())
        return fail(tr("%1 cannot be written: %2.").arg(m_version.name, m_half->errorString()));
    return false;
}

int ProgramHistory::Restore::percent() const
{
    return m_version.bytes == 0 ? 100 : int(100 * m_done / m_version.bytes);
}

void ProgramHistory::Restore::close()
{
    m_source.close();
    m_half.reset();
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
    connect(&m_restoreWork, &FileWork::stopped, this, [this] {
        tellRestore(tr("Stopped. %1 is as it was.").arg(m_wanted.name), Message::Information);
    });
    connect(&m_restoreWork, &FileWork::stalled, this, [this] {
        tellRestore(tr("The panel's storage stopped answering; %1 was not brought back.")
                        .arg(m_wanted.name),
                    Message::Alarm);
    });
    connect(&m_pollTimer, &QTimer::timeout, this, &ProgramHistory::look);
    m_restTimer.setSingleShot(true);
    connect(&m_restTimer, &QTimer::timeout, this, &ProgramHistory::beginScan);
    m_patienceTimer.setSingleShot(true);
    connect(&m_patienceTimer, &QTimer::timeout, this, &ProgramHistory::serveThePatient);
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
    return m_isSettled || m_unsettledFor.hasExpired(patienceMs);
}

void ProgramHistory::whenSettled(QObject *context, const std::function<void()> &then)
{
    if (m_isLost) {
        QTimer::singleShot(0, context, then);
        return;
    }
    Waiter waiter{context, then, m_looks + 1, QElapsedTimer()};
    waiter.since.start();
    m_waiters.append(waiter);
    if (!m_patienceTimer.isActive())
        m_patienceTimer.start(patienceMs);
    scan();
}

bool ProgramHistory::isKept(const QString &name) const
{
    return !m_isLost && m_looks > 0 && !m_failures.contains(QString()) && !m_failures.contains(name)
           && !m_restless.contains(name);
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

// The store may still be in use by what hangs there.
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
    for (const Waiter &waiter : qAsConst(m_waiters)) {
        if (waiter.look > look)
            later.append(waiter);
        else if (waiter.context)
            QTimer::singleShot(0, waiter.context.data(), waiter.then);
    }
    m_waiters = later;
    if (m_waiters.isEmpty())
        m_patienceTimer.stop();
}

// In the order in which they came, and so the first is the most patient.
void ProgramHistory::serveThePatient()
{
    while (!m_waiters.isEmpty() && m_waiters.first().since.hasExpired(patienceMs - 1)) {
        const Waiter waiter = m_waiters.takeFirst();
        if (waiter.context)
            QTimer::singleShot(0, waiter.context.data(), waiter.then);
    }
    if (!m_waiters.isEmpty())
        m_patienceTimer.start(patienceMs - int(m_waiters.first().since.elapsed()));
}

void ProgramHistory::restore(const ProgramVersion &version)
{
    if (m_isRestoring)
        return;
    m_wanted = version;
    m_isRestoring = true;
    whenSettled(this, [this] { beginRestore(); });
}

void ProgramHistory::stopRestoring()
{
    m_restoreWork.stop();
}

void ProgramHistory::beginRestore()
{
    if (m_isLost)
        return tellRestore(tr("%1 was not brought back.").arg(m_wanted.name), Message::Warning);
    if (!isKept(m_wanted.name))
        return tellRestore(tr("%1 was not brought back: what it is now cannot be kept in the "
                              "history first.")
                               .arg(m_wanted.name),
                           Message::Warning);
    m_restore = std::make_shared<Restore>(m_wanted, m_programDir);
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

// In one form for all languages: it can be sorted, and nobody takes the month for the day.
QString ProgramHistory::shownDate(const ProgramVersion &version)
{
    return version.stored.toLocalTime().toString(QLatin1String("yyyy-MM-dd HH:mm"));
}
