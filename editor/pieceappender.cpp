// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "pieceappender_p.h"

#include "compat.h"
#include "linegauge_p.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimerEvent>

#include <cmath>

namespace {

/// Milliseconds between two paintings of the editor while a program goes in; and until the first,
/// which shows that it does.
const int paintInterval = 200;
const int firstPaintInterval = 50;

/// Distances from the last block for which it is noted whether they were passed.
const int passedLimit = 1 << 16;

const char adjustName[] = "_q_adjustScrollbars";
const char showOrHideName[] = "_q_showOrHideScrollBars";

/// The width of a line that nobody has asked for.
const int notGauged = LineGauge::unknown - 1;

PieceAppender *innermost = nullptr;

/// For a while, a flag has another value.
class Flagged
{
public:
    Flagged(bool &flag, bool value) : m_flag(flag), m_before(flag) { m_flag = value; }
    ~Flagged() { m_flag = m_before; }

private:
    bool &m_flag;
    const bool m_before;
};

/// For a while, an object keeps its signals to itself.
class Silenced
{
public:
    explicit Silenced(QObject *object) : m_object(object), m_before(object->blockSignals(true)) {}
    ~Silenced() { m_object->blockSignals(m_before); }

private:
    QObject *m_object;
    const bool m_before;
};

/// For a while, a widget takes no requests to be painted.
class Unpainted
{
public:
    explicit Unpainted(QWidget *widget)
        : m_widget(widget), m_before(widget->testAttribute(Qt::WA_UpdatesDisabled))
    {
        m_widget->setAttribute(Qt::WA_UpdatesDisabled, true);
    }
    ~Unpainted() { m_widget->setAttribute(Qt::WA_UpdatesDisabled, m_before); }

private:
    QWidget *m_widget;
    const bool m_before;
};

struct LayoutAccess : QAbstractTextDocumentLayout
{
    using QAbstractTextDocumentLayout::documentChanged;
};

/// Whether formats change how a text is painted and not how wide and high it is.
bool isColourOnly(const QTextCharFormat &format)
{
    const int count = format.propertyCount();
    return count == 0 || (count == 1 && format.hasProperty(QTextFormat::ForegroundBrush));
}

bool isColourOnly(const QTextLayout *layout)
{
    const Compat::FormatRanges ranges = Compat::formats(layout);
    for (const QTextLayout::FormatRange &range : ranges) {
        if (!isColourOnly(range.format))
            return false;
    }
    return true;
}

bool isShownAsNeeded(const QScrollBar *bar, Qt::ScrollBarPolicy policy, QWidget *view)
{
    const bool isNeeded = policy == Qt::ScrollBarAlwaysOn
                          || (policy == Qt::ScrollBarAsNeeded && bar->minimum() < bar->maximum());
    return bar->isVisibleTo(view) == isNeeded;
}

bool isPlain(const QTextBlock &block)
{
    if (block.charFormat().propertyCount() > 0 || block.blockFormat().propertyCount() > 0)
        return false;
    for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
        if (it.fragment().charFormat().propertyCount() > 0)
            return false;
    }
    return true;
}

} // namespace

PieceAppender::PieceAppender(QPlainTextEdit *view, BlockFormatter *formatter,
                             const ViewAccess &access)
    : m_view(view)
    , m_formatter(formatter)
    , m_access(access)
    , m_outer(innermost)
    , m_hasPainted(false)
    , m_isRelaidOut(false)
    , m_isHolding(false)
    , m_isInserting(false)
    , m_leavesBars(false)
    , m_blocks(0)
    , m_top(0)
    , m_firstKnown(-1)
    , m_revision(0)
    , m_lineHeight(0)
    , m_width(0)
    , m_asked(-1)
    , m_firstOfPage(-1)
    , m_lastOfPage(-1)
{
    innermost = this;
    takeReactions();
}

PieceAppender::~PieceAppender()
{
    innermost = m_outer;
    giveReactionsBack();
    if (m_timer.isActive())
        paintNow();
}

bool PieceAppender::holdsPaintingOf(const QPlainTextEdit *view)
{
    for (const PieceAppender *appender = innermost; appender; appender = appender->m_outer) {
        if (appender->m_view == view && appender->m_isHolding)
            return true;
    }
    return false;
}

