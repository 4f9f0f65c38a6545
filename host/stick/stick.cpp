// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stick/stick.h"

#include "filarixpanel.h"
#include "storage/filethread.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QSemaphore>

#include <cerrno>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

const QByteArray markerText = "filarix-panel ";
// What taking the stick out needs, on a file system that answers.
const int partingMs = 1000;

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Stick)
};

/// A blank stands in such a list as "\\040".
QByteArray unescaped(const QByteArray &field)
{
    QByteArray result;
    for (int i = 0; i < field.size(); ++i) {
        bool isNumber = false;
        const int number = field.at(i) == '\\' ? field.mid(i + 1, 3).toInt(&isNumber, 8) : 0;
        result += isNumber ? char(number) : field.at(i);
        i += isNumber ? 3 : 0;
    }
    return result;
}

/// The system's own list of mounts tells: to ask a file system itself could wait for that.
bool isMountPoint(const QString &path)
{
    const int pointField = 4;
    QFile file(QLatin1String("/proc/self/mountinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (unescaped(line.split(' ').value(pointField)) == QFile::encodeName(path))
            return true;
    }
    return false;
}

/// Makes the marker, never through a link that somebody else has laid in a folder open to all.
/// Without a marker the reason is in errno.
bool makeMarker()
{
    const QByteArray path = QFile::encodeName(Stick::marker());
    const QByteArray text = markerText + QByteArray::number(qint64(getpid()));
    const int handle = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (handle < 0)
        return false;
    const bool isWritten = ::write(handle, text.constData(), size_t(text.size())) == text.size();
    const int reason = errno;
    ::close(handle);
    if (!isWritten)
        ::unlink(path.constData());
    errno = reason;
    return isWritten;
}

} // namespace

class Q_DECL_HIDDEN Stick::Simulation
{
public:
    explicit Simulation(const QString &folder) : m_folder(folder) {}
    ~Simulation();

    QString folder() const { return m_folder; }
    bool plug(QString *error);
    void pull();

private:
    Q_DISABLE_COPY(Simulation)

    bool isBound() const;
    static bool isMarkerAbandoned();
    bool isLinked() const { return isLinkTo(m_folder); }
    static bool isLinkTo(const QString &folder);
    bool link(QString *error);
    void takeOut();
    static void takeOut(const QString &folder, bool hasMarker);

    const QString m_folder;
    QMutex m_mutex;
    bool m_replacedFolder = false;
    bool m_madeMarker = false;
};

Stick::Stick(const QString &folder) : m_simulation(std::make_shared<Simulation>(folder)) {}

QString Stick::folder() const
{
    return m_simulation->folder();
}

QString Stick::mountPoint()
{
    return QLatin1String(FilarixPanel::stickDir);
}

QString Stick::marker()
{
    return QLatin1String(FilarixPanel::stickMarker);
}

bool Stick::isPresent()
{
    if (!QFileInfo(marker()).exists())
        return false;
    if (isMountPoint(mountPoint()))
        return true;
    const QFileInfo point(mountPoint());
    if (!point.isSymLink() || !point.isDir())
        return false;
    const QString target = point.canonicalFilePath();
    return isMountPoint(target) || target.startsWith(mountPoint());
}

bool Stick::plug(QString *error)
{
    if (isSimulated())
        return m_simulation->plug(error);
    *error = Words::tr("The stick is the panel's own: plug it into the panel.");
    return false;
}

void Stick::pull()
{
    if (isSimulated())
        m_simulation->pull();
}

/// A stick that hangs keeps no program from ending: what is left to do then is left behind.
Stick::Simulation::~Simulation()
{
    if (m_folder.isEmpty())
        return;
    const QString folder = m_folder;
    const bool hasMarker = m_madeMarker;
    const bool replacedFolder = m_replacedFolder;
    const std::shared_ptr<QSemaphore> done = std::make_shared<QSemaphore>();
    FileThread thread;
    thread.post(
        [folder, hasMarker, replacedFolder, done] {
            takeOut(folder, hasMarker);
            if (replacedFolder)
                QDir().mkdir(mountPoint());
            done->release();
        },
        [] {});
    if (!done->tryAcquire(1, partingMs))
        thread.giveUp();
}

bool Stick::Simulation::plug(QString *error)
{
    const QMutexLocker locker(&m_mutex);
    // What a program that was killed has left behind is taken over.
    if (isPresent() && (isBound() || isLinked())) {
        m_madeMarker = true;
        return true;
    }
    if (isMarkerAbandoned())
        QFile::remove(marker());
    if (QFileInfo(marker()).exists()) {
        *error = Words::tr("Another stick is plugged: %1 is there already.").arg(marker());
        return false;
    }
    if (!QDir().mkpath(m_folder)) {
        *error =
            Words::tr("The folder %1, which stands for the stick, cannot be made.").arg(m_folder);
        return false;
    }
    if (!isBound() && !isLinked() && !link(error))
        return false;
    m_madeMarker = makeMarker();
    if (!m_madeMarker) {
        *error = Words::tr("The marker %1 cannot be made: %2.")
                     .arg(marker(), QString::fromLocal8Bit(std::strerror(errno)));
        takeOut();
    }
    return m_madeMarker;
}

void Stick::Simulation::pull()
{
    const QMutexLocker locker(&m_mutex);
    takeOut();
}

void Stick::Simulation::takeOut()
{
    takeOut(m_folder, m_madeMarker);
    m_madeMarker = false;
}

void Stick::Simulation::takeOut(const QString &folder, bool hasMarker)
{
    if (hasMarker)
        QFile::remove(marker());
    if (isLinkTo(folder))
        QFile::remove(mountPoint());
}

bool Stick::Simulation::isBound() const
{
    struct stat point;
    struct stat folder;
    return lstat(QFile::encodeName(mountPoint()).constData(), &point) == 0
           && stat(QFile::encodeName(m_folder).constData(), &folder) == 0
           && point.st_dev == folder.st_dev && point.st_ino == folder.st_ino;
}

/// The marker of a program like this one that was killed. Nobody else writes such a text.
bool Stick::Simulation::isMarkerAbandoned()
{
    QFile file(marker());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = file.read(64);
    const int process = text.startsWith(markerText) ? text.mid(markerText.size()).toInt() : 0;
    return process > 0 && kill(process, 0) != 0 && errno == ESRCH;
}

bool Stick::Simulation::isLinkTo(const QString &folder)
{
    return QFileInfo(mountPoint()).isSymLink() && QFile::symLinkTarget(mountPoint()) == folder;
}

bool Stick::Simulation::link(QString *error)
{
    const QFileInfo point(mountPoint());
    // The import manager looks through a link. A file is the stick's only where the mount point's
    // path is part of the file's own.
    const bool isKnown = QFileInfo(m_folder).canonicalFilePath().contains(mountPoint());
    // An empty folder makes way and comes back at the end; a stick that is mounted there does not.
    const bool removed =
        isKnown && point.isDir() && !point.isSymLink() && QDir().rmdir(mountPoint());
    if (isKnown && QFile::link(m_folder, mountPoint())) {
        m_replacedFolder = m_replacedFolder || removed;
        return true;
    }
    if (removed)
        QDir().mkdir(mountPoint());
    *error = Words::tr("The stick stays out: the mount point %1 is not this program's to change.")
                 .arg(mountPoint());
    return false;
}
