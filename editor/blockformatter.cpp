// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "blockformatter_p.h"

#include "gcodewords_p.h"
#include "whighlighter.h"

#include <QTextCursor>
#include <QTextLayout>

#include <algorithm>

namespace {

/// Lines of more words are rare.
const int keptRanges = 16;

/// The lines of a text that was inserted, in step with the blocks that it became.
class LinesInStep
{
public:
    LinesInStep(const QString &text, int position)
        : m_text(text), m_position(position), m_at(text.isNull() ? lost : notReached)
    {}

    /// The text of the block that follows the one of the last call; null if it is not one of the
    /// lines. Other line ends than "\n" and changes by others lead out of step, and there it ends.
    const QChar *lineOf(const QTextBlock &block, int length)
    {
        if (m_at == notReached && block.position() == m_position)
            m_at = 0;
        if (m_at < 0)
            return nullptr;
        const int behind = m_at + length;
        const bool isLine = behind == m_text.size()
                            || (behind < m_text.size() && m_text.at(behind) == QLatin1Char('\n'));
        if (!isLine) {
            m_at = lost;
            return nullptr;
        }
        const QChar *const line = m_text.constData() + m_at;
        m_at = behind == m_text.size() ? int(lost) : behind + 1;
        return line;
    }

private:
    enum { lost = -1, notReached = -2 };

    const QString m_text;
    const int m_position;
    int m_at;
};

bool isEqual(const QTextLayout::FormatRange &a, const QTextLayout::FormatRange &b)
{
    return a.start == b.start && a.length == b.length && a.format == b.format;
}

bool areEqual(const Compat::FormatRanges &a, const Compat::FormatRanges &b)
{
    return a.size() == b.size()
           && std::equal(a.constBegin(), a.constEnd(), b.constBegin(), isEqual);
}

/// Ranges for a layout that shows in its midst what an input method is composing: that keeps its
/// own formats, and ours make room for it.
Compat::FormatRanges aroundPreedit(const Compat::FormatRanges &ranges, const QTextLayout &layout)
{
    const int preeditStart = layout.preeditAreaPosition();
    const int preeditLength = layout.preeditAreaText().length();
    Compat::FormatRanges result;
    Q_FOREACH (const QTextLayout::FormatRange &range, Compat::formats(&layout)) {
        if (range.start >= preeditStart
            && range.start + range.length <= preeditStart + preeditLength)
            result.append(range);
    }
    Q_FOREACH (QTextLayout::FormatRange range, ranges) {
        if (range.start >= preeditStart)
            range.start += preeditLength;
        else if (range.start + range.length >= preeditStart)
            range.length += preeditLength;
        result.append(range);
    }
    return result;
}

} // namespace

BlockFormatter::BlockFormatter(WHighlighter *highlighter)
    : QObject(highlighter)
    , m_highlighter(highlighter)
    , m_document(highlighter->document())
    , m_changeSignal(m_document->metaObject()->indexOfSignal("contentsChange(int,int,int)"))
    , m_toolkitSlot(highlighter->metaObject()->indexOfSlot("_q_reformatBlocks(int,int,int)"))
    , m_hasSeenAChange(false)
    , m_expectedPosition(0)
{
    Q_FOREACH (const WHighlighter::WHighlightingRule &rule, highlighter->rules()) {
        if (!m_formats.contains(rule.format))
            m_formats.append(rule.format);
        m_formatOfRule.append(m_formats.indexOf(rule.format));
    }
    // Ours comes before the toolkit's. Should a toolkit react in another way, it goes on colouring
    // by itself.
    if (!disconnectToolkit())
        return;
    connect(m_document, SIGNAL(contentsChange(int, int, int)), SLOT(formatChange(int, int, int)));
    connectToolkit();
}

void BlockFormatter::connectToolkit()
{
    QMetaObject::connect(m_document, m_changeSignal, m_highlighter, m_toolkitSlot);
}

/// False when the toolkit would not have reacted.
bool BlockFormatter::disconnectToolkit()
{
    return m_toolkitSlot >= 0
           && QMetaObject::disconnect(m_document, m_changeSignal, m_highlighter, m_toolkitSlot);
}

BlockFormatter *BlockFormatter::of(WHighlighter *highlighter)
{
    return highlighter->findChild<BlockFormatter *>();
}

/// False once a host has taken the highlighter off, or put it on another document, where the
/// toolkit reacts by itself.
bool BlockFormatter::isHighlighted() const
{
    return m_document && m_highlighter->document() == m_document;
}

void BlockFormatter::formatAll()
{
    if (!isHighlighted()) {
        m_highlighter->rehighlight();
        return;
    }
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    formatBlocks(m_document->begin(), m_document->lastBlock(), OtherColours);
    cursor.endEditBlock();
}