bool PieceAppender::areBarsAsNeeded(QPlainTextEdit *view)
{
    return isShownAsNeeded(view->horizontalScrollBar(), view->horizontalScrollBarPolicy(), view)
           && isShownAsNeeded(view->verticalScrollBar(), view->verticalScrollBarPolicy(), view);
}

void PieceAppender::append(const QString &text, int lineCount)
{
    if (m_formatter)
        m_formatter->expect(text, document()->isEmpty() ? 0 : document()->characterCount());
    if (canAppend(lineCount)) {
        appendUnseen(text, lineCount);
    } else {
        leaveDocument();
        m_view->appendPlainText(text);
    }
    if (m_formatter)
        m_formatter->stopExpecting();
}

/// Whether there is anything to spare, and the result is known to be the toolkit's.
bool PieceAppender::canAppend(int lineCount) const
{
    const QTextCursor cursor = m_view->textCursor();
    return m_control && m_view->viewport()->isVisible() && m_view->viewport()->updatesEnabled()
           && !m_view->centerOnScroll() && document()->maximumBlockCount() == 0 && lineCount > 1
           && cursor.charFormat().propertyCount() == 0 && cursor.blockFormat().propertyCount() == 0;
}

void PieceAppender::appendUnseen(const QString &text, int lineCount)
{
    watchDocument();
    m_isRelaidOut = false;
    if (m_firstKnown >= 0 && !isCurrent())
        forget();
    const int top = m_access.firstVisibleBlock().blockNumber();
    if (top != m_top || documentWidth() != m_width)
        noteLayoutFrom(top);
    const bool wasAtEnd = isAtEnd();
    layOutAhead(lineCount);
    insert(text, lineCount);
    if (m_layout != document()->documentLayout()) {
        QMetaObject::invokeMethod(m_view, adjustName, Qt::DirectConnection);
        return; // a receiver has set another document, or another layout
    }
    // The layout of the block that was the last is gone.
    m_lastOfPage = qMin(m_lastOfPage, m_blocks - 2);
    if (m_isRelaidOut || documentWidth() != m_width)
        noteLayoutFrom(top);
    fitScrollBars();
    if (wasAtEnd)
        followEnd();
    m_top = m_access.firstVisibleBlock().blockNumber();
    if (m_firstKnown < 0)
        learnPage();
    if (m_isRelaidOut)
        paintWindowLater();
}

// Taking over reactions

/// Should the view of a toolkit react in another way, all is left to it.
void PieceAppender::takeReactions()
{
    Q_FOREACH (QObject *child, m_view->children()) {
        const QMetaObject *const meta = child->metaObject();
        if (meta->indexOfSignal("documentSizeChanged(QSizeF)") < 0
            || meta->indexOfSignal("updateRequest(QRectF)") < 0)
            continue;
        if (!disconnect(child, SIGNAL(updateRequest(QRectF)), m_view,
                        SLOT(_q_repaintContents(QRectF))))
            return;
        if (!disconnect(child, SIGNAL(documentSizeChanged(QSizeF)), m_view,
                        SLOT(_q_adjustScrollbars()))) {
            connect(child, SIGNAL(updateRequest(QRectF)), m_view, SLOT(_q_repaintContents(QRectF)));
            return;
        }
        connect(child, SIGNAL(updateRequest(QRectF)), SLOT(repaintContents(QRectF)));
        connect(child, SIGNAL(documentSizeChanged(QSizeF)), SLOT(adjustScrollBars()));
        m_control = child;
        takeReactionTo(m_view->horizontalScrollBar());
        takeReactionTo(m_view->verticalScrollBar());
        return;
    }
}

void PieceAppender::takeReactionTo(QScrollBar *scrollBar)
{
    if (!disconnect(scrollBar, SIGNAL(rangeChanged(int, int)), m_view,
                    SLOT(_q_showOrHideScrollBars())))
        return;
    connect(scrollBar, SIGNAL(rangeChanged(int, int)), SLOT(showOrHideScrollBars()));
    m_bars.append(scrollBar);
}

