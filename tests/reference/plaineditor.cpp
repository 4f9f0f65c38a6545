// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "plaineditor.h"

#include "waqp.h"

#include <QCoreApplication>
#include <QPainter>
#include <QProgressDialog>
#include <QTextBlock>
#include <QTime>
#include <QtDebug>

namespace {

PlainHighlighter::Rule rule(const char *pattern, Qt::GlobalColor foreground)
{
    PlainHighlighter::Rule result;
    result.pattern = QRegExp(QLatin1String(pattern), Qt::CaseSensitive, QRegExp::RegExp);
    result.format.setForeground(QBrush(foreground, Qt::SolidPattern));
    return result;
}

class Gutter : public QWidget
{
public:
    explicit Gutter(PlainEditor *editor) : QWidget(editor), m_editor(editor) {}

    QSize sizeHint() const override { return QSize(m_editor->lineNumberAreaWidth(), 0); }

protected:
    void paintEvent(QPaintEvent *event) override { m_editor->lineNumberAreaPaintEvent(event); }

private:
    PlainEditor *m_editor;
};

} // namespace

PlainHighlighter::PlainHighlighter(QTextDocument *parent)
    : QSyntaxHighlighter(parent), m_rules(rules())
{}

QVector<PlainHighlighter::Rule> PlainHighlighter::rules()
{
    return QVector<Rule>() << rule("G[0-9]{1,2}", Qt::darkGreen)
                           << rule("M[0-9]{1,2}", Qt::darkCyan)
                           << rule("[X,Y,Z,U,V,W,I,J,K]\\-?\\d+\\.?\\d*", Qt::darkMagenta)
                           << rule("F\\-?\\d+\\.?\\d*", Qt::blue) << rule("S\\d+", Qt::blue)
                           << rule("T[0-9]{1,2}", Qt::darkYellow);
}

void PlainHighlighter::highlightBlock(const QString &text)
{
    Q_FOREACH (const Rule &rule, m_rules) {
        const QRegExp expression(rule.pattern);
        int index = expression.indexIn(text);
        while (index >= 0) {
            const int length = expression.matchedLength();
            setFormat(index, length, rule.format);
            index = expression.indexIn(text, index + length);
        }
    }
}

PlainEditor::PlainEditor(QWidget *parent) : QPlainTextEdit(parent)
{
    setFont(WAQP::setFont(QLatin1String("Arial"), 15, true));
    QPalette colours = palette();
    colours.setBrush(QPalette::Inactive, QPalette::Highlight, QBrush(Qt::cyan, Qt::SolidPattern));
    setPalette(colours);
    m_lineNumberArea = new Gutter(this);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setWordWrapMode(QTextOption::NoWrap);
    m_highlighter = new PlainHighlighter(document());
    connect(this, SIGNAL(blockCountChanged(int)), SLOT(updateLineNumberAreaWidth(int)));
    connect(this, SIGNAL(updateRequest(QRect, int)), SLOT(updateLineNumberArea(QRect, int)));
    connect(this, SIGNAL(cursorPositionChanged()), SLOT(highlightCurrentLine()));
    updateLineNumberAreaWidth(0);
    highlightCurrentLine();
    setStyleSheet(QLatin1String("QScrollBar:horizontal{height:32px;}:vertical{width:32px;}"));
}

void PlainEditor::insertLine(const QString &text)
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

void PlainEditor::deleteLine()
{
    setFocus(Qt::OtherFocusReason);
    QTextCursor cursor = textCursor();
    cursor.select(QTextCursor::LineUnderCursor);
    cursor.removeSelectedText();
    cursor.deleteChar();
    setTextCursor(cursor);
}

void PlainEditor::gotoLine(int lineNum)
{
    setFocus(Qt::OtherFocusReason);
    QTextCursor cursor = textCursor();
    cursor.setPosition(document()->findBlockByNumber(lineNum - 1).position());
    setTextCursor(cursor);
    QTextEdit::ExtraSelection mark;
    mark.format.setForeground(QBrush(Qt::red, Qt::SolidPattern));
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    mark.cursor = textCursor();
    mark.cursor.clearSelection();
    setExtraSelections(QList<QTextEdit::ExtraSelection>() << mark);
}

QString PlainEditor::getLineText(int line)
{
    if (line < 0)
        return QLatin1String("");
    return document()->findBlockByLineNumber(line).text();
}

int PlainEditor::currentLineNumber()
{
    return textCursor().blockNumber();
}

