// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/errormarks.h"

#include <QEvent>
#include <QTextBlock>
#include <QTextDocument>

namespace {

/// Tells a mark from the extra selections of others.
const int ownProperty = QTextFormat::UserProperty + 0x4d61;
/// Of 255: a base above it counts as light.
const int lightFrom = 128;

const QTextCharFormat::UnderlineStyle underlines[] = {
    QTextCharFormat::DotLine, QTextCharFormat::DashUnderline, QTextCharFormat::WaveUnderline};

typedef QList<QTextEdit::ExtraSelection> Selections;

bool isOwn(const QTextEdit::ExtraSelection &selection)
{
    return selection.format.hasProperty(ownProperty);
}

Selections filtered(const Selections &selections, bool areOwn)
{
    Selections found;
    Q_FOREACH (const QTextEdit::ExtraSelection &selection, selections) {
        if (isOwn(selection) == areOwn)
            found.append(selection);
    }
    return found;
}

bool isSame(const QTextEdit::ExtraSelection &one, const QTextEdit::ExtraSelection &other)
{
    return one.cursor.selectionStart() == other.cursor.selectionStart()
           && one.cursor.selectionEnd() == other.cursor.selectionEnd()
           && one.format == other.format;
}

bool areSame(const Selections &some, const Selections &others)
{
    if (some.size() != others.size())
        return false;
    for (int i = 0; i < some.size(); ++i) {
        if (!isSame(some.at(i), others.at(i)))
            return false;
    }
    return true;
}

QTextBlock blockOf(const QTextDocument *document, int row)
{
    return document && row > 0 ? document->findBlockByNumber(row - 1) : QTextBlock();
}

} // namespace

/// An edit, by its lines: those from first on, of which as many as removed were joined or replaced,
/// with as many added. What stood before the edit on its first line and behind it on its last is
/// still there.
struct ErrorMarks::Change
{
    int first;
    int removed;
    int added;
    bool isHeadLeft;
    bool isTailLeft;

    /// Where the line \a row is now; 0 where it was replaced.
    int rowNow(int row) const
    {
        if (row < first)
            return row;
        if (row > first + removed)
            return row + added - removed;
        if (row == first + removed && isTailLeft && (removed > 0 || !isHeadLeft))
            return first + added;
        const bool isFirst = row == first && (isHeadLeft || removed == 0 || !isTailLeft);
        return isFirst ? first : 0;
    }
};

ErrorMarks::ErrorMarks(QPlainTextEdit *editor, QObject *parent) : QObject(parent), m_editor(editor)
{
    followDocument();
    editor->viewport()->installEventFilter(this);
    // The editor's own slot has run by then, which leaves the current line's mark alone.
    connect(editor, SIGNAL(cursorPositionChanged()), SLOT(refresh()));
}

ErrorMarks::~ErrorMarks()
{
    m_marks.clear();
    // Owned by the editor, the marks go with it, when it is a bare widget.
    if (qobject_cast<QPlainTextEdit *>(m_editor.data()))
        refresh();
}

bool ErrorMarks::mark(int row, Severity severity, const QString &text)
{
    followDocument();
    const QTextBlock block = blockOf(m_document, row);
    if (!block.isValid())
        return false;
    const Mark mark = {row, severity, text, block.text()};
    unmark(row);
    m_marks.insert(firstFrom(row), mark);
    return true;
}

void ErrorMarks::unmark(int row)
{
    for (int i = find(row); i >= 0; i = find(row))
        m_marks.removeAt(i);
    repaint();
}

void ErrorMarks::clear()
{
    m_marks.clear();
    repaint();
}

QList<int> ErrorMarks::rows() const
{
    QList<int> rows;
    for (int i = 0; i < m_marks.size(); ++i) {
        const int row = rowAt(i);
        if (row > 0 && (rows.isEmpty() || rows.last() != row))
            rows.append(row);
    }
    return rows;
}

ErrorMarks::Severity ErrorMarks::severity(int row) const
{
    const int found = find(row);
    return found < 0 ? Note : m_marks.at(found).severity;
}

QString ErrorMarks::text(int row) const
{
    const int found = find(row);
    return found < 0 ? QString() : m_marks.at(found).text;
}

int ErrorMarks::nextRow(int row) const
{
    return rowAt(firstFrom(qMax(row, 0) + 1));
}

int ErrorMarks::previousRow(int row) const
{
    return rowAt(firstFrom(row) - 1);
}

void ErrorMarks::setColours(Severity severity, const Colours &colours)
{
    m_colours[severity] = colours;
    repaint();
}

ErrorMarks::Colours ErrorMarks::defaultColours(Severity severity, const QPalette &palette)
{
    static const QRgb light[][2] = {
        {0x003a75, 0xd6e8ff}, {0x5c4000, 0xffe9a0}, {0x7a0000, 0xffd2d2}};
    static const QRgb dark[][2] = {
        {0xd6e8ff, 0x0e3a66}, {0xffe9a0, 0x574300}, {0xffd6d6, 0x6b1212}};
    const bool isLight = qGray(palette.color(QPalette::Base).rgb()) >= lightFrom;
    const QRgb *colours = isLight ? light[severity] : dark[severity];
    return Colours{QColor(colours[0]), QColor(colours[1])};
}

bool ErrorMarks::eventFilter(QObject *watched, QEvent *event)
{
    // Whoever has replaced the extra selections, and whatever was scrolled: what is painted now has
    // the marks.
    if (event->type() == QEvent::Paint && m_editor && watched == editor()->viewport())
        refresh();
    return QObject::eventFilter(watched, event);
}

