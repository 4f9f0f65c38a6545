// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/unsavedstore.h"

#include "base/hostcompat.h"
#include "base/sha256.h"
#include "programs/gaptext.h"
#include "storage/durablefile.h"
#include "storage/filestamp.h"

#include <QDataStream>
#include <QFile>
#include <QRegExp>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const char magic[] = "filarix-unsaved 1\n";
const int magicBytes = sizeof magic - 1;
const int linkBytes = 16;
const int pieceChars = 256 * 1024;
// More than any text that the panel has the memory to show.
const qint64 largestFile = qint64(512) * 1024 * 1024;
const int lengthBytes = 4;

QString keptName(const QString &subject)
{
    return subject + QLatin1String(".kept");
}

QString journalName(const QString &subject)
{
    return subject + QLatin1String(".changes");
}

void prepare(QDataStream *stream)
{
    stream->setVersion(QDataStream::Qt_4_8);
}

bool isNarrow(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x100; });
}

/// Most programs need a byte a character.
void putText(QDataStream *stream, const QString &text)
{
    const bool narrow = isNarrow(text);
    *stream << narrow;
    if (narrow)
        *stream << text.toLatin1();
    else
        *stream << text;
}

QString takeText(QDataStream *stream)
{
    bool narrow = false;
    *stream >> narrow;
    QString text;
    QByteArray bytes;
    if (narrow)
        *stream >> bytes;
    else
        *stream >> text;
    return narrow ? QString::fromLatin1(bytes.constData(), bytes.size()) : text;
}

QDataStream &operator<<(QDataStream &stream, const KeptHead &head)
{
    return stream << head.path << qint32(head.cursor) << head.state;
}

QDataStream &operator>>(QDataStream &stream, KeptHead &head)
{
    qint32 cursor = 0;
    stream >> head.path >> cursor >> head.state;
    head.cursor = cursor;
    return stream;
}

QDataStream &operator<<(QDataStream &stream, const FileStamp &stamp)
{
    return stream << stamp.size << stamp.inode << stamp.modified << stamp.changed;
}

QDataStream &operator>>(QDataStream &stream, FileStamp &stamp)
{
    return stream >> stamp.size >> stamp.inode >> stamp.modified >> stamp.changed;
}

FileStamp stampOf(const QString &path)
{
    return path.isEmpty() ? FileStamp() : FileStamp::of(path);
}

/// The toolkit's own operators believe what a file says about the length of a list.
void putRows(QDataStream *stream, const QList<QStringList> &rows)
{
    *stream << qint32(rows.size());
    for (const QStringList &row : rows) {
        *stream << qint32(row.size());
        for (const QString &cell : row)
            *stream << cell;
    }
}

template<class Item, class Take>
QList<Item> takeList(QDataStream *stream, Take take)
{
    qint32 count = 0;
    *stream >> count;
    QList<Item> items;
    for (int i = 0; i < count && stream->status() == QDataStream::Ok; ++i)
        items.append(take(stream));
    return items;
}

QString takeCell(QDataStream *stream)
{
    QString cell;
    *stream >> cell;
    return cell;
}

QList<QStringList> takeRows(QDataStream *stream)
{
    return takeList<QStringList>(
        stream, [](QDataStream *from) { return QStringList(takeList<QString>(from, takeCell)); });
}

/// Writes a file through a checksum.
class SummedWriter
{
public:
    explicit SummedWriter(DurableFile *file) : m_file(file) {}

    bool put(const QByteArray &bytes)
    {
        m_sum.addData(bytes);
        m_bytes += bytes.size();
        return m_file->write(bytes);
    }
    QByteArray sum() const { return m_sum.result(); }
    qint64 bytes() const { return m_bytes; }

private:
    DurableFile *m_file;
    Sha256 m_sum;
    qint64 m_bytes = 0;
};

QByteArray headBlock(const KeptWork &work)
{
    QByteArray block;
    QDataStream stream(&block, QIODevice::WriteOnly);
    prepare(&stream);
    stream << work.subject << work.head << stampOf(work.head.path)
           << qint64(work.time.toMSecsSinceEpoch());
    putRows(&stream, work.rows);
    stream << qint32((work.text.size() + pieceChars - 1) / pieceChars);
    return block;
}

/// A long text is not held in memory once more for the disk.
bool putWork(SummedWriter *writer, const KeptWork &work)
{
    if (!writer->put(magic) || !writer->put(headBlock(work)))
        return false;
    for (int from = 0; from < work.text.size(); from += pieceChars) {
        QByteArray block;
        QDataStream stream(&block, QIODevice::WriteOnly);
        prepare(&stream);
        putText(&stream, work.text.mid(from, pieceChars));
        if (!writer->put(block))
            return false;
    }
    return true;
}

