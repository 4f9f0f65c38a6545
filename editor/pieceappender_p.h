// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PIECEAPPENDER_P_H
#define PIECEAPPENDER_P_H

#include "blockformatter_p.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QString>

/// Takes many pieces of text at the end of an editor, as appendPlainText() does, but spares it the
/// work of being looked at between them: painting, and laying out the last page to know how far it
/// scrolls. The editor's own state comes back on every way out. What a parent holds back is the
/// parent's business: updatesEnabled() would report it, and it would then stick to the editor.
class PieceAppender
{
public:
    PieceAppender(QPlainTextEdit *view, BlockFormatter *formatter);
    ~PieceAppender();

    static bool isAtWorkOn(const QPlainTextEdit *view);

    void append(const QString &text);

    /// Serves events; the view is up to date meanwhile if the last time is long ago. False when a
    /// receiver deleted the view.
    bool processEvents();

private:
    void appendUnseen(const QString &text);
    void rest();
    void wake();
    QScrollBar *bar() const { return m_view->verticalScrollBar(); }

    // A receiver of an event may delete the view, give it another scroll bar, or another document
    // and with it no formatter.
    QPointer<QPlainTextEdit> m_view;
    QPointer<BlockFormatter> m_formatter;
    bool m_wasEnabled;
    bool m_wasCentring;
    bool m_followsEnd;
    int m_restingValue;
    QElapsedTimer m_time;
};

#endif // PIECEAPPENDER_P_H
