// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PLAINEDITOR_H
#define PLAINEDITOR_H

#include <QHash>
#include <QPlainTextEdit>
#include <QRegExp>
#include <QStringList>
#include <QSyntaxHighlighter>
#include <QVector>

/// The G-code editor written down as plainly as it is described, with no regard for speed: what the
/// library's own is compared with, in behaviour by the tests and in cost by the benchmarks.
///
/// It has what a program's way through the editor takes: highlighter, gutter, loader, the commands
/// on lines, and the line filter of the window.
class PlainHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    struct Rule
    {
        QRegExp pattern;
        QTextCharFormat format;
    };

    explicit PlainHighlighter(QTextDocument *parent);

    /// The six rules, in their order.
    static QVector<Rule> rules();

protected:
    void highlightBlock(const QString &text) override;

private:
    const QVector<Rule> m_rules;
};

class PlainEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit PlainEditor(QWidget *parent);

    void insertLine(const QString &text);
    void deleteLine();
    void gotoLine(int lineNum);
    QString getLineText(int line);
    int currentLineNumber();

    void readGCode(QString text);
    QString preproccess(QStringList lines);
    void rehighlight();

    int lineNumberAreaWidth();
    void lineNumberAreaPaintEvent(QPaintEvent *event);

public Q_SLOTS:
    void updateLineNumberAreaWidth(int newBlockCount);
    void highlightCurrentLine();
    void updateLineNumberArea(QRect rect, int dy);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *m_lineNumberArea;
    PlainHighlighter *m_highlighter;
};

/// The line filter over the text of a PlainEditor.
class PlainFilter
{
public:
    explicit PlainFilter(PlainEditor *editor) : m_editor(editor) {}

    QString getEffectiveString(QString line);
    bool splitString(const QStringList &words, QStringList &names, QList<double> &values);
    bool compareString(int lineNumber, QString name, double value);

private:
    PlainEditor *m_editor;
};

#endif // PLAINEDITOR_H