void ErrorMarks::noteChange(int position, int, int added)
{
    const QTextBlock first = m_document->findBlock(position);
    const int end = qMin(position + added, m_document->characterCount() - 1);
    const QTextBlock last = m_document->findBlock(end);
    const int grown = m_document->blockCount() - m_blocks;
    const int addedLines = last.blockNumber() - first.blockNumber();
    const Change change = {first.blockNumber() + 1, qMax(addedLines - grown, 0), addedLines,
                           position > first.position(), end < last.position() + last.length() - 1};
    const bool wasEmptied = m_frame != m_document->rootFrame();
    const bool haveMoved = !m_marks.isEmpty() && (grown != 0 || wasEmptied);
    m_blocks = m_document->blockCount();
    m_frame = m_document->rootFrame();
    if (wasEmptied)
        m_marks.clear();
    follow(change);
    settle(change.first, change.first + change.added);
    if (haveMoved)
        Q_EMIT moved();
}

void ErrorMarks::refresh()
{
    if (!m_editor)
        return;
    followDocument();
    const Selections all = editor()->extraSelections();
    const Selections wanted = visibleMarks();
    if (!areSame(filtered(all, true), wanted))
        editor()->setExtraSelections(filtered(all, false) + wanted);
}

/// The worst mark of \a row; -1 without one.
int ErrorMarks::find(int row) const
{
    int found = -1;
    for (int i = firstFrom(row); rowAt(i) == row && i < m_marks.size(); ++i) {
        if (found < 0 || m_marks.at(found).severity < m_marks.at(i).severity)
            found = i;
    }
    return found;
}

/// The first mark of \a row or of one behind it.
int ErrorMarks::firstFrom(int row) const
{
    int from = 0;
    int to = m_marks.size();
    while (from < to) {
        const int middle = (from + to) / 2;
        if (m_marks.at(middle).row < row)
            from = middle + 1;
        else
            to = middle;
    }
    return from;
}

/// The row of a mark; 0 when there is no such mark.
int ErrorMarks::rowAt(int index) const
{
    const bool isThere = m_document && index >= 0 && index < m_marks.size();
    return isThere ? m_marks.at(index).row : 0;
}

/// A host may give its editor another document.
void ErrorMarks::followDocument()
{
    QTextDocument *document = m_editor ? editor()->document() : nullptr;
    if (document == m_document)
        return;
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_marks.clear();
    m_document = document;
    if (!document)
        return;
    connect(document, SIGNAL(contentsChange(int, int, int)), SLOT(noteChange(int, int, int)));
    m_blocks = document->blockCount();
    m_frame = document->rootFrame();
}

/// Several edits at once come as one that replaces all between them: a line that was in there is
/// known again by its text.
void ErrorMarks::follow(const Change &change)
{
    int searched = change.first;
    for (int i = firstFrom(change.first); i < m_marks.size();) {
        Mark &mark = m_marks[i];
        int row = change.rowNow(mark.row);
        while (!row && searched <= change.first + change.added) {
            if (blockOf(m_document, searched).text() == mark.line)
                row = searched;
            ++searched;
        }
        mark.row = row;
        if (row)
            ++i;
        else
            m_marks.removeAt(i);
    }
}

void ErrorMarks::settle(int firstRow, int lastRow)
{
    for (int i = firstFrom(firstRow); i < m_marks.size() && m_marks.at(i).row <= lastRow; ++i)
        m_marks[i].line = blockOf(m_document, m_marks.at(i).row).text();
}

ErrorMarks::Colours ErrorMarks::colours(Severity severity) const
{
    const Colours &own = m_colours[severity];
    return own.text.isValid() ? own : defaultColours(severity, editor()->palette());
}

QTextEdit::ExtraSelection ErrorMarks::selection(const Mark &mark) const
{
    QTextEdit::ExtraSelection selection;
    const Colours look = colours(mark.severity);
    selection.format.setForeground(look.text);
    selection.format.setBackground(look.background);
    selection.format.setUnderlineStyle(underlines[mark.severity]);
    selection.format.setUnderlineColor(look.text);
    selection.format.setProperty(ownProperty, int(mark.severity));
    const QTextBlock block = blockOf(m_document, mark.row);
    selection.cursor = QTextCursor(block);
    const bool isCurrent = !editor()->isReadOnly() && block == editor()->textCursor().block();
    if (isCurrent && block.length() > 1) {
        selection.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    } else {
        selection.format.setProperty(QTextFormat::FullWidthSelection, true);
        selection.cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    }
    return selection;
}

/// The marks of the lines that are on the screen.
ErrorMarks::Selections ErrorMarks::visibleMarks() const
{
    Selections selections;
    if (m_marks.isEmpty())
        return selections;
    const QRect shown = editor()->viewport()->rect();
    const QTextBlock last = editor()->cursorForPosition(shown.bottomLeft()).block();
    QTextBlock block = editor()->cursorForPosition(shown.topLeft()).block();
    for (; block.isValid() && block.blockNumber() <= last.blockNumber(); block = block.next()) {
        const int found = find(block.blockNumber() + 1);
        if (found >= 0)
            selections.append(selection(m_marks.at(found)));
    }
    return selections;
}

void ErrorMarks::repaint()
{
    if (m_editor)
        editor()->viewport()->update();
}
