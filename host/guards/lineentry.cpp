// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/lineentry.h"

#include "base/hostcompat.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <hmidevice/gcodekeypad.h>
#include <hmidevice/hmideviceinfo.h>

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QToolButton>
#include <QVariant>

namespace {

// The library's tool tips, which it doesn't translate.
const char editToolTip[] = "edit G code by softKey!";
const char insertToolTip[] = "insert a null line!";

// Above the edited line, so that the operator sees where it stands.
const int linesAbove = 1;
// Lower in the editor than this part of it, a line may lie below a keypad.
const int highPart = 3;

/// In the place of what the keypad enters: no keypad types a null.
QString nothingEntered()
{
    return QString(QChar(0));
}

bool hasKeypad()
{
    return HMIDeviceInfo::isTouchScreen() && GCodeKeypad::instance();
}

} // namespace

LineEntry::LineEntry(WMMainWindow *window, QObject *parent)
    : QObject(parent), m_window(window), m_editor(window->findChild<WGCodeEditer *>())
{
    const QList<QToolButton *> buttons = window->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        // The library heard of the click first, and has done its part.
        if (button->toolTip() == QLatin1String(editToolTip)) {
            connect(button, SIGNAL(released()), SLOT(begin()));
            connect(button, SIGNAL(clicked()), SLOT(end()));
        } else if (button->toolTip() == QLatin1String(insertToolTip)) {
            connect(button, SIGNAL(released()), SLOT(beginInsertion()));
            connect(button, SIGNAL(clicked()), SLOT(endInsertion()));
        }
    }
}

QTextDocument *LineEntry::document() const
{
    return m_editor->document();
}

QTextBlock LineEntry::line() const
{
    return m_editor->textCursor().block();
}

// Ins

void LineEntry::beginInsertion()
{
    m_isNewBelowSpare = m_editor && isOnSpareLine();
}

void LineEntry::endInsertion()
{
    if (!m_editor)
        return;
    m_newRevision = document()->revision();
    m_newLine = line().blockNumber();
}

/// A program that was not begun has one, and the library leaves one below the last line edited.
bool LineEntry::isOnSpareLine() const
{
    const bool isEmptyProgram = document()->blockCount() == 1;
    return line().text().isEmpty() && (isEmptyProgram || document()->revision() == m_spareRevision)
           && line().blockNumber() + 1 == document()->blockCount();
}

/// A save would have made the line a part of the stored program.
bool LineEntry::isOnNewLine() const
{
    return document()->revision() == m_newRevision && line().blockNumber() == m_newLine
           && line().text().isEmpty() && document()->isModified();
}

// Edit

void LineEntry::begin()
{
    if (!m_editor || !hasKeypad())
        return;
    if (!m_isOpen)
        m_textBefore = m_window->text();
    m_isOpen = true;
    m_isOnNewLine = isOnNewLine();
    m_isOnLastLine = line().blockNumber() + 1 == document()->blockCount();
    m_window->setText(nothingEntered());
    tellKeypad();
    HostCompat::callLater(this, [this] { endWithoutKeypad(); });
}

/// A finger that slides off the button releases it, and no click follows.
void LineEntry::endWithoutKeypad()
{
    if (!m_isOpen || !m_window || !GCodeKeypad::instance()->isHidden())
        return;
    m_isOpen = false;
    m_window->setText(m_textBefore);
}

void LineEntry::tellKeypad()
{
    showLineHigh();
    const QRect cursor = m_editor->cursorRect();
    const QWidget *viewport = m_editor->viewport();
    const QPoint corner = viewport->mapToGlobal(QPoint(0, cursor.top()));
    m_window->setProperty("hmiEditedRect",
                          QRect(corner, QSize(viewport->width(), cursor.height())));
    m_window->setProperty("hmiName", tr("Line %1").arg(line().blockNumber() + 1));
    m_window->setProperty("hmiHint", m_hint ? m_hint(line()) : QString());
    m_window->setProperty("hmiNextLine", true);
    m_window->setProperty("hmiNextLineChosen", false);
}

/// A keypad takes the lower part of most screens.
void LineEntry::showLineHigh()
{
    m_editor->ensureCursorVisible();
    if (m_editor->cursorRect().top() > m_editor->viewport()->height() / highPart)
        m_editor->verticalScrollBar()->setValue(qMax(0, line().blockNumber() - linesAbove));
}

void LineEntry::end()
{
    if (!m_editor || !m_isOpen)
        return;
    m_isOpen = false;
    if (m_window->text() == nothingEntered()) {
        m_window->setText(m_textBefore);
        takeNewLineBack();
        return;
    }
    removeSpareLine();
    m_spareRevision = m_isOnLastLine ? document()->revision() : -1;
    if (!m_window->property("hmiNextLineChosen").toBool())
        return;
    const int revision = document()->revision();
    // Not from within the button's click, or each line would lie in the click of the one before.
    HostCompat::callLater(this, [this, revision] {
        if (m_editor && document()->revision() == revision)
            goOn();
    });
}

void LineEntry::goOn()
{
    const bool isSeen = m_window->isVisible() && !QApplication::activeModalWidget();
    if (!isSeen || m_editor->isReadOnly())
        return;
    if (!isOnSpareLine()) {
        m_isNewBelowSpare = false;
        m_editor->insertLine();
        endInsertion();
    }
    begin();
    // The host may delete this object while the keypad is open.
    const QPointer<LineEntry> self(this);
    // The bar may hide the button by now, and switch it off.
    QMetaObject::invokeMethod(m_window, "softEditGcode");
    if (self)
        end();
}

/// Undone, not deleted: a program that had no changes has none afterwards.
void LineEntry::takeNewLineBack()
{
    if (!m_isOnNewLine || document()->revision() != m_newRevision || !document()->isUndoAvailable())
        return;
    m_editor->undo();
    document()->clearUndoRedoStacks(QTextDocument::RedoStack);
}

/// In one step with the edit, for Undo.
void LineEntry::removeSpareLine()
{
    if (!m_isOnNewLine || !m_isNewBelowSpare)
        return;
    const QTextBlock spare = document()->findBlockByNumber(m_newLine - 1);
    if (!spare.isValid() || !spare.text().isEmpty())
        return;
    QTextCursor cursor(spare);
    cursor.joinPreviousEditBlock();
    cursor.deleteChar();
    cursor.endEditBlock();
}