void PieceAppender::giveReactionsBack()
{
    if (!m_view || !m_control)
        return;
    Q_FOREACH (const QPointer<QScrollBar> &scrollBar, m_bars) {
        if (!scrollBar)
            continue;
        scrollBar->disconnect(this);
        connect(scrollBar, SIGNAL(rangeChanged(int, int)), m_view, SLOT(_q_showOrHideScrollBars()),
                Qt::QueuedConnection);
    }
    m_control->disconnect(this);
    connect(m_control, SIGNAL(updateRequest(QRectF)), m_view, SLOT(_q_repaintContents(QRectF)));
    connect(m_control, SIGNAL(documentSizeChanged(QSizeF)), m_view, SLOT(_q_adjustScrollbars()));
}

void PieceAppender::watchDocument()
{
    QAbstractTextDocumentLayout *const layout = document()->documentLayout();
    if (m_document == document() && m_layout == layout)
        return;
    leaveDocument();
    m_document = document();
    m_layout = layout;
    connect(m_document, SIGNAL(contentsChange(int, int, int)),
            SLOT(settleBlockCount(int, int, int)));
    connect(m_layout, SIGNAL(update(QRectF)), SLOT(noteUpdate(QRectF)));
    forget();
}

void PieceAppender::leaveDocument()
{
    if (m_document)
        m_document->disconnect(this);
    if (m_layout)
        m_layout->disconnect(this);
    m_document = nullptr;
    m_layout = nullptr;
    m_firstKnown = -1;
}

void PieceAppender::adjustScrollBars()
{
    if (m_leavesBars)
        return;
    if (m_asked < 0) {
        QMetaObject::invokeMethod(m_view, adjustName, Qt::DirectConnection);
        return;
    }
    noteAsked();
    fitScrollBars();
}

/// The view lays itself out at each new range; that changes nothing but where a bar comes or goes.
void PieceAppender::showOrHideScrollBars()
{
    if (!areBarsAsNeeded(m_view))
        QMetaObject::invokeMethod(m_view, showOrHideName, Qt::QueuedConnection);
}

/// What the view does when its document wants to be painted.
void PieceAppender::repaintContents(const QRectF &rect)
{
    QWidget *const viewport = m_view->viewport();
    QRect dirty = viewport->rect();
    if (rect.isValid()) {
        const QPoint offset =
            QPoint(int(-m_access.contentOffset().x()), int(-m_access.contentOffset().y()));
        const QRectF visible(offset, viewport->size());
        dirty = rect.adjusted(-1, -1, 1, 1).intersected(visible).toAlignedRect();
        if (dirty.isEmpty())
            return;
        dirty.translate(-offset);
    }
    if (m_isHolding)
        paintLater();
    else
        viewport->update(dirty);
    requestUpdate(dirty, 0);
}

void PieceAppender::requestUpdate(const QRect &rect, int dy)
{
    QMetaObject::invokeMethod(m_view, "updateRequest", Qt::DirectConnection, Q_ARG(QRect, rect),
                              Q_ARG(int, dy));
}

void PieceAppender::paintLater()
{
    if (!m_timer.isActive())
        m_timer.start(m_hasPainted ? paintInterval : firstPaintInterval, this);
}

/// A pane that got another size asks for painting by itself.
void PieceAppender::paintWindowLater()
{
    paintLater();
    m_window = m_view->window();
    QCoreApplication::removePostedEvents(m_window, QEvent::UpdateRequest);
}

void PieceAppender::paintNow()
{
    m_timer.stop();
    m_hasPainted = true;
    if (m_view)
        m_view->update();
    if (m_window)
        QCoreApplication::postEvent(m_window, new QEvent(QEvent::UpdateRequest),
                                    Qt::LowEventPriority);
    m_window = nullptr;
}

void PieceAppender::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId())
        paintNow();
}

// A piece

/// What appendPlainText() does to the document.
void PieceAppender::insert(const QString &text, int lineCount)
{
    const Flagged holding(m_isHolding, true);
    const Flagged inserting(m_isInserting, true);
    const Flagged leaving(m_leavesBars, true);
    const QTextCursor own = m_view->textCursor();
    const int revision = document()->revision();
    m_blocks = document()->blockCount();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End); // lays the first line out, as the toolkit does
    if (document()->isEmpty())
        cursor.setCharFormat(own.charFormat());
    else
        cursor.insertBlock(own.blockFormat(), own.charFormat());
    cursor.insertText(text);
    cursor.endEditBlock();
    learnText(text, lineCount, revision);
}

