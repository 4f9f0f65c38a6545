// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "wgcodeediter.h"

#include "blockformatter_p.h"
#include "compat.h"
#include "gcodesymbols.h"
#include "pieceappender_p.h"
#include "waqp.h"
#include "wcopydialog.h"
#include "wfinddialog.h"
#include "whighlighter.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QProgressDialog>
#include <QScrollBar>
#include <QTextBlock>
#include <QTime>
#include <QtDebug>

#include <algorithm>

namespace {

/// From this number of parts on, a program goes in piece by piece.
const int chunkThreshold = 500;
/// The number of pieces, whatever the size of the program.
const int chunkCount = 50;
/// Pixels of the gutter beside the digits.
const int gutterMargin = 3;

/// Cuts a program into pieces, without comments and without empty lines.
///
/// Only one piece at a time is there: all of them would take as much memory again as the document.
/// The text goes as the document comes, but it is not copied for each piece.
class ProgramCutter
{
public:
    explicit ProgramCutter(QString &text) : m_text(text), m_line(0), m_comment(-1), m_lineCount(0)
    {}

    /// What stays of the next \a count lines.
    QString next(int count);

    /// The number of lines in the piece.
    int lineCount() const { return m_lineCount; }

private:
    int behindCode(int lineEnd);
    void letGo();

    QString &m_text;
    int m_line;    ///< start of the line that comes next
    int m_comment; ///< the first mark of one that has been looked for; often behind that line
    int m_lineCount;
};

QString ProgramCutter::next(int count)
{
    QString piece;
    m_lineCount = 0;
    int uncopied = m_line; // lines that stay whole are copied together
    for (int i = 0; i < count && m_line <= m_text.size(); ++i) {
        const int found = m_text.indexOf(QLatin1Char('\n'), m_line);
        const int lineEnd = found < 0 ? m_text.size() : found;
        const int codeEnd = behindCode(lineEnd);
        const bool isKept = codeEnd > m_line;
        if (!isKept || codeEnd < lineEnd) {
            piece.append(m_text.midRef(uncopied, codeEnd - uncopied));
            if (isKept)
                piece.append(QLatin1Char('\n'));
            uncopied = lineEnd + 1;
        }
        m_lineCount += isKept;
        m_line = lineEnd + 1;
    }
    piece.append(m_text.midRef(uncopied, m_line - uncopied));
    if (piece.endsWith(QLatin1Char('\n')))
        piece.chop(1);
    letGo();
    return piece;
}

/// Where the code of the next line ends: at a comment, or with the line.
int ProgramCutter::behindCode(int lineEnd)
{
    if (m_comment < m_line) {
        const int found = m_text.indexOf(QLatin1Char(';'), m_line);
        m_comment = found < 0 ? m_text.size() : found;
    }
    return qMin(m_comment, lineEnd);
}

void ProgramCutter::letGo()
{
    if (m_line <= m_text.size() / 2)
        return;
    m_text = m_text.mid(m_line);
    m_line = 0;
    m_comment = -1;
}

/// Whether \a highlighter is still there. The document owns it, and a host may have set its own.
bool isThere(const WHighlighter *highlighter, const QTextDocument *document)
{
    const QObjectList &children = document->children();
    return std::find(children.constBegin(), children.constEnd(), highlighter)
           != children.constEnd();
}

BlockFormatter *formatterOf(WHighlighter *highlighter, const QTextDocument *document)
{
    return isThere(highlighter, document) ? BlockFormatter::of(highlighter) : nullptr;
}

} // namespace

WGCodeEditer::WGCodeEditer(QWidget *parent) : QPlainTextEdit(parent), findDialog(nullptr)
{
    setFont(WAQP::setFont(QLatin1String("Arial"), 15, true));

    // The keypads and dialogs take the focus; the selection has to stay visible meanwhile.
    QPalette colours = palette();
    colours.setBrush(QPalette::Inactive, QPalette::Highlight, QBrush(Qt::cyan, Qt::SolidPattern));
    setPalette(colours);

    lineNumberArea = new WGLineNubmerArea(this);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setWordWrapMode(QTextOption::NoWrap);
    highlighter = new WHighlighter(document());
    new BlockFormatter(highlighter);
    new HighlighterWatch(highlighter, this);

    connect(this, SIGNAL(blockCountChanged(int)), SLOT(updateLineNumberAreaWidth(int)));
    connect(this, SIGNAL(updateRequest(QRect, int)), SLOT(updateLineNumberArea(QRect, int)));
    connect(this, SIGNAL(cursorPositionChanged()), SLOT(highlightCurrentLine()));

    updateLineNumberAreaWidth(0);
    highlightCurrentLine();

    currentLine = 0;
    findDialog = nullptr;
    isFound = false;
    setStyleSheet(QLatin1String("QScrollBar:horizontal{height:32px;}:vertical{width:32px;}"));
}

