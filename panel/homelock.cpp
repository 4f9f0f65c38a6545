// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "homelock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

HomeLock::~HomeLock()
{
    if (m_handle >= 0)
        close(m_handle);
}

HomeLock::Answer HomeLock::take()
{
    if (m_handle >= 0)
        return Own;
    QDir().mkpath(QFileInfo(m_path).path());
    // Commands that the program starts must not keep the lock, nor may a link lead it elsewhere.
    const int handle = open(QFile::encodeName(m_path).constData(),
                            O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (handle < 0) {
        m_error = errno;
        return Impossible;
    }
    if (flock(handle, LOCK_EX | LOCK_NB) == 0) {
        m_handle = handle;
        return Own;
    }
    m_error = errno;
    close(handle);
    return m_error == EWOULDBLOCK ? Taken : Impossible;
}

QString HomeLock::errorString() const
{
    return m_error == 0 ? QString() : qt_error_string(m_error);
}
