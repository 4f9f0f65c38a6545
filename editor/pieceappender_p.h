// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PIECEAPPENDER_P_H
#define PIECEAPPENDER_P_H

#include "blockformatter_p.h"

#include <QBasicTimer>
#include <QByteArray>
#include <QFont>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QString>
#include <QVector>

#include <functional>

class QAbstractTextDocumentLayout;

/// What only a view itself may ask of its base class.
struct ViewAccess
{
    std::function<QTextBlock()> firstVisibleBlock;
    std::function<QPointF()> contentOffset;
    /// Lays out what lies between the top of the view and the block, as far as two pages.
    std::function<QRectF(const QTextBlock &block)> geometry;
    /// Shows the line that the vertical scroll bar stands at.
    std::function<void()> showScrolledLine;
};

/// Appends many pieces of text to an editor, as appendPlainText() does, with the same result after
/// each: in the document, in the view, and in what their signals tell.
///
/// What it spares is painting, which comes every 200 ms at the most after the first one, and laying
/// out lines to learn what is known without: that they are as high as all the others and narrower
/// than the pane. Where that is not known, lines are laid out as the toolkit does.
///
/// Nothing of the view is switched off meanwhile. Three reactions of the view go through this
/// object: to scroll bars that have to fit, to those that have to come or go, and to lines that
/// have to be painted.
class PieceAppender : public QObject
{
    Q_OBJECT

public:
    PieceAppender(QPlainTextEdit *view, BlockFormatter *formatter, const ViewAccess &access);
    ~PieceAppender() override;

    /// The text has \a lineCount lines.
    void append(const QString &text, int lineCount);

    /// Whether what asks for painting has to wait: it is painted soon, with all the rest.
    static bool holdsPaintingOf(const QPlainTextEdit *view);

    /// Whether neither scroll bar is still to come or to go.
    static bool areBarsAsNeeded(QPlainTextEdit *view);

protected:
    void timerEvent(QTimerEvent *event) override;

private Q_SLOTS:
    void adjustScrollBars();
    void showOrHideScrollBars();
    void repaintContents(const QRectF &rect);
    void noteUpdate(const QRectF &rect);
    void settleBlockCount(int from, int removed, int added);

private:
    bool canAppend(int lineCount) const;
    void takeReactions();
    void takeReactionTo(QScrollBar *scrollBar);
    void giveReactionsBack();
    void watchDocument();
    void leaveDocument();
    void appendUnseen(const QString &text, int lineCount);
    void insert(const QString &text, int lineCount);

    bool isAtEnd();
    void fitScrollBars();
    bool fitScrollBarsByKnowledge();
    void setRangeUnseen(QScrollBar *scrollBar, int maximum);
    void setPageStepUnseen(QScrollBar *scrollBar, int step);
    void followEnd();
    bool scrollUnseen(int value);
    bool findDistance(const QTextBlock &top, const QTextBlock &target, int *distance);

    void forget();
    void learnText(const QString &text, int lineCount, int revisionBefore);
    void gaugeEnds(const QString &text, int lineCount);
    void learnPage();
    void layOutSkipped();
    void layOutAhead(int added);
    bool isCurrent() const;
    int widthOf(const QTextBlock &block, int number);
    bool isKnown(const QTextBlock &block, int number);
    void noteAsked();
    bool areKnown(const QTextBlock &top, const QTextBlock &target, int *steps);
    void noteLayout(int first, int last);
    void noteLayoutFrom(int top);
    void findWidest(int first, int last);
    qreal documentWidth() const;
    QRectF geometry(const QTextBlock &block);
    qreal offsetAt(const QTextBlock &top) const;
    bool startsAt(const QTextBlock &top) const;

    void requestUpdate(const QRect &rect, int dy);
    void paintLater();
    void paintWindowLater();
    void paintNow();

    QTextDocument *document() const { return m_view->document(); }
    QScrollBar *bar() const { return m_view->verticalScrollBar(); }

    // A receiver of an event may delete the view, give it another scroll bar, or another document
    // and with it no formatter.
    QPointer<QPlainTextEdit> m_view;
    QPointer<BlockFormatter> m_formatter;
    const ViewAccess m_access;
    QList<QPointer<QScrollBar>> m_bars; ///< whose reactions go through here
    QPointer<QObject> m_control;        ///< whose reactions go through here
    QPointer<QTextDocument> m_document; ///< that is watched
    QPointer<QAbstractTextDocumentLayout> m_layout;
    PieceAppender *m_outer;     ///< the one at work on another view, or on the same
    QBasicTimer m_timer;        ///< runs while there is something to paint
    QPointer<QWidget> m_window; ///< that waits with it
    bool m_hasPainted;          ///< since the first piece
    bool m_isRelaidOut;

    bool m_isHolding; ///< painting
    bool m_isInserting;
    bool m_leavesBars; ///< as they are, until the piece is in
    int m_blocks;      ///< before the piece
    int m_top;         ///< block of the view, behind the last piece

    // What is known of the blocks from m_firstKnown on, to the end of the document of m_revision;
    // of none if that is -1.
    int m_firstKnown;
    int m_revision;
    QVector<int> m_widths;
    int m_lineHeight;
    QFont m_font;

    // What the layout may take for the block with the widest line.
    qreal m_width;          ///< of the document
    QVector<int> m_widest;  ///< blocks as wide as that; none if no line counted so far
    QByteArray m_passed;    ///< by the distance from the last block: 1 if it is another
    int m_asked;            ///< block that is being laid out here; none if that is -1
    QVector<int> m_skipped; ///< blocks that the toolkit would have laid out
    int m_firstOfPage;      ///< of the blocks that were looked at last to fit the scroll bars
    int m_lastOfPage;
};

#endif // PIECEAPPENDER_P_H