WGCodeEditer::~WGCodeEditer()
{
    delete findDialog;
    findDialog = nullptr;
}

void WGCodeEditer::insertLine(const QString &text)
{
    setFocus(Qt::OtherFocusReason);
    QTextCursor cursor = textCursor();
    cursor.select(QTextCursor::LineUnderCursor);
    if (!cursor.selectedText().isEmpty()) {
        cursor.movePosition(QTextCursor::EndOfLine);
        setTextCursor(cursor);
        cursor.insertBlock(QTextBlockFormat());
    }
    cursor.insertText(text);
}

void WGCodeEditer::insertLine()
{
    setFocus(Qt::OtherFocusReason);
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::EndOfLine);
    setTextCursor(cursor);
    cursor.insertBlock(QTextBlockFormat());
}

void WGCodeEditer::insertBefore()
{
    setFocus(Qt::OtherFocusReason);
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::StartOfLine);
    setTextCursor(cursor);
    cursor.insertBlock(QTextBlockFormat());
    cursor.movePosition(QTextCursor::Up);
    setTextCursor(cursor);
}

void WGCodeEditer::deleteLine()
{
    setFocus(Qt::OtherFocusReason);
    QTextCursor cursor = textCursor();
    cursor.select(QTextCursor::LineUnderCursor);
    cursor.removeSelectedText();
    cursor.deleteChar();
    setTextCursor(cursor);
}

void WGCodeEditer::moveEvent(GCODE::MoveOperation op)
{
    QTextCursor cursor = textCursor();
    if (op == GCODE::MoveUp)
        cursor.movePosition(QTextCursor::Up);
    else if (op == GCODE::MoveDown)
        cursor.movePosition(QTextCursor::Down);
    setTextCursor(cursor);
}

QString WGCodeEditer::curLineText()
{
    QTextCursor cursor = textCursor();
    cursor.select(QTextCursor::LineUnderCursor);
    return cursor.selectedText();
}

QString WGCodeEditer::getLineText(int line)
{
    if (line < 0)
        return QLatin1String("");
    return document()->findBlockByLineNumber(line).text();
}

int WGCodeEditer::currentLineNumber()
{
    currentLine = textCursor().blockNumber();
    return currentLine;
}

void WGCodeEditer::updateGCode(QString text)
{
    QTextCursor cursor = textCursor();
    cursor.select(QTextCursor::LineUnderCursor);
    cursor.removeSelectedText();
    if (blockCount() == cursor.blockNumber() + 1)
        text.append(QLatin1Char('\n'));
    cursor.insertText(text);
}

int WGCodeEditer::getCurRowNumber() const
{
    return textCursor().blockNumber() + 1;
}

int WGCodeEditer::getCurColNumber() const
{
    const QTextCursor cursor = textCursor();
    return cursor.position() - cursor.block().position() + 1;
}

void WGCodeEditer::readGCode(QString text)
{
    QTime time;
    time.start();

    const int total = int(std::count(text.constBegin(), text.constEnd(), QLatin1Char('\n'))) + 1;
    if (total < chunkThreshold) {
        setPlainText(text);
        qDebug() << "Elapsed:" << time.elapsed();
        return;
    }

    QProgressDialog progress(QLatin1String("Load Files:"), QLatin1String("Abort check"), 0, total);
    const ViewAccess access = {
        [this]() { return firstVisibleBlock(); },
        [this]() { return contentOffset(); },
        [this](const QTextBlock &block) { return blockBoundingGeometry(block); },
        [this]() { QPlainTextEdit::scrollContentsBy(0, 0); },
    };
    PieceAppender appender(this, formatterOf(highlighter, document()), access);
    const QPointer<WGCodeEditer> self(this);
    ProgramCutter cutter(text);
    int position = 0;
    Q_FOREACH (int n, WAQP::chunkSizes(total, chunkCount)) {
        const QString piece = cutter.next(n);
        if (!piece.isEmpty())
            appender.append(piece, cutter.lineCount());
        position += n;
        progress.setValue(position);
        QCoreApplication::processEvents();
        if (!self || progress.wasCanceled())
            break;
    }
    qDebug() << "Elapsed:" << time.elapsed();
}