bool parseWork(const QByteArray &bytes, KeptWork *work)
{
    QDataStream stream(bytes.mid(magicBytes, bytes.size() - magicBytes - Sha256::size));
    prepare(&stream);
    FileStamp stamp;
    qint64 time = 0;
    qint32 pieces = 0;
    stream >> work->subject >> work->head >> stamp >> time;
    work->rows = takeRows(&stream);
    stream >> pieces;
    work->time = HostCompat::utcTime(time);
    for (int i = 0; i < pieces && stream.status() == QDataStream::Ok; ++i)
        work->text += takeText(&stream);
    const FileStamp now = stampOf(work->head.path);
    work->isFileChanged = now != stamp;
    work->isFileThere = now.isValid();
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

/// The bytes of a regular file; whether there is one and all of it could be read. What stands there
/// instead, a pipe say, must not hold the program up.
bool readFile(const QString &path, QByteArray *bytes)
{
    const int handle =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0)
        return false;
    struct stat facts = {};
    QFile file;
    const bool isUsable = ::fstat(handle, &facts) == 0 && S_ISREG(facts.st_mode)
                          && facts.st_size <= largestFile
                          && file.open(handle, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    if (!isUsable) {
        ::close(handle);
        return false;
    }
    *bytes = file.readAll();
    return file.error() == QFile::NoError && bytes->size() == facts.st_size;
}

QByteArray sumOf(const QByteArray &link, const QByteArray &payload)
{
    Sha256 sum;
    sum.addData(link);
    sum.addData(payload);
    return sum.result().left(linkBytes);
}

/// The checksum of a record takes in that of what stands before, so a record fits in one place
/// only.
QByteArray record(const KeptHead &head, qint64 time, const QList<TextChange> &changes,
                  QByteArray *link)
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    prepare(&stream);
    stream << head << time << qint32(changes.size());
    for (const TextChange &change : changes) {
        stream << qint32(change.position) << qint32(change.removed);
        putText(&stream, change.added);
    }
    *link = sumOf(*link, payload);
    QByteArray length;
    QDataStream(&length, QIODevice::WriteOnly) << quint32(payload.size());
    return length + *link + payload;
}

bool isFitting(const TextChange &change, int size)
{
    return change.position >= 0 && change.position <= size && change.removed >= 0
           && change.removed <= size - change.position;
}

/// Takes a record into the work; false when the text does not have what the record changes.
bool replay(const QByteArray &payload, GapText *text, KeptWork *work)
{
    QDataStream stream(payload);
    prepare(&stream);
    KeptHead head;
    qint64 time = 0;
    qint32 count = 0;
    stream >> head >> time >> count;
    for (int i = 0; i < count; ++i) {
        qint32 position = 0;
        qint32 removed = 0;
        stream >> position >> removed;
        TextChange change;
        change.position = position;
        change.removed = removed;
        change.added = takeText(&stream);
        if (stream.status() != QDataStream::Ok || !isFitting(change, text->size()))
            return false;
        text->replace(change);
    }
    if (stream.status() != QDataStream::Ok)
        return false;
    work->head = head;
    work->time = HostCompat::utcTime(time);
    return true;
}

/// Replays up to the first record that is not whole, or not of this journal.
void replayAll(const QByteArray &journal, QByteArray link, KeptWork *work)
{
    GapText text(work->text);
    work->text.clear();
    int at = 0;
    while (journal.size() - at >= lengthBytes + linkBytes) {
        quint32 length = 0;
        QDataStream(journal.mid(at, lengthBytes)) >> length;
        const QByteArray sum = journal.mid(at + lengthBytes, linkBytes);
        at += lengthBytes + linkBytes;
        if (length > quint32(journal.size() - at))
            break;
        const QByteArray payload = journal.mid(at, int(length));
        at += int(length);
        if (sumOf(link, payload) != sum || !replay(payload, &text, work))
            break;
        link = sum;
    }
    work->text = text.toString();
}

bool writeAll(int handle, const QByteArray &bytes)
{
    int done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            ::write(handle, bytes.constData() + done, size_t(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += int(count);
    }
    return true;
}

} // namespace

const qint64 UnsavedStore::longestJournal;

UnsavedStore::~UnsavedStore()
{
    const QStringList subjects = m_journals.keys();
    for (const QString &subject : subjects)
        closeJournal(subject);
}

bool UnsavedStore::keep(const KeptWork &work)
{
    m_error = 0;
    m_reason.clear();
    if (!openSession())
        return false;
    DurableFile file(m_session->filePath(keptName(work.subject)));
    SummedWriter writer(&file);
    const bool isWritten = file.open() && putWork(&writer, work);
    const QByteArray sum = writer.sum();
    if (!isWritten || !file.write(sum) || !file.commit()) {
        m_reason = file.errorString();
        return false;
    }
    m_bytesWritten += writer.bytes() + sum.size();
    closeJournal(work.subject);
    return beginJournal(work.subject, sum);
}