/// Tells the layout of the new blocks before the toolkit does, so that it keeps the document's size
/// to itself: appendPlainText() tells nobody of it.
void PieceAppender::settleBlockCount(int from, int removed, int added)
{
    if (!m_isInserting)
        return;
    m_isInserting = false;
    const QTextBlock last = document()->lastBlock();
    // The formats of the last block have marked its end as changed, too.
    const int marked = Compat::formats(last.layout()).isEmpty() ? 0 : 1;
    const int end = from + marked + added;
    const Silenced silenced(m_layout);
    (m_layout->*(&LayoutAccess::documentChanged))(last.position(), removed + marked,
                                                  end - last.position());
    // What the toolkit finds beyond the end moves the block with the widest line, as it has it, by
    // as many blocks as are new; else that block stays, and none of the new ones is it.
    const int changed = end + Compat::removedCountsAsChanged() * (removed + marked) - 1;
    if (document()->findBlock(changed).isValid() && !m_passed.isEmpty()) {
        m_passed.prepend(QByteArray(qMin(passedLimit, document()->blockCount() - m_blocks), 1));
        m_passed.truncate(passedLimit);
    }
}

QRectF PieceAppender::geometry(const QTextBlock &block)
{
    const int top = m_access.firstVisibleBlock().blockNumber();
    const QRectF rect = m_access.geometry(block);
    noteLayoutFrom(top);
    return rect;
}

bool PieceAppender::isAtEnd()
{
    const QTextBlock top = m_access.firstVisibleBlock();
    const QTextBlock last = document()->lastBlock();
    qreal bottom = 0;
    int steps = 0;
    if (startsAt(top) && areKnown(top, last, &steps))
        bottom = (steps + 1) * m_lineHeight + document()->documentMargin();
    else
        bottom = geometry(last).bottom();
    return bottom + m_access.contentOffset().y() <= m_view->viewport()->rect().bottom();
}

void PieceAppender::fitScrollBars()
{
    const Flagged leaving(m_leavesBars, true);
    if (fitScrollBarsByKnowledge())
        return;
    QMetaObject::invokeMethod(m_view, adjustName, Qt::DirectConnection);
    noteLayoutFrom(document()->blockCount());
}

/// What the view does to fit its scroll bars, but for laying lines out.
bool PieceAppender::fitScrollBarsByKnowledge()
{
    if (!isCurrent() || m_view->centerOnScroll() || !m_view->isVisible())
        return false;
    const qreal margin = document()->documentMargin();
    const qreal visible = m_view->viewport()->height() - margin - 1;
    qreal y = margin;
    int count = 0;
    const QTextBlock last = document()->lastBlock();
    QTextBlock block = last;
    int number = last.blockNumber();
    {
        const Silenced silenced(m_layout);
        for (;; block = block.previous(), --number) {
            if (!block.isValid() || !isKnown(block, number))
                return false;
            y += m_lineHeight;
            if (y > visible)
                break;
            ++count;
        }
    }
    m_firstOfPage = number;
    m_lastOfPage = last.blockNumber();

    const int width = int(document()->size().width());
    QScrollBar *const vertical = bar();
    QScrollBar *const horizontal = m_view->horizontalScrollBar();
    const int maximum = document()->lineCount() - count;
    setRangeUnseen(vertical, maximum);
    setPageStepUnseen(vertical, count);
    {
        const QTextBlock top = m_access.firstVisibleBlock();
        const int line = startsAt(top) ? top.firstLineNumber() : vertical->value();
        const Silenced silenced(vertical);
        vertical->setValue(top.isValid() ? line : maximum);
    }
    setRangeUnseen(horizontal, width - m_view->viewport()->width());
    setPageStepUnseen(horizontal, m_view->viewport()->width());
    m_access.showScrolledLine();
    return true;
}