QString WGCodeEditer::preproccess(QStringList lines)
{
    QString result;
    Q_FOREACH (const QString &line, lines) {
        const int comment = line.indexOf(QLatin1Char(';'));
        const int length = comment < 0 ? line.size() : comment;
        if (length == 0)
            continue;
        result.append(line.leftRef(length));
        result.append(QLatin1Char('\n'));
    }
    result.chop(1);
    return result;
}

void WGCodeEditer::addErrorCode(int line, QString code)
{
    QList<int> columns;
    for (int i = 0; i < code.size(); ++i) {
        if (code.at(i) != QLatin1Char(' '))
            columns.append(i);
    }
    WHighlighter *const holder = HighlighterWatch::highlighterOf(this);
    if (holder && !columns.isEmpty())
        holder->errorLines.insert(line, columns);
}

void WGCodeEditer::highlightErrorCode()
{
    WHighlighter *const holder = HighlighterWatch::highlighterOf(this);
    if (holder && !holder->errorLines.isEmpty())
        BlockFormatter::of(holder)->formatAll();
}

int WGCodeEditer::lineNumberAreaWidth()
{
    int digits = 1;
    for (int count = qMax(1, blockCount()); count >= 10; count /= 10)
        ++digits;
    return fontMetrics().width(QLatin1Char('9')) * digits + gutterMargin;
}

void WGCodeEditer::lineNumberAreaPaintEvent(QPaintEvent *event)
{
    QPainter painter(lineNumberArea);
    painter.fillRect(event->rect(), Qt::lightGray);
    painter.setPen(Qt::black);

    QTextBlock block = firstVisibleBlock();
    int number = block.blockNumber() + 1;
    int top = int(blockBoundingGeometry(block).top() + contentOffset().y());
    int bottom = top + int(blockBoundingGeometry(block).height());
    while (block.isValid() && top <= event->rect().bottom()) {
        if (bottom >= event->rect().top()) {
            painter.drawText(0, top, lineNumberArea->width(), fontMetrics().height(),
                             Qt::AlignRight, QString::number(number));
        }
        block = block.next();
        top = bottom;
        bottom = top + int(blockBoundingGeometry(block).height());
        ++number;
    }
}

void WGCodeEditer::updateLineNumberAreaWidth(int)
{
    const QMargins margins(lineNumberAreaWidth(), 0, 0, 0);
#ifdef FILARIX_HAS_VIEWPORT_MARGINS
    // Setting them lays the whole scroll area out again, at every full update of the view. That
    // changes something where a scroll bar is still to come or go: then at once, not in its turn.
    if (viewportMargins() == margins && PieceAppender::areBarsAsNeeded(this))
        return;
#endif
    setViewportMargins(margins);
}

void WGCodeEditer::highlightCurrentLine()
{
    QList<QTextEdit::ExtraSelection> marks;
    if (!isReadOnly()) {
        QTextEdit::ExtraSelection mark;
        mark.format.setBackground(palette().alternateBase());
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        mark.cursor = textCursor();
        mark.cursor.clearSelection();
        marks.append(mark);
    }
    setExtraSelections(marks);
}

void WGCodeEditer::updateLineNumberArea(QRect rect, int dy)
{
    if (PieceAppender::holdsPaintingOf(this))
        ; // it is painted with all the rest
    else if (dy != 0)
        lineNumberArea->scroll(0, dy);
    else
        lineNumberArea->update(0, rect.y(), lineNumberArea->width(), rect.height());

    if (rect.contains(viewport()->rect()))
        updateLineNumberAreaWidth(0);
}

