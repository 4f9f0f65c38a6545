// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/programwalk.h"

#include "base/hostcompat.h"
#include "programs/programopener.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <hmidevice/hmideviceinfo.h>
#include <hmidevice/numerickeypad.h>

#include <QIntValidator>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>

namespace {

// As the library has them for a number of lines.
const int showType = 0;
const int editMode = 10;
// The labels in the order in which the window makes them: the program's name, then the read-out.
const int firstOfReadOut = 1;

int lineAt(const WGCodeEditer *editor, int y)
{
    return editor->cursorForPosition(QPoint(0, y)).blockNumber() + 1;
}

} // namespace

ProgramWalk::ProgramWalk(WMMainWindow *window)
    : QObject(window)
    , m_window(window)
    , m_editor(window->findChild<WGCodeEditer *>())
    , m_strip(window->widget(0))
{
    m_strip->installEventFilter(this);
}

int ProgramWalk::topLine(const WGCodeEditer *editor)
{
    return lineAt(editor, 0);
}

int ProgramWalk::bottomLine(const WGCodeEditer *editor)
{
    return lineAt(editor, editor->viewport()->height() - 1);
}

bool ProgramWalk::isCursorSeen(const WGCodeEditer *editor)
{
    const int line = editor->getCurRowNumber();
    return line >= topLine(editor) && line <= bottomLine(editor);
}

// A label leaves the press to the strip that it stands on.
bool ProgramWalk::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_strip)
        return false;
    if (event->type() == QEvent::MouseButtonPress) {
        m_isPressed = isOnReadOut(event);
        return m_isPressed;
    }
    if (event->type() != QEvent::MouseButtonRelease || !m_isPressed)
        return false;
    m_isPressed = false;
    // Behind the release: until then the strip would hold the mouse.
    if (isOnReadOut(event))
        HostCompat::callLater(this, [this] { askForLine(); });
    return true;
}

bool ProgramWalk::isOnReadOut(const QEvent *event) const
{
    const QPoint point = static_cast<const QMouseEvent *>(event)->pos();
    const QWidget *first = m_strip->findChildren<QLabel *>().value(firstOfReadOut);
    return first && point.x() >= first->x() && m_strip->rect().contains(point);
}

void ProgramWalk::goToFirst()
{
    goTo(1);
}

void ProgramWalk::goToLast()
{
    goTo(m_editor->blockCount());
}

void ProgramWalk::pageUp()
{
    turn(-1);
}

void ProgramWalk::pageDown()
{
    turn(1);
}

void ProgramWalk::turn(int pages)
{
    const int top = topLine(m_editor);
    const int step = pages * qMax(1, bottomLine(m_editor) - top);
    const int line = isCursorSeen(m_editor) ? m_editor->getCurRowNumber() : top;
    setCursor(line + step);
    // The bar counts lines, from 0.
    m_editor->verticalScrollBar()->setValue(top - 1 + step);
}

void ProgramWalk::goTo(int line)
{
    setCursor(line);
    m_editor->centerCursor();
}

void ProgramWalk::setCursor(int line)
{
    const int known = qBound(1, line, m_editor->blockCount());
    m_editor->setTextCursor(QTextCursor(m_editor->document()->findBlockByNumber(known - 1)));
}

void ProgramWalk::askForLine()
{
    NumericKeypad *keypad = HMIDeviceInfo::isTouchScreen() ? NumericKeypad::instance() : nullptr;
    // A second touch may have come before the keypad did. A load would stand still behind it, and
    // does not know its last line yet.
    if (!keypad || !keypad->isHidden() || ProgramOpener::isLoading())
        return;
    const int last = m_editor->blockCount();
    setProperty("hmiName", tr("Line"));
    setProperty("hmiMinimum", 1.0);
    setProperty("hmiMaximum", double(last));
    setProperty("hmiInteger", true);
    const QIntValidator validator(1, last, nullptr);
    m_text.clear();
    keypad->setObject(this);
    keypad->setShowType(showType);
    keypad->setEditMode(editMode);
    keypad->setDecimalPointEnabled(false);
    keypad->setValidator(&validator);
    keypad->setLimitToolTip(QString::fromLatin1("1 - %1").arg(last));
    // Empty: each digit of the old number would have to be taken away first.
    keypad->setText(QString());
    const QPointer<ProgramWalk> self(this);
    const bool isAccepted = keypad->exec() == QDialog::Accepted;
    // The library's next field says nothing of either.
    keypad->setDecimalPointEnabled(true);
    keypad->setLimitToolTip(QString());
    if (!isAccepted || !self)
        return;
    goTo(m_text.toInt());
    m_editor->setFocus(Qt::OtherFocusReason);
}