/// Sets a range with the signals of QScrollBar::setRange(), but for painting.
void PieceAppender::setRangeUnseen(QScrollBar *scrollBar, int maximum)
{
    const int most = qMax(0, maximum);
    if (scrollBar->minimum() == 0 && scrollBar->maximum() == most)
        return;
    if (scrollBar->value() > most || scrollBar->signalsBlocked() || !scrollBar->updatesEnabled()) {
        scrollBar->setRange(0, maximum);
        return;
    }
    {
        const Silenced silenced(scrollBar);
        const Unpainted unpainted(scrollBar);
        scrollBar->setRange(0, maximum);
    }
    paintLater();
    QMetaObject::invokeMethod(scrollBar, "rangeChanged", Qt::DirectConnection, Q_ARG(int, 0),
                              Q_ARG(int, most));
}

/// A page step has no signal.
void PieceAppender::setPageStepUnseen(QScrollBar *scrollBar, int step)
{
    if (scrollBar->pageStep() == step)
        return;
    const Unpainted unpainted(scrollBar);
    scrollBar->setPageStep(step);
    paintLater();
}

void PieceAppender::followEnd()
{
    if (m_view->centerOnScroll()
        && geometry(document()->lastBlock()).bottom() + m_access.contentOffset().y()
               <= m_view->viewport()->rect().bottom())
        return;
    const int end = bar()->maximum();
    if (!scrollUnseen(end))
        bar()->setValue(end);
}

/// Scrolls with the signals and the result of QScrollBar::setValue(), but for painting.
bool PieceAppender::scrollUnseen(int value)
{
    QScrollBar *const scrollBar = bar();
    QWidget *const viewport = m_view->viewport();
    const QTextBlock top = m_access.firstVisibleBlock();
    const QTextBlock target = document()->findBlockByLineNumber(value);
    if (scrollBar->value() >= value || scrollBar->isSliderDown() || scrollBar->signalsBlocked()
        || !viewport->updatesEnabled() || !viewport->isVisible()
        || target.firstLineNumber() != value || !startsAt(top))
        return false;
    int distance = 0;
    if (!findDistance(top, target, &distance))
        return false;
    {
        const Silenced silenced(scrollBar);
        const Unpainted barUnpainted(scrollBar);
        const Unpainted unpainted(viewport);
        // Lines that were laid out just now may have become more.
        scrollBar->setValue(target.firstLineNumber());
        m_access.showScrolledLine();
    }
    const Flagged holding(m_isHolding, true);
    paintLater();
    requestUpdate(viewport->rect(), int(offsetAt(target) - offsetAt(top)) - distance);
    QMetaObject::invokeMethod(scrollBar, "valueChanged", Qt::DirectConnection, Q_ARG(int, value));
    return true;
}

/// By how many pixels the view takes \a target to be below \a top. It looks no farther than two
/// pages.
bool PieceAppender::findDistance(const QTextBlock &top, const QTextBlock &target, int *distance)
{
    int steps = 0;
    if (areKnown(top, target, &steps)) {
        *distance = steps * m_lineHeight;
        return true;
    }
    const qreal y = geometry(target).y();
    *distance = int(y);
    return std::floor(y) == y;
}

// What is known of blocks

void PieceAppender::forget()
{
    m_firstKnown = -1;
    m_firstOfPage = -1;
    m_lastOfPage = -1;
    m_skipped.clear();
    m_passed = QByteArray(passedLimit, 0);
    m_widest.clear();
    m_width = documentWidth();
    findWidest(0, document()->blockCount() - 1);
}

/// Only a view that gives its document another width asks for all of it from the very top. No line
/// is laid out then.
void PieceAppender::noteUpdate(const QRectF &rect)
{
    if (rect.top() < 0)
        return;
    m_firstOfPage = -1;
    m_lastOfPage = -1;
    m_skipped.clear();
    m_widest.clear();
    m_width = documentWidth();
    m_isRelaidOut = true;
}

/// Whether nobody else has changed the document since.
bool PieceAppender::isCurrent() const
{
    return m_firstKnown >= 0 && m_revision == document()->revision()
           && m_font == document()->defaultFont();
}

