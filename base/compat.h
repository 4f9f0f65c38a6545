// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_COMPAT_H
#define FILARIX_COMPAT_H

// The one header that knows how Qt 4.8 (the panels) and Qt 5.15 (PCs) differ.

#include <QCoreApplication>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QString>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QVector>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0) || defined(Q_WS_QWS)
/// Qt 4 with its support of Qt 3 calls languageChange() itself on QEvent::LanguageChange. Qt 5 and
/// Qt for Embedded Linux, which have none, leave it to changeEvent().
#define FILARIX_LANGUAGE_CHANGE_BY_EVENT 1
#endif

#if QT_VERSION >= QT_VERSION_CHECK(5, 5, 0)
/// A scroll area tells its viewport margins.
#define FILARIX_HAS_VIEWPORT_MARGINS 1
#endif

namespace Compat {

inline void setSectionResizeMode(QHeaderView *header, int section, QHeaderView::ResizeMode mode)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    header->setSectionResizeMode(section, mode);
#else
    header->setResizeMode(section, mode);
#endif
}

/// The 8-bit text that a shell command is made of: Qt 4 writes it in the codec for C strings, which
/// is a host's to choose; Qt 5 has none, and writes Latin-1, as Qt 4 does without a choice.
inline QByteArray toAscii(const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return text.toLatin1();
#else
    return text.toAscii();
#endif
}

/// The formats of a block's text, besides those of its characters.
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
typedef QVector<QTextLayout::FormatRange> FormatRanges;
#else
typedef QList<QTextLayout::FormatRange> FormatRanges;
#endif

inline FormatRanges formats(const QTextLayout *layout)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    return layout->formats();
#else
    return layout->additionalFormats();
#endif
}

inline void setFormats(QTextLayout *layout, const FormatRanges &ranges)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    layout->setFormats(ranges);
#else
    layout->setAdditionalFormats(ranges);
#endif
}

/// Translates a source text that holds non-ASCII characters, written here in UTF-8: Qt 4's tr()
/// would take it for Latin-1.
inline QString translateUtf8(const char *context, const char *text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QCoreApplication::translate(context, text);
#else
    return QCoreApplication::translate(context, text, nullptr, QCoreApplication::UnicodeUTF8);
#endif
}

/// The plain layout of Qt 5 takes what was removed from a document for a part of what has changed.
inline int removedCountsAsChanged()
{
    return QT_VERSION >= QT_VERSION_CHECK(5, 0, 0) ? 1 : 0;
}

/// A new highlighter of Qt 4 colours the document once events are served, unless the document has
/// changed by then. Whoever takes over its reaction to changes has to tell it of the first one.
inline void forgetFirstColouring(QSyntaxHighlighter *highlighter)
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    QMetaObject::invokeMethod(highlighter, "_q_reformatBlocks", Qt::DirectConnection, Q_ARG(int, 0),
                              Q_ARG(int, 0), Q_ARG(int, 0));
#else
    Q_UNUSED(highlighter);
#endif
}

/// The text of the document as it is held: one character a position, a block ends in U+2029.
inline QString rawText(const QTextDocument *document)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 9, 0)
    return document->toRawText();
#else
    // toPlainText() would turn a no-break space into a blank.
    QString text;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        text += block.text() + QChar(QChar::ParagraphSeparator);
    text.chop(1);
    return text;
#endif
}

} // namespace Compat

#endif // FILARIX_COMPAT_H