void WGCodeEditer::gotoLine(int lineNum)
{
    setFocus(Qt::OtherFocusReason);
    QTextCursor cursor = textCursor();
    // An invalid block stands at position 0, so a row that does not exist leads to the start.
    cursor.setPosition(document()->findBlockByNumber(qMax(lineNum, 0) - 1).position());
    setTextCursor(cursor);

    QTextEdit::ExtraSelection mark;
    mark.format.setForeground(QBrush(Qt::red, Qt::SolidPattern));
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    mark.cursor = textCursor();
    mark.cursor.clearSelection();
    setExtraSelections(QList<QTextEdit::ExtraSelection>() << mark);
}

void WGCodeEditer::copy()
{
    WCopyDialog dialog(nullptr);
    const int row = getCurRowNumber();
    dialog.setCurrentLine(row);
    dialog.setRange(1, 1 - row + document()->lineCount());
    const QPointer<WGCodeEditer> self(this);
    if (dialog.exec() != QDialog::Accepted || !self)
        return;
    const int count = dialog.count();
    if (count < 1)
        return;

    const bool toEnd = row - 1 + count >= blockCount();
    QTextCursor cursor = textCursor();
    if (count == 1) {
        cursor.select(QTextCursor::LineUnderCursor);
    } else {
        cursor.movePosition(QTextCursor::StartOfLine);
        cursor.movePosition(QTextCursor::Down, QTextCursor::KeepAnchor, count);
        if (toEnd)
            cursor.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
    }
    setTextCursor(cursor);
    copiedText = cursor.selectedText();
    if (toEnd)
        copiedText.append(QLatin1Char('\n'));
}

void WGCodeEditer::paste()
{
    textCursor().insertText(copiedText);
}

void WGCodeEditer::findAndReplace()
{
    if (!findDialog) {
        findDialog = new WFindDialog(nullptr);
        connect(findDialog, SIGNAL(findNext(QString, Qt::CaseSensitivity)),
                SLOT(findNext(QString, Qt::CaseSensitivity)));
        connect(findDialog, SIGNAL(findPrevious(QString, Qt::CaseSensitivity)),
                SLOT(findPrevious(QString, Qt::CaseSensitivity)));
        connect(findDialog, SIGNAL(replaceTxt(QString)), SLOT(replaceTxt(QString)));
    }
    findDialog->setVisible(true);
}

void WGCodeEditer::findNext(const QString &str, Qt::CaseSensitivity cs)
{
    search(str, QTextDocument::FindFlags(), cs);
}

void WGCodeEditer::findPrevious(const QString &str, Qt::CaseSensitivity cs)
{
    search(str, QTextDocument::FindBackward, cs);
}

void WGCodeEditer::replaceTxt(const QString &str)
{
    if (isFound)
        insertPlainText(str);
    isFound = false;
}

void WGCodeEditer::mousePressEvent(QMouseEvent *event)
{
    setTextCursor(cursorForPosition(event->pos()));
    highlightCurrentLine();
    // The base class would begin a selection; a thumb only points at a line.
    event->ignore();
}

void WGCodeEditer::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->ignore();
}

void WGCodeEditer::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect area = contentsRect();
    lineNumberArea->setGeometry(area.left(), area.top(), lineNumberAreaWidth(), area.height());
}

void WGCodeEditer::search(const QString &str, QTextDocument::FindFlags flags,
                          Qt::CaseSensitivity cs)
{
    if (cs == Qt::CaseSensitive)
        flags |= QTextDocument::FindCaseSensitively;
    isFound = find(str, flags);
    if (!isFound) {
        QMessageBox::information(findDialog, QLatin1String("Find"),
                                 QLatin1String("Find finished!\n Can't find any information!"),
                                 QMessageBox::Ok);
    }
}

WGLineNubmerArea::WGLineNubmerArea(WGCodeEditer *editor) : QWidget(editor), codeEditor(editor) {}

QSize WGLineNubmerArea::sizeHint() const
{
    return QSize(codeEditor->lineNumberAreaWidth(), 0);
}

void WGLineNubmerArea::paintEvent(QPaintEvent *event)
{
    codeEditor->lineNumberAreaPaintEvent(event);
}
