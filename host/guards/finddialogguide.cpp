// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/finddialogguide.h"

#include "guards/finddialogfitter.h"
#include "guards/programwalk.h"
#include "wgcodeediter.h"

#include <QApplication>
#include <QEvent>
#include <QTextBlock>

#include <cmath>

namespace {

const char dialogClass[] = "WFindDialog";
// What its messages are about: each takes the place of the one before.
const char searchCause[] = "search";
// What a text needs to be read, as the accessibility guidelines count it.
const double readableContrast = 4.5;

double linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

/// \a text where it can be read on \a ground, or else the better one of black and white.
QColor readable(const QColor &text, const QColor &ground)
{
    if (contrast(text, ground) >= readableContrast)
        return text;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrast(black, ground) > contrast(white, ground) ? black : white;
}

/// Where the selection stands on the screen.
QRect selectionOnScreen(const WGCodeEditer *editor)
{
    QTextCursor cursor = editor->textCursor();
    const int end = cursor.selectionEnd();
    cursor.setPosition(cursor.selectionStart());
    QRect rect = editor->cursorRect(cursor);
    cursor.setPosition(end);
    rect = rect.united(editor->cursorRect(cursor));
    return rect.translated(editor->viewport()->mapToGlobal(QPoint()));
}

/// Where the library's own search, which began at \a from, meets \a hit at once. In a long program
/// the way there is not made twice.
QTextCursor before(const QTextCursor &hit, const QTextCursor &from, bool isBackward)
{
    QTextCursor cursor(hit);
    cursor.setPosition(isBackward ? qMin(hit.selectionEnd(), from.selectionStart())
                                  : hit.selectionStart());
    return cursor;
}

} // namespace

FindDialogGuide::FindDialogGuide(WGCodeEditer *editor) : QObject(editor), m_editor(editor)
{
    makeHitsReadable();
    qApp->installEventFilter(this);
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (widget->inherits(dialogClass))
            take(widget);
    }
}

bool FindDialogGuide::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->inherits(dialogClass))
        take(static_cast<QWidget *>(watched));
    return false;
}

/// Steps between \a dialog and the editor, if the dialog is that editor's.
void FindDialogGuide::take(QWidget *dialog)
{
    if (!disconnect(dialog, SIGNAL(findNext(QString, Qt::CaseSensitivity)), m_editor,
                    SLOT(findNext(QString, Qt::CaseSensitivity))))
        return;
    disconnect(dialog, SIGNAL(findPrevious(QString, Qt::CaseSensitivity)), m_editor,
               SLOT(findPrevious(QString, Qt::CaseSensitivity)));
    connect(dialog, SIGNAL(findNext(QString, Qt::CaseSensitivity)), this,
            SLOT(findNext(QString, Qt::CaseSensitivity)));
    connect(dialog, SIGNAL(findPrevious(QString, Qt::CaseSensitivity)), this,
            SLOT(findPrevious(QString, Qt::CaseSensitivity)));
    m_dialog = dialog;
}

/// What is found is selected, and the dialog has the focus meanwhile. The editor then has a ground
/// of its own, and the application's text upon it.
void FindDialogGuide::makeHitsReadable()
{
    QPalette palette = m_editor->palette();
    const QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive};
    for (QPalette::ColorGroup group : groups) {
        const QColor text = palette.color(group, QPalette::HighlightedText);
        const QColor better = readable(text, palette.color(group, QPalette::Highlight));
        if (better != text)
            palette.setColor(group, QPalette::HighlightedText, better);
    }
    m_editor->setPalette(palette);
}

void FindDialogGuide::findNext(const QString &text, Qt::CaseSensitivity cs)
{
    search(text, QTextDocument::FindFlags(), cs);
}

void FindDialogGuide::findPrevious(const QString &text, Qt::CaseSensitivity cs)
{
    search(text, QTextDocument::FindBackward, cs);
}

void FindDialogGuide::search(const QString &text, QTextDocument::FindFlags flags,
                             Qt::CaseSensitivity cs)
{
    const QTextDocument *document = m_editor->document();
    const bool isBackward = flags & QTextDocument::FindBackward;
    if (cs == Qt::CaseSensitive)
        flags |= QTextDocument::FindCaseSensitively;
    QTextCursor from = start(isBackward);
    QTextCursor hit = document->find(text, from, flags);
    const bool hasWrapped = hit.isNull();
    if (hasWrapped) {
        from.movePosition(isBackward ? QTextCursor::End : QTextCursor::Start);
        hit = document->find(text, from, flags);
    }
    const bool isThere = !hit.isNull();
    if (isThere)
        m_editor->setTextCursor(before(hit, from, isBackward));
    const QPointer<FindDialogGuide> self(this);
    if (isBackward)
        m_editor->findPrevious(text, cs);
    else
        m_editor->findNext(text, cs);
    // Where nothing is found the library says so, in a box that may outlive the editor.
    if (!self || !isThere)
        return;
    showHit();
    tell(hasWrapped, isBackward);
}

/// At the cursor. Where that is out of sight, or behind all that could be found, at the edge of
/// what is seen.
QTextCursor FindDialogGuide::start(bool isBackward) const
{
    const QTextCursor own = m_editor->textCursor();
    const bool isBehindAll = !own.hasSelection() && (isBackward ? own.atStart() : own.atEnd());
    if (ProgramWalk::isCursorSeen(m_editor) && !isBehindAll)
        return own;
    const int line =
        isBackward ? ProgramWalk::bottomLine(m_editor) : ProgramWalk::topLine(m_editor);
    QTextCursor cursor(m_editor->document()->findBlockByNumber(line - 1));
    if (isBackward)
        cursor.movePosition(QTextCursor::EndOfBlock);
    return cursor;
}

void FindDialogGuide::showHit()
{
    if (!m_dialog || !m_dialog->frameGeometry().intersects(selectionOnScreen(m_editor)))
        return;
    m_editor->centerCursor();
    const QWidget *window = m_editor->window();
    FindDialogFitter::uncover(selectionOnScreen(m_editor),
                              QRect(window->mapToGlobal(QPoint()), window->size()));
}

void FindDialogGuide::tell(bool hasWrapped, bool isBackward)
{
    const QString cause = QLatin1String(searchCause);
    if (!hasWrapped)
        return Q_EMIT causeEnded(cause);
    const int line = m_editor->getCurRowNumber();
    Q_EMIT told(isBackward ? tr("Start reached, went on at the end: line %1.").arg(line)
                           : tr("End reached, went on at the top: line %1.").arg(line),
                Message::Information, cause);
}
