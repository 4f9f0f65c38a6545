// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef BLOCKFORMATTER_P_H
#define BLOCKFORMATTER_P_H

#include "compat.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QVarLengthArray>
#include <QVector>

class WHighlighter;

/// Gives the changed blocks of a document the formats that a WHighlighter gives them, but many
/// blocks at a time.
///
/// The toolkit reads each block's text back, and writes and compares a format for each of its
/// characters: in a long program that costs as much as the text itself. This takes over the
/// toolkit's reaction to a change of the document, and nothing else of it: rehighlight() and the
/// rest stay the toolkit's. So does the connection between the two: whoever removes it, in whatever
/// way, ends the colouring. Not for a subclass with a highlightBlock() of its own.
///
/// Owned by the highlighter.
class BlockFormatter : public QObject
{
    Q_OBJECT

public:
    explicit BlockFormatter(WHighlighter *highlighter);

    /// The formatter of a highlighter that has one.
    static BlockFormatter *of(WHighlighter *highlighter);

    /// Colours the whole document, with the signals of QSyntaxHighlighter::rehighlight(). Blocks
    /// whose formats are right stay as they are and are not laid out again.
    void formatAll();

    /// Tells that \a text is about to be inserted at \a position, the start of a block, so that it
    /// need not be read back. Holds until stopExpecting().
    void expect(const QString &text, int position);
    void stopExpecting();

private Q_SLOTS:
    void formatChange(int from, int removed, int added);

private:
    /// Which blocks count as changed, and are laid out and painted anew.
    enum Marking {
        OtherColours, ///< those whose formats differ from what they were
        AnyColours    ///< those too that have formats and keep them, as the toolkit has it
    };

    void connectToolkit();
    bool disconnectToolkit();
    bool isHighlighted() const;
    void formatBlocks(const QTextBlock &first, const QTextBlock &last, Marking marking);
    void findWords(const QChar *text, int size);
    bool setRanges(const QTextBlock &block);
    Compat::FormatRanges ranges();
    void fill(Compat::FormatRanges *ranges) const;
    bool areSet(const Compat::FormatRanges &ranges) const;

    struct Word
    {
        int start;
        int length;
        int format; ///< index of m_formats
    };

    WHighlighter *m_highlighter;
    QPointer<QTextDocument> m_document; // a host may give the highlighter another one
    // Of the connection between the two; by name it would cost more than colouring a line.
    const int m_changeSignal;
    const int m_toolkitSlot;
    bool m_hasSeenAChange;
    QVector<QTextCharFormat> m_formats;
    QVector<int> m_formatOfRule;
    QVarLengthArray<Word, 32> m_words; // of the block at hand; neighbours of one format are one
    QVector<Compat::FormatRanges> m_ranges; // that were handed out last, by their number
    QString m_expectedText;
    int m_expectedPosition;
};

/// Tells an editor whether its highlighter still exists: the document owns that one, and a host may
/// set a document of its own.
///
/// Owned by the editor.
class HighlighterWatch : public QObject
{
    Q_OBJECT

public:
    HighlighterWatch(WHighlighter *highlighter, QObject *editor);

    /// The highlighter that an editor was made with; null once it is deleted.
    static WHighlighter *highlighterOf(const QObject *editor);

private:
    const QPointer<WHighlighter> m_highlighter;
};

#endif // BLOCKFORMATTER_P_H
