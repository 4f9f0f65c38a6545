// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "whighlighter.h"

#include "gcodesymbols.h"

#include <QBrush>
#include <QTextBlock>

WHighlighter::WHighlighter(QTextDocument *parent) : QSyntaxHighlighter(parent)
{
    // The comma in the class of the addresses is meant: a comma with a number is coloured too.
    addRule("G[0-9]{1,2}", preparatoryFormat, Qt::darkGreen);
    addRule("M[0-9]{1,2}", auxiliaryFormat, Qt::darkCyan);
    addRule("[X,Y,Z,U,V,W,I,J,K]\\-?\\d+\\.?\\d*", addressFormat, Qt::darkMagenta);
    addRule("F\\-?\\d+\\.?\\d*", feedFormat, Qt::blue);
    addRule("S\\d+", speedFormat, Qt::blue);
    addRule("T[0-9]{1,2}", toolFormat, Qt::darkYellow);

    errorFormat.setFontWeight(QFont::Bold);
    errorFormat.setForeground(QBrush(Qt::red, Qt::SolidPattern));
}

void WHighlighter::highlightPatterns(const QString &text)
{
    Q_FOREACH (const WHighlightingRule &rule, highlightingRules) {
        // A copy, because indexIn() keeps the state of the match in the expression.
        const QRegExp expression(rule.pattern);
        int index = expression.indexIn(text);
        while (index >= 0) {
            const int length = expression.matchedLength();
            setFormat(index, length, rule.format);
            index = expression.indexIn(text, index + length);
        }
    }
}

void WHighlighter::highlightErrorCode(const QString &text)
{
    const int block = currentBlock().blockNumber();
    if (!errorLines.contains(block))
        return;
    setFormat(0, text.length(), errorFormat);
    errorLines.remove(block);
}

void WHighlighter::highlightBlock(const QString &text)
{
    highlightPatterns(text);
}

void WHighlighter::addRule(const char *pattern, QTextCharFormat &format, Qt::GlobalColor foreground)
{
    format.setForeground(QBrush(foreground, Qt::SolidPattern));
    WHighlightingRule rule;
    rule.pattern = QRegExp(QLatin1String(pattern), Qt::CaseSensitive, QRegExp::RegExp);
    rule.format = format;
    highlightingRules.append(rule);
}