/// Notes that the lines of a piece have gone in and are as they were.
void PieceAppender::learnText(const QString &text, int lineCount, int revisionBefore)
{
    if (m_firstKnown < 0 || m_document != document())
        return;
    const int keep = m_access.firstVisibleBlock().blockNumber() - m_firstKnown;
    if (keep > 0) {
        m_widths.remove(0, qMin(keep, m_widths.size()));
        m_firstKnown += keep;
    }
    m_widths.insert(m_widths.size(), lineCount, notGauged);
    const bool isAlone = revisionBefore == m_revision && document()->revision() == m_revision + 1;
    m_revision = document()->revision();
    if (isAlone && m_firstKnown + m_widths.size() == document()->blockCount())
        gaugeEnds(text, lineCount);
    else
        forget();
}

/// Gauges the lines of the piece that are on the pages before and behind it: they will be asked
/// for, and to read them back from the document costs more.
void PieceAppender::gaugeEnds(const QString &text, int lineCount)
{
    const int page = m_view->viewport()->height() / qMax(1, m_lineHeight) + 3;
    int *const widths = m_widths.data() + m_widths.size() - lineCount;
    LineGauge &gauge = LineGauge::of(m_font, m_view->viewport());
    const QChar *const chars = text.constData();
    int at = 0;
    int line = 0;
    for (; line < qMin(page, lineCount); ++line) {
        const int found = text.indexOf(QLatin1Char('\n'), at);
        const int end = found < 0 ? text.size() : found;
        widths[line] = gauge.width(chars + at, end - at);
        at = end + 1;
    }
    int end = text.size();
    for (int i = lineCount - 1; i >= qMax(line, lineCount - page); --i) {
        const int start = end > 0 ? text.lastIndexOf(QLatin1Char('\n'), end - 1) + 1 : 0;
        widths[i] = gauge.width(chars + start, end - start);
        end = start - 1;
    }
}

/// Notes what there is to know of the last page, which was just laid out.
void PieceAppender::learnPage()
{
    const QTextBlock last = document()->lastBlock();
    const QTextBlock first = document()->findBlockByLineNumber(bar()->maximum());
    if (!first.isValid() || first == last || first.layout()->lineCount() != 1
        || document()->documentMargin() <= 0)
        return;
    const qreal height = m_layout->blockBoundingRect(first).height();
    if (std::floor(height) != height)
        return;
    m_font = document()->defaultFont();
    m_lineHeight = int(height);
    m_widths.clear();
    LineGauge &gauge = LineGauge::of(m_font, m_view->viewport());
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        const QString text = block.text();
        m_widths.append(isPlain(block) ? gauge.width(text.constData(), text.size())
                                       : int(LineGauge::unknown));
    }
    m_firstKnown = first.blockNumber();
    m_revision = document()->revision();
}

qreal PieceAppender::documentWidth() const
{
    return m_layout->documentSize().width();
}

/// At least the width of the lines of a block; most are never asked for.
int PieceAppender::widthOf(const QTextBlock &block, int number)
{
    const int at = number - m_firstKnown;
    if (at < 0 || at >= m_widths.size())
        return LineGauge::unknown;
    if (m_widths.at(at) == notGauged) {
        const QString text = block.text();
        m_widths[at] =
            LineGauge::of(m_font, m_view->viewport()).width(text.constData(), text.size());
    }
    return m_widths.at(at);
}

/// Whether \a block is known to be as high as all the others. If it may matter to the width of the
/// document, it is laid out.
bool PieceAppender::isKnown(const QTextBlock &block, int number)
{
    const int width = widthOf(block, number);
    const QTextLayout *const layout = block.layout();
    if (width == LineGauge::unknown || !block.isVisible() || block.lineCount() != 1
        || m_view->lineWrapMode() != QPlainTextEdit::NoWrap || !layout->preeditAreaText().isEmpty()
        || !isColourOnly(layout))
        return false;
    if (layout->lineCount() > 0 || (number >= m_firstOfPage && number <= m_lastOfPage))
        return true;
    const int distance = document()->blockCount() - 1 - number;
    if (distance < m_passed.size() && m_passed.at(distance)
        && width + 2 * document()->documentMargin() < documentWidth()) {
        if (m_widest.isEmpty())
            m_skipped.append(number);
        return true;
    }
    m_asked = number;
    m_layout->blockBoundingRect(block);
    noteAsked();
    return true;
}

