// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programsource.h"

#include "winding/programreading.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const int pieceBytes = 65536;

/// An open file, closed in the end unless it is the standard input.
class Descriptor
{
public:
    explicit Descriptor(const QByteArray &name)
        : m_isOwn(name != "-"), m_fd(m_isOwn ? openWithoutWaiting(name) : STDIN_FILENO)
    {}
    ~Descriptor()
    {
        if (m_isOwn && m_fd >= 0)
            ::close(m_fd);
    }

    int fd() const { return m_fd; }

    /// Why it is no program; null where it may be one.
    const char *refusal() const
    {
        struct stat facts;
        if (m_fd < 0 || ::fstat(m_fd, &facts) != 0)
            return std::strerror(errno);
        if (S_ISDIR(facts.st_mode))
            return "is a folder";
        if (!m_isOwn || S_ISREG(facts.st_mode))
            return nullptr;
        if (!S_ISFIFO(facts.st_mode))
            return "is a device";
        return hasName() ? "is a pipe; \"-\" reads from one" : nullptr;
    }

    void waitFromNowOn() const
    {
        if (m_isOwn)
            ::fcntl(m_fd, F_SETFL, ::fcntl(m_fd, F_GETFL) & ~O_NONBLOCK);
    }

private:
    Q_DISABLE_COPY(Descriptor)

    /// A pipe that nobody writes to would hold up the opening.
    static int openWithoutWaiting(const QByteArray &name)
    {
        return ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    }

    /// The system calls a pipe of a shell "pipe:[123]", any other by its path.
    bool hasName() const
    {
        char target[2] = {};
        const QByteArray link = "/proc/self/fd/" + QByteArray::number(m_fd);
        return ::readlink(link.constData(), target, 1) != 1 || target[0] == '/';
    }

    const bool m_isOwn;
    const int m_fd;
};

} // namespace

bool ProgramSource::read(const QByteArray &name, ProgramReading *reading, QByteArray *error)
{
    const Descriptor file(name);
    if (const char *refusal = file.refusal()) {
        *error = refusal;
        return false;
    }
    file.waitFromNowOn();
    char piece[pieceBytes];
    qint64 total = 0;
    for (;;) {
        const ssize_t count = ::read(file.fd(), piece, sizeof piece);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            *error = std::strerror(errno);
            return false;
        }
        if (count == 0)
            break;
        total += count;
        if (total > mostBytes) {
            *error = "is too large for a program";
            return false;
        }
        reading->addBytes(piece, count);
    }
    reading->finish();
    return true;
}