bool UnsavedStore::append(const QString &subject, const KeptHead &head,
                          const QList<TextChange> &changes)
{
    m_error = 0;
    m_reason.clear();
    if (!m_journals.contains(subject))
        return false;
    Journal &journal = m_journals[subject];
    const QByteArray bytes =
        record(head, QDateTime::currentMSecsSinceEpoch(), changes, &journal.link);
    if (journal.size + bytes.size() > longestJournal) {
        closeJournal(subject);
        return false;
    }
    if (!writeAll(journal.handle, bytes) || ::fdatasync(journal.handle) != 0) {
        const int error = errno;
        // What stands behind half a record would never be read.
        closeJournal(subject);
        return fail(error);
    }
    journal.size += bytes.size();
    m_bytesWritten += bytes.size();
    return true;
}

bool UnsavedStore::drop(const QString &subject)
{
    m_error = 0;
    m_reason.clear();
    closeJournal(subject);
    if (!m_session)
        return true;
    if (!remove(*m_session, subject))
        return fail(errno);
    if (::rmdir(QFile::encodeName(m_session->path()).constData()) == 0)
        m_session.reset();
    else
        DurableFile::syncFolder(m_session->path());
    return true;
}

QString UnsavedStore::errorString() const
{
    return m_error == 0 ? m_reason : QString::fromLocal8Bit(std::strerror(m_error));
}

UnsavedStore::Reading UnsavedStore::read(const UnsavedSession &session, const QString &subject,
                                         KeptWork *work)
{
    const QString path = session.filePath(keptName(subject));
    QByteArray bytes;
    if (!readFile(path, &bytes)) {
        struct stat facts = {};
        const bool isThere = ::lstat(QFile::encodeName(path).constData(), &facts) == 0;
        return isThere ? Broken : Nothing;
    }
    const int sumAt = bytes.size() - Sha256::size;
    if (sumAt < magicBytes || !bytes.startsWith(magic))
        return Broken;
    const QByteArray sum = bytes.mid(sumAt);
    Sha256 hash;
    hash.addData(bytes.constData(), sumAt);
    KeptWork kept;
    if (hash.result() != sum || !parseWork(bytes, &kept) || kept.subject != subject)
        return Broken;
    QByteArray journal;
    if (readFile(session.filePath(journalName(subject)), &journal))
        replayAll(journal, sum, &kept);
    *work = kept;
    return Whole;
}

QString UnsavedStore::putAside(const UnsavedSession &session, const QString &subject)
{
    QString aside = session.filePath(subject + QLatin1String(".unreadable"));
    for (const QString &name : {keptName(subject), journalName(subject)}) {
        const QString target =
            name == keptName(subject) ? aside : aside + QLatin1String(".changes");
        ::rename(QFile::encodeName(session.filePath(name)).constData(),
                 QFile::encodeName(target).constData());
    }
    return aside;
}

bool UnsavedStore::remove(const UnsavedSession &session, const QString &subject)
{
    // The journal says nothing without its file, which therefore goes first.
    for (const QString &name : {keptName(subject), journalName(subject)}) {
        const QByteArray path = QFile::encodeName(session.filePath(name));
        if (::unlink(path.constData()) != 0 && errno != ENOENT)
            return false;
    }
    return true;
}

bool UnsavedStore::isOwn(const QString &fileName)
{
    return QRegExp(QLatin1String("[a-z]+\\.(kept|changes)")).exactMatch(fileName);
}

bool UnsavedStore::openSession()
{
    if (!m_session)
        m_session = UnsavedSession::make(m_folder);
    return m_session || fail(errno);
}

/// A power cut between the two leaves a journal of the file before, whose links don't fit.
bool UnsavedStore::beginJournal(const QString &subject, const QByteArray &link)
{
    const QByteArray path = QFile::encodeName(m_session->filePath(journalName(subject)));
    Journal journal;
    journal.handle =
        ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (journal.handle < 0 || !DurableFile::syncFolder(m_session->path())) {
        const int error = errno;
        if (journal.handle >= 0)
            ::close(journal.handle);
        return fail(error);
    }
    journal.link = link;
    m_journals.insert(subject, journal);
    return true;
}

void UnsavedStore::closeJournal(const QString &subject)
{
    const Journal journal = m_journals.take(subject);
    if (journal.handle >= 0)
        ::close(journal.handle);
}

bool UnsavedStore::fail(int error)
{
    m_error = error;
    return false;
}
