// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "startup.h"

#include "homelock.h"
#include "samples.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>

#include <memory>

const int StartUp::patienceMs;

namespace {

QString waitingCause()
{
    return QLatin1String("start");
}

} // namespace

/// What the threads do, and what came of it. The owner may go while a disk still hangs.
struct StartUp::Work
{
    explicit Work(const Folders &asked)
        : folders(asked), lock(asked.own + QLatin1String("/panel.lock"))
    {}

    void limitShell();
    Outcome prepareHome();
    void fillStick();

    const Folders folders;
    HomeLock lock;
    std::unique_ptr<QTemporaryDir> emptyFolder;
    QSemaphore homeDone;
    QSemaphore stickDone;
    /// Valid behind homeDone.
    Outcome outcome = Waiting;
    QString lockError;
};

/// The import manager's commands run in the shell, and a file name can reach what is at hand there:
/// so there is little.
void StartUp::Work::limitShell()
{
    emptyFolder.reset(new QTemporaryDir);
    if (!emptyFolder->isValid())
        return;
    QFile::setPermissions(emptyFolder->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    QDir::setCurrent(emptyFolder->path());
}

StartUp::Outcome StartUp::Work::prepareHome()
{
    if (!QDir().mkpath(folders.programs) && folders.areProgramsAskedFor)
        return NoProgramDir;
    const HomeLock::Answer answer = lock.take();
    if (answer == HomeLock::Taken)
        return Occupied;
    if (answer == HomeLock::Impossible)
        lockError = lock.errorString();
    Samples::install(folders.programs);
    // A folder that cannot be made is a PLC that is away, and the panel says so.
    if (!folders.plc.isEmpty())
        QDir().mkpath(folders.plc);
    return Ready;
}

void StartUp::Work::fillStick()
{
    if (!folders.stick.isEmpty() && QDir().mkpath(folders.stick))
        Samples::fillStick(folders.stick);
}

StartUp::StartUp(const Folders &folders, QObject *parent)
    : QObject(parent), m_work(std::make_shared<Work>(folders))
{
    // The shell's way is short before the first command, whatever the disks do.
    qputenv("PATH", "/usr/bin:/bin");
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &StartUp::tellWaiting);
    m_patience.start(patienceMs);
    const std::shared_ptr<Work> work = m_work;
    m_home.post(
        [work] {
            work->limitShell();
            work->outcome = work->prepareHome();
            work->homeDone.release();
        },
        [this] { takeIn(); });
    m_stick.post(
        [work] {
            work->fillStick();
            work->stickDone.release();
        },
        [] {});
}

StartUp::~StartUp()
{
    m_home.giveUp();
    m_stick.giveUp();
}

StartUp::Outcome StartUp::wait(int ms)
{
    QElapsedTimer time;
    time.start();
    if (m_work->homeDone.tryAcquire(1, ms))
        takeIn();
    m_work->stickDone.tryAcquire(1, qMax(0, ms - int(time.elapsed())));
    m_isWaited = true;
    return m_outcome;
}

void StartUp::takeIn()
{
    if (m_outcome != Waiting)
        return;
    m_outcome = m_work->outcome;
    m_patience.stop();
    if (m_isWaitTold)
        Q_EMIT causeEnded(waitingCause());
    if (m_outcome != Ready) {
        if (m_isWaited)
            Q_EMIT refused(m_outcome);
        return;
    }
    if (m_work->lockError.isEmpty())
        return;
    // From the event loop: by then somebody listens.
    QTimer::singleShot(0, this, [this] {
        Q_EMIT told(tr("Whether another panel works on the same programs cannot be told: %1.")
                        .arg(m_work->lockError),
                    Message::Warning);
    });
}

void StartUp::tellWaiting()
{
    m_isWaitTold = true;
    Q_EMIT told(tr("The panel's storage does not answer. The programs come once it does."),
                Message::Alarm, waitingCause());
}
