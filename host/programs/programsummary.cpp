// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programsummary.h"

#include "base/hostcompat.h"
#include "programs/programtext.h"
#include "winding/blockreader.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

const qint64 ProgramSummary::mostBytes;

namespace {

// A step, which takes a few milliseconds.
const int pieceBytes = 256 * 1024;
// A comment that comes later says nothing of the program as a whole.
const int commentLines = 100;
const int longestLine = 4096;
const int longestComment = 120;
const int wholePercent = 100;
const qint64 msPerSecond = 1000;
const qint64 nsPerMs = 1000000;

/// Without the signs that begin, end and underline a comment.
QString wordsOf(QString comment)
{
    for (int i = 0; i < comment.size(); ++i) {
        if (!comment.at(i).isPrint())
            comment[i] = QLatin1Char(' ');
    }
    int begin = 0;
    int end = comment.size();
    while (begin < end && !comment.at(begin).isLetterOrNumber())
        ++begin;
    while (end > begin && QString::fromLatin1(";()*-=_# ").contains(comment.at(end - 1)))
        --end;
    return comment.mid(begin, end - begin).simplified().left(longestComment);
}

QString commentOf(const QByteArray &line)
{
    const QString text = ProgramText::decoded(line.left(longestLine));
    BlockReader reader;
    const GCodeBlock &block = reader.read(text);
    if (block.commentColumn == 0)
        return QString();
    return wordsOf(text.mid(block.commentColumn - 1, block.commentLength));
}

QString firstComment(const QByteArray &start)
{
    int begin = 0;
    for (int line = 0; line < commentLines && begin < start.size(); ++line) {
        int end = start.indexOf('\n', begin);
        if (end < 0)
            end = start.size();
        QString comment = commentOf(start.mid(begin, qMin(end - begin, longestLine)));
        if (!comment.isEmpty())
            return comment;
        begin = end + 1;
    }
    return QString();
}

} // namespace

ProgramSummary::ProgramSummary(const QString &path, const MachineProfile &profile)
    : m_path(path), m_reading(profile)
{}

ProgramSummary::~ProgramSummary()
{
    ProgramSummary::close();
}

bool ProgramSummary::step()
{
    return m_handle < 0 ? open() : readPiece();
}

/// A pipe without a writer would hold the reader for ever: nothing waits for one here.
bool ProgramSummary::open()
{
    m_handle =
        ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (m_handle < 0)
        return fail(errno == ENOENT || errno == ENOTDIR ? Missing : Unreadable);
    struct stat status;
    if (::fstat(m_handle, &status) != 0)
        return fail(Unreadable);
    if (!S_ISREG(status.st_mode))
        return fail(NoProgram);
    m_kind = Program;
    m_size = status.st_size;
    m_written = HostCompat::utcTime(qint64(status.st_mtim.tv_sec) * msPerSecond
                                    + status.st_mtim.tv_nsec / nsPerMs);
    m_lines = 1;
    m_piece.resize(pieceBytes);
    return true;
}

/// Up to where the end was at first: one that moves on could be followed for ever.
bool ProgramSummary::readPiece()
{
    const qint64 left = qMin(m_size, mostBytes) - m_done;
    const ssize_t count =
        ::read(m_handle, m_piece.data(), size_t(qBound<qint64>(0, left, pieceBytes)));
    if (count < 0)
        return errno == EINTR || fail(Unreadable);
    const QByteArray piece = QByteArray::fromRawData(m_piece.constData(), int(count));
    if (m_done == 0)
        m_comment = firstComment(piece);
    m_lines += piece.count('\n');
    m_done += count;
    m_reading.addBytes(piece.constData(), count);
    if (count > 0 && m_done < qMin(m_size, mostBytes))
        return true;
    m_reading.finish();
    m_isRead = true;
    return false;
}

bool ProgramSummary::fail(Kind kind)
{
    m_kind = kind;
    m_error = qt_error_string(errno);
    return false;
}

int ProgramSummary::percent() const
{
    const qint64 all = qMin(m_size, mostBytes);
    return all <= 0 ? 0 : int(wholePercent * m_done / all);
}

void ProgramSummary::close()
{
    if (m_handle >= 0)
        ::close(m_handle);
    m_handle = -1;
}

double ProgramSummary::turns() const
{
    return isWhole() ? m_reading.model().totals().turns : 0;
}

double ProgramSummary::wireLength() const
{
    return isWhole() ? m_reading.model().totals().wireLength : 0;
}

double ProgramSummary::seconds() const
{
    return isWhole() ? m_reading.model().totals().seconds : 0;
}
