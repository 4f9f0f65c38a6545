// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stick.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>

#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

const QByteArray kMarkerText = "filarix-panel ";

QString tr(const char *text)
{
    return QCoreApplication::translate("Stick", text);
}

} // namespace

Stick::Stick(const QString &folder) : m_folder(folder) {}

Stick::~Stick()
{
    pull();
    if (m_replacedFolder)
        QDir().mkdir(mountPoint());
}

QString Stick::mountPoint()
{
    return QLatin1String("/mnt/Storage");
}

QString Stick::marker()
{
    return QLatin1String("/tmp/udiskattach");
}

bool Stick::isPresent()
{
    return QFileInfo(marker()).exists() && QFileInfo(mountPoint()).isDir();
}

bool Stick::plug(QString *error)
{
    if (!isSimulated()) {
        *error = tr("The stick is the panel's own: plug it into the panel.");
        return false;
    }
    // What a program that was killed has left behind is taken over.
    if (isPresent() && (isBound() || isLinked())) {
        m_madeMarker = true;
        return true;
    }
    if (isMarkerAbandoned())
        QFile::remove(marker());
    if (QFileInfo(marker()).exists()) {
        *error = tr("Another stick is plugged: %1 is there already.").arg(marker());
        return false;
    }
    if (!QDir().mkpath(m_folder)) {
        *error = tr("The folder %1, which stands for the stick, cannot be made.").arg(m_folder);
        return false;
    }
    if (!isBound() && !isLinked() && !link(error))
        return false;
    // Never through a link that somebody else has laid in a folder open to all.
    QFile file(marker());
    m_madeMarker = file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
                   && file.write(kMarkerText + QByteArray::number(qint64(getpid()))) > 0;
    if (!m_madeMarker) {
        *error = tr("The marker %1 cannot be made: %2.").arg(marker(), file.errorString());
        pull();
    }
    return m_madeMarker;
}

void Stick::pull()
{
    if (!isSimulated())
        return;
    if (m_madeMarker)
        QFile::remove(marker());
    m_madeMarker = false;
    if (isLinked())
        QFile::remove(mountPoint());
}

bool Stick::isBound() const
{
    struct stat point;
    struct stat folder;
    return lstat(QFile::encodeName(mountPoint()).constData(), &point) == 0
           && stat(QFile::encodeName(m_folder).constData(), &folder) == 0
           && point.st_dev == folder.st_dev && point.st_ino == folder.st_ino;
}

// The marker of a program like this one that was killed. Nobody else writes such a text.
bool Stick::isMarkerAbandoned()
{
    QFile file(marker());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = file.read(64);
    const int process = text.startsWith(kMarkerText) ? text.mid(kMarkerText.size()).toInt() : 0;
    return process > 0 && kill(process, 0) != 0 && errno == ESRCH;
}

bool Stick::isLinked() const
{
    return QFileInfo(mountPoint()).isSymLink() && QFile::symLinkTarget(mountPoint()) == m_folder;
}

bool Stick::link(QString *error)
{
    const QFileInfo point(mountPoint());
    // The import manager looks through a link, and takes a file for the stick's only where the
    // mount point's path is part of the file's own.
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
    *error = tr("The mount point %1 is not this program's to change. Start it by "
                "\"./run --stick DIR\" to try a stick.")
                 .arg(mountPoint());
    return false;
}
