// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "pieceappender_p.h"

#include "compat.h"

#include <QCoreApplication>
#include <QTextCursor>
#include <QTextDocument>
#include <QVariant>

namespace {

/// Milliseconds between two paintings of the editor while a program goes in.
const int paintInterval = 200;

/// Set on an editor while PieceAppender works on it.
const char isAppendingName[] = "_filarix_isAppending";

} // namespace

PieceAppender::PieceAppender(QPlainTextEdit *view, BlockFormatter *formatter)
    : m_view(view)
    , m_formatter(formatter)
    , m_wasEnabled(!view->testAttribute(Qt::WA_ForceUpdatesDisabled))
    , m_wasCentring(view->centerOnScroll())
{
    m_view->setProperty(isAppendingName, true);
    m_time.start();
    rest();
}

PieceAppender::~PieceAppender()
{
    if (!m_view)
        return;
    wake();
    m_view->setProperty(isAppendingName, QVariant());
}

bool PieceAppender::isAtWorkOn(const QPlainTextEdit *view)
{
    return view->property(isAppendingName).toBool();
}

bool PieceAppender::processEvents()
{
    const bool isDue = m_wasEnabled && m_time.elapsed() >= paintInterval;
    if (isDue)
        wake();
    QCoreApplication::processEvents();
    if (!m_view)
        return false;
    if (isDue)
        m_time.restart();
    else if (bar()->value() != m_restingValue)
        wake(); // it was scrolled, perhaps to the end
    else
        return true;
    rest();
    return true;
}

void PieceAppender::rest()
{
    m_view->setUpdatesEnabled(false);
    m_followsEnd = bar()->value() == bar()->maximum();
    // A view that may scroll its last line to the centre knows its range without any layout.
    Compat::setCenterOnScroll(m_view, true);
    m_restingValue = bar()->value();
}

void PieceAppender::wake()
{
    const bool isWhereItWas = bar()->value() == m_restingValue;
    Compat::setCenterOnScroll(m_view, m_wasCentring);
    // A view at its end stays there while text is appended, unless it was scrolled meanwhile.
    if (m_followsEnd && isWhereItWas && m_view->isVisible())
        bar()->setValue(bar()->maximum());
    m_view->setUpdatesEnabled(m_wasEnabled);
}

void PieceAppender::append(const QString &text)
{
    QTextDocument *const document = m_view->document();
    if (m_formatter)
        m_formatter->expect(text, document->isEmpty() ? 0 : document->characterCount());
    if (m_wasCentring || !m_view->isVisible())
        m_view->appendPlainText(text);
    else
        appendUnseen(text);
    if (m_formatter)
        m_formatter->stopExpecting();
}

/// What appendPlainText() does, without its following of the end.
void PieceAppender::appendUnseen(const QString &text)
{
    const QTextCursor own = m_view->textCursor();
    QTextCursor cursor(m_view->document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End);
    if (m_view->document()->isEmpty())
        cursor.setCharFormat(own.charFormat());
    else
        cursor.insertBlock(own.blockFormat(), own.charFormat());
    cursor.insertText(text);
    cursor.endEditBlock();
}
