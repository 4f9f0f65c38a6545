// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/documentrecorder.h"

#include <QTextCursor>
#include <QTextDocument>

namespace {

// A millisecond or two on a panel.
const int pieceChars = 64 * 1024;
// Changes beyond that are dearer than the text itself.
const int mostChanges = 4000;
const int mostChangedChars = 512 * 1024;

} // namespace

DocumentRecorder::DocumentRecorder(QTextDocument *document, QObject *parent)
    : QObject(parent), m_document(document), m_size(size())
{
    connect(m_document, SIGNAL(contentsChange(int, int, int)), this, SLOT(note(int, int, int)));
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(copyPiece()));
}

void DocumentRecorder::copy()
{
    stop();
    m_state = Copying;
    m_copy.reserve(size());
    m_timer.start(0);
}

void DocumentRecorder::stop()
{
    m_timer.stop();
    m_copy = QString();
    m_changes.clear();
    m_changedChars = 0;
    m_size = size();
    m_state = Idle;
}

void DocumentRecorder::finishCopy()
{
    while (isCopying())
        copyPiece();
}

QList<TextChange> DocumentRecorder::takeChanges()
{
    const QList<TextChange> changes = m_changes;
    m_changes.clear();
    m_changedChars = 0;
    return changes;
}

/// The document counts the end of its last line, which no text has.
void DocumentRecorder::note(int position, int removed, int added)
{
    const int before = m_size;
    m_size = size();
    TextChange change;
    change.position = position;
    change.removed = qBound(0, before - position, removed);
    const int addedChars = qBound(0, m_size - position, added);
    const bool isWhole = before - change.removed + addedChars == m_size;
    if (m_state != Idle && isWhole && addedChars <= mostChangedChars)
        change.added = textAt(position, addedChars);
    if (m_state != Idle && (!isWhole || addedChars > mostChangedChars))
        stop();
    else if (m_state == Copying)
        noteInCopy(change);
    else if (m_state == Recording)
        noteInRecord(change);
    Q_EMIT changed();
}

/// Text behind the end of the copy comes into the copy later.
void DocumentRecorder::noteInCopy(const TextChange &change)
{
    if (change.position >= m_copy.size())
        return;
    if (change.position + change.removed <= m_copy.size())
        m_copy.replace(change.position, change.removed, change.added);
    else
        m_copy.truncate(change.position);
}

void DocumentRecorder::noteInRecord(const TextChange &change)
{
    m_changedChars += change.added.size();
    // One letter after the other is one change.
    TextChange *last = m_changes.isEmpty() ? nullptr : &m_changes.last();
    if (last && change.removed == 0 && change.position == last->position + last->added.size())
        last->added += change.added;
    else
        m_changes.append(change);
    if (m_changes.size() > mostChanges || m_changedChars > mostChangedChars)
        stop();
}

void DocumentRecorder::copyPiece()
{
    m_copy += textAt(m_copy.size(), qMin(pieceChars, size() - m_copy.size()));
    if (m_copy.size() < size())
        return;
    const QString text = m_copy;
    stop();
    m_state = Recording;
    Q_EMIT copied(text);
}

QString DocumentRecorder::textAt(int position, int count) const
{
    if (count <= 0)
        return QString();
    QTextCursor cursor(m_document);
    cursor.setPosition(position);
    cursor.setPosition(position + count, QTextCursor::KeepAnchor);
    return cursor.selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

int DocumentRecorder::size() const
{
    return m_document->characterCount() - 1;
}