void PlainEditor::readGCode(QString text)
{
    QTime time;
    time.start();
    const QStringList lines =
        text.split(QLatin1String("\n"), QString::KeepEmptyParts, Qt::CaseSensitive);
    if (lines.size() < 500) {
        setPlainText(text);
    } else {
        QProgressDialog progress(QLatin1String("Load Files:"), QLatin1String("Abort check"), 0,
                                 lines.size());
        const QVector<int> sizes = WAQP::chunkSizes(lines.size(), 50);
        int position = 0;
        Q_FOREACH (int n, sizes) {
            const QStringList chunk = lines.mid(position, n);
            const QString result = preproccess(chunk);
            if (!result.isEmpty())
                appendPlainText(result);
            position += n;
            progress.setValue(position);
            QCoreApplication::processEvents();
            if (progress.wasCanceled())
                break;
        }
    }
    qDebug() << "Elapsed:" << time.elapsed();
}

QString PlainEditor::preproccess(QStringList lines)
{
    QString result;
    Q_FOREACH (const QString &line, lines) {
        if (line.isEmpty())
            continue;
        const QString code =
            line.split(QLatin1String(";"), QString::KeepEmptyParts, Qt::CaseSensitive).first();
        if (!code.isEmpty())
            result += code + QLatin1String("\n");
    }
    const int last = result.lastIndexOf(QLatin1String("\n"));
    if (last >= 0)
        result.remove(last, 1);
    return result;
}

void PlainEditor::rehighlight()
{
    m_highlighter->rehighlight();
}

int PlainEditor::lineNumberAreaWidth()
{
    int digits = 1;
    for (int count = qMax(1, blockCount()); count >= 10; count /= 10)
        ++digits;
    return fontMetrics().width(QLatin1Char('9')) * digits + 3;
}

void PlainEditor::lineNumberAreaPaintEvent(QPaintEvent *event)
{
    QPainter painter(m_lineNumberArea);
    painter.fillRect(event->rect(), Qt::lightGray);
    QTextBlock block = firstVisibleBlock();
    int number = block.blockNumber() + 1;
    int top = int(blockBoundingGeometry(block).top() + contentOffset().y());
    int bottom = top + int(blockBoundingGeometry(block).height());
    while (block.isValid() && top <= event->rect().bottom()) {
        if (block.isValid() && bottom >= event->rect().top()) {
            painter.setPen(Qt::black);
            painter.drawText(0, top, m_lineNumberArea->width(), fontMetrics().height(),
                             Qt::AlignRight, QString::number(number));
        }
        block = block.next();
        top = bottom;
        bottom = top + int(blockBoundingGeometry(block).height());
        ++number;
    }
}

void PlainEditor::updateLineNumberAreaWidth(int)
{
    setViewportMargins(lineNumberAreaWidth(), 0, 0, 0);
}

void PlainEditor::highlightCurrentLine()
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

void PlainEditor::updateLineNumberArea(QRect rect, int dy)
{
    if (dy != 0)
        m_lineNumberArea->scroll(0, dy);
    else
        m_lineNumberArea->update(0, rect.y(), m_lineNumberArea->width(), rect.height());
    if (rect.contains(viewport()->rect()))
        updateLineNumberAreaWidth(0);
}

void PlainEditor::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect area = contentsRect();
    m_lineNumberArea->setGeometry(area.left(), area.top(), lineNumberAreaWidth(), area.height());
}

QString PlainFilter::getEffectiveString(QString line)
{
    QString kept;
    const int startLine = m_editor->currentLineNumber();
    const QStringList words = line.split(QLatin1Char(' '), QString::SkipEmptyParts);
    if (!words.isEmpty())
        kept = words.first();
    int start = 1;
    if (!kept.contains(QLatin1String("g")) && !kept.contains(QLatin1String("G"))) {
        kept = QLatin1String("");
        start = 0;
    }
    QStringList names;
    QList<double> values;
    const bool hasPairs = splitString(words, names, values);
    if (names.size() != values.size() || !hasPairs)
        return kept;
    if (start >= names.size())
        return QString();
    bool keptAny = false;
    for (int i = start; i < names.size(); ++i) {
        if (!compareString(startLine, names.at(i), values.at(i))) {
            kept = kept + QLatin1String(" ") + words.at(i);
            keptAny = true;
        }
    }
    return keptAny ? kept : QString();
}

bool PlainFilter::splitString(const QStringList &words, QStringList &names, QList<double> &values)
{
    bool result = false;
    for (int i = 0; i < words.size(); ++i) {
        if (words.at(i) == QLatin1String(""))
            continue;
        QString value;
        for (int k = 1; k < words.at(i).size(); ++k)
            value += words.at(i).at(k);
        if (value.isEmpty())
            continue;
        names.append(QString(words.at(i).at(0)));
        values.append(value.toDouble());
        result = true;
    }
    return result;
}

bool PlainFilter::compareString(int lineNumber, QString name, double value)
{
    if (lineNumber < 0)
        return false;
    const QString line = m_editor->getLineText(lineNumber);
    const QStringList words = line.split(QLatin1Char(' '), QString::SkipEmptyParts);
    QStringList names;
    QList<double> values;
    splitString(words, names, values);
    const int index = names.indexOf(name);
    if (index >= 0)
        return values.at(index) == value;
    return compareString(lineNumber - 1, name, value);
}