void BlockFormatter::expect(const QString &text, int position)
{
    m_expectedText = text;
    m_expectedPosition = position;
}

void BlockFormatter::stopExpecting()
{
    m_expectedText = QString();
}

void BlockFormatter::formatChange(int from, int removed, int added)
{
    // The toolkit's slot is next. It is off until we are done, and so has nothing to do.
    if (!disconnectToolkit())
        return;
    // What was removed may have joined the last block with the one behind it.
    const QTextBlock last = m_document->findBlock(from + added + (removed > 0 ? 1 : 0));
    formatBlocks(m_document->findBlock(from), last.isValid() ? last : m_document->lastBlock(),
                 AnyColours);
    if (!m_hasSeenAChange)
        Compat::forgetFirstColouring(m_highlighter); // the first block is right, so it stays
    m_hasSeenAChange = true;
    connectToolkit();
}

void BlockFormatter::formatBlocks(const QTextBlock &first, const QTextBlock &last, Marking marking)
{
    LinesInStep lines(m_expectedText, m_expectedPosition);
    stopExpecting(); // a change that a receiver of this one makes is another
    QTextBlock firstChanged;
    QTextBlock lastChanged;
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        const int length = block.length() - 1;
        if (const QChar *line = lines.lineOf(block, length))
            findWords(line, length);
        else
            findWords(block.text().constData(), length);
        const bool keepsAny = marking == AnyColours && !m_words.isEmpty();
        if (setRanges(block) || keepsAny) {
            if (!firstChanged.isValid())
                firstChanged = block;
            lastChanged = block;
        }
        if (block == last)
            break;
    }
    if (firstChanged.isValid()) {
        const int from = firstChanged.position();
        m_document->markContentsDirty(from, lastChanged.position() + lastChanged.length() - from);
    }
}

void BlockFormatter::findWords(const QChar *text, int size)
{
    m_words.clear();
    for (GCodeWords::Scanner words(text, size); words.next();) {
        const Word word = {words.start(), words.length(), m_formatOfRule.at(words.rule())};
        if (!m_words.isEmpty()) {
            Word &before = m_words[m_words.size() - 1];
            if (before.start + before.length == word.start && before.format == word.format) {
                before.length += word.length;
                continue;
            }
        }
        m_words.append(word);
    }
}

bool BlockFormatter::setRanges(const QTextBlock &block)
{
    QTextLayout *const layout = block.layout();
    const Compat::FormatRanges before = Compat::formats(layout);
    if (layout->preeditAreaText().isEmpty()) {
        if (areSet(before))
            return false;
        Compat::setFormats(layout, ranges());
        return true;
    }
    const Compat::FormatRanges wanted = aroundPreedit(ranges(), *layout);
    if (areEqual(wanted, before))
        return false;
    Compat::setFormats(layout, wanted);
    return true;
}

/// The words as the toolkit takes them. Ranges are made once for each number of words, and then
/// filled anew: most lines have the same formats in the same order, and to copy one costs as much
/// as to find a word. They have the memory that they need: a layout keeps a copy as large as they
/// are.
Compat::FormatRanges BlockFormatter::ranges()
{
    const int count = m_words.size();
    if (count > keptRanges) {
        Compat::FormatRanges many;
        fill(&many);
        return many;
    }
    if (m_ranges.isEmpty())
        m_ranges.resize(keptRanges + 1);
    fill(&m_ranges[count]);
    return m_ranges.at(count);
}

void BlockFormatter::fill(Compat::FormatRanges *ranges) const
{
    ranges->reserve(m_words.size());
    while (ranges->size() < m_words.size())
        ranges->append(QTextLayout::FormatRange());
    Compat::FormatRanges::iterator range = ranges->begin();
    for (const Word &word : m_words) {
        range->start = word.start;
        range->length = word.length;
        if (range->format != m_formats.at(word.format))
            range->format = m_formats.at(word.format);
        ++range;
    }
}

bool BlockFormatter::areSet(const Compat::FormatRanges &ranges) const
{
    if (ranges.size() != m_words.size())
        return false;
    for (int i = 0; i < ranges.size(); ++i) {
        const Word &word = m_words.at(i);
        const QTextLayout::FormatRange &range = ranges.at(i);
        if (range.start != word.start || range.length != word.length
            || range.format != m_formats.at(word.format))
            return false;
    }
    return true;
}

HighlighterWatch::HighlighterWatch(WHighlighter *highlighter, QObject *editor)
    : QObject(editor), m_highlighter(highlighter)
{}

WHighlighter *HighlighterWatch::highlighterOf(const QObject *editor)
{
    return editor->findChild<HighlighterWatch *>()->m_highlighter;
}
