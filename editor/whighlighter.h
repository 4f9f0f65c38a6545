// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_WHIGHLIGHTER_H
#define FILARIX_WHIGHLIGHTER_H

#include "filarixglobal.h"

#include <QHash>
#include <QList>
#include <QRegExp>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QVector>

/// Colours the words of a G-code program as its document changes, and holds the marks of faulty
/// lines.
///
/// Six rules, in order: a later one overwrites an earlier one where they overlap. They know no
/// comment: words behind a ";" are coloured like any others. Lower-case words stay plain.
///
/// Owned by the document it is made on.
///
///     new WHighlighter(editor->document());
class FILARIX_EXPORT WHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// What is coloured, and how.
    struct WHighlightingRule
    {
        /// Case-sensitive, and matched anywhere in a line: no word boundary is asked for.
        QRegExp pattern;
        /// Sets the foreground only.
        QTextCharFormat format;
    };

    /// Starts to colour \a parent, which owns the highlighter.
    explicit WHighlighter(QTextDocument *parent);

    /// The six rules, in their order.
    const QVector<WHighlightingRule> &rules() const { return highlightingRules; }

    /// Applies the six rules to \a text, the text of the block that is being highlighted.
    void highlightPatterns(const QString &text);

    /// Gives the whole line the error format if the block that is being highlighted has a mark, and
    /// uses the mark up. Nothing in the library calls it: it is there for a host's own
    /// highlightBlock(), and outside of one it draws nothing.
    void highlightErrorCode(const QString &text);

    /// The marked lines: block number from 0, and the columns at fault, from 0. WGCodeEditer adds
    /// to them. Only the presence of a line counts, and the numbers do not follow the text when
    /// lines are inserted or removed. A number beyond the document is held and never matches.
    QHash<int, QList<int>> errorLines;

protected:
    /// Applies the rules and leaves the marks alone: they are recorded, not drawn.
    void highlightBlock(const QString &text) override;

private:
    void addRule(const char *pattern, QTextCharFormat &format, Qt::GlobalColor foreground);

    QVector<WHighlightingRule> highlightingRules;
    /// Unread; part of the exported class's layout.
    QRegExp blockStartExpression;
    QRegExp blockEndExpression;
    QTextCharFormat preparatoryFormat;
    QTextCharFormat auxiliaryFormat;
    QTextCharFormat addressFormat;
    QTextCharFormat feedFormat;
    QTextCharFormat speedFormat;
    QTextCharFormat toolFormat;
    QTextCharFormat errorFormat;
};

#endif // FILARIX_WHIGHLIGHTER_H
