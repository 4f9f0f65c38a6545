// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HELDFILE_H
#define HELDFILE_H

#include <QElapsedTimer>
#include <QFile>
#include <QObject>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

/// A file that keeps whoever opens it waiting, as one on a disk that hangs does: the system holds
/// an open() back, in the kernel, until the lease is given up.
class HeldFile
{
public:
    /// The file must be there, and open nowhere.
    explicit HeldFile(const QString &path)
    {
        // The system says by this signal that somebody waits; by itself it ends the program.
        std::signal(SIGIO, SIG_IGN);
        m_handle = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC);
        m_isHeld = m_handle >= 0 && ::fcntl(m_handle, F_SETLEASE, F_WRLCK) == 0;
    }

    ~HeldFile() { letGo(); }

    bool isHeld() const { return m_isHeld; }

    void letGo()
    {
        if (m_handle >= 0)
            ::close(m_handle);
        m_handle = -1;
        m_isHeld = false;
    }

private:
    Q_DISABLE_COPY(HeldFile)

    int m_handle;
    bool m_isHeld;
};

/// The longest time that the event loop has stood still.
class LoopPulse : public QObject
{
public:
    LoopPulse()
    {
        m_since.start();
        startTimer(5);
    }

    /// Milliseconds, up to now.
    qint64 longest() const { return qMax(m_longest, m_since.elapsed()); }

protected:
    void timerEvent(QTimerEvent *) override { m_longest = qMax(m_longest, m_since.restart()); }

private:
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};

#endif // HELDFILE_H