void PieceAppender::noteAsked()
{
    const int number = m_asked;
    m_asked = -1;
    if (number < 0)
        return;
    const int distance = document()->blockCount() - 1 - number;
    if (distance < m_passed.size())
        m_passed[distance] = 1;
    noteLayout(number, number);
}

/// Lays out what was skipped of the page and could be taken for the widest once there are so many
/// blocks more: the toolkit has laid it out long since.
void PieceAppender::layOutAhead(int added)
{
    if (m_firstOfPage < 0)
        return;
    const Silenced silenced(m_layout);
    const int last = document()->blockCount() - 1;
    for (int number = m_firstOfPage; number <= m_lastOfPage; ++number) {
        const int distance = last + added - number;
        if (distance >= m_passed.size() || !m_passed.at(distance))
            m_layout->blockBoundingRect(document()->findBlockByNumber(number));
    }
}

/// Notes what may have changed as the blocks from \a first to \a last were laid out.
///
/// The layout keeps the number of the block with the widest line. The number moves, as blocks are
/// added, to others; when that block is laid out and is narrower, the widest is looked for anew. So
/// it is one of the blocks that are as wide as the document, or as far from the end as one of those
/// was; or, as long as no block is that wide, it is where it was before.
void PieceAppender::noteLayout(int first, int last)
{
    const qreal width = documentWidth();
    if (width == m_width && m_widest.isEmpty())
        return;
    if (width != m_width) {
        m_widest.clear();
        m_passed.fill(1);
        if (width < m_width) {
            layOutSkipped();
            first = 0;
            last = document()->blockCount() - 1;
        }
        m_width = documentWidth();
    }
    findWidest(first, last);
}

/// Notes what may have changed as the view looked at a page or two from \a top on, and at the last.
void PieceAppender::noteLayoutFrom(int top)
{
    const int pages =
        3 * m_view->viewport()->height() / qMax(1, m_view->fontMetrics().height()) + 3;
    const int last = document()->blockCount() - 1;
    if (top < last - pages)
        noteLayout(top, qMin(top + pages, last - pages));
    noteLayout(last - pages, last);
}

/// Now that the document is as wide as its widest line, each line counts.
void PieceAppender::layOutSkipped()
{
    const Silenced silenced(m_layout);
    Q_FOREACH (int number, m_skipped)
        m_layout->blockBoundingRect(document()->findBlockByNumber(number));
    m_skipped.clear();
}

/// Looks for blocks that are as wide as the document.
void PieceAppender::findWidest(int first, int last)
{
    const qreal widest = m_width - 2 * document()->documentMargin();
    QTextBlock block = document()->findBlockByNumber(qMax(0, first));
    for (; block.isValid() && block.blockNumber() <= last; block = block.next()) {
        const QTextLayout *const layout = block.layout();
        for (int i = 0; i < layout->lineCount(); ++i) {
            if (layout->lineAt(i).naturalTextWidth() < widest)
                continue;
            if (!m_widest.contains(block.blockNumber()))
                m_widest.append(block.blockNumber());
            break;
        }
    }
    Q_FOREACH (int number, m_widest) {
        const int distance = document()->blockCount() - 1 - number;
        if (distance < m_passed.size())
            m_passed[distance] = 0;
    }
}

/// Whether all blocks are known that the view looks at to tell where \a target is, and how many
/// lines below \a top it takes it to be.
bool PieceAppender::areKnown(const QTextBlock &top, const QTextBlock &target, int *steps)
{
    const int first = top.blockNumber();
    if (!isCurrent() || !isKnown(top, first))
        return false;
    const int count = target.blockNumber() - first;
    const int far = 2 * m_view->viewport()->height();
    QTextBlock block = top;
    for (*steps = 0; *steps < count && (*steps - 1) * m_lineHeight <= far; ++*steps) {
        block = block.next();
        if (!isKnown(block, first + *steps + 1))
            return false;
    }
    return count >= 0 && isKnown(target, first + count);
}

/// How far below the pane's upper edge \a top starts, if nothing of it is scrolled out.
qreal PieceAppender::offsetAt(const QTextBlock &top) const
{
    return top.blockNumber() == 0 ? document()->documentMargin() : 0;
}

bool PieceAppender::startsAt(const QTextBlock &top) const
{
    return m_access.contentOffset().y() == offsetAt(top);
}
