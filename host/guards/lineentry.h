// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LINEENTRY_H
#define LINEENTRY_H

#include "base/filarixhostglobal.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QTextBlock;
class QTextDocument;
class WGCodeEditer;
class WMMainWindow;

/// Has an operator write line after line on the keypad of the library's program window.
///
/// The keypad of Edit is told what it edits, and may offer "OK and next line": the next line then
/// opens by itself. A line that Ins added goes again when its keypad is cancelled. An Ins on the
/// empty line that the library leaves below a program's end leaves no empty line within it.
///
///     LineEntry *entry = new LineEntry(window, window);
///     entry->setHint(ModalWords::hintBy(profile));
///
/// A keypad that knows nothing of the properties hmiNextLine, hmiName, hmiHint and hmiEditedRect
/// works as it does without this object.
class FILARIX_HOST_EXPORT LineEntry : public QObject
{
    Q_OBJECT

public:
    typedef std::function<QString(const QTextBlock &line)> Hint;

    /// \a window was made just now: its buttons are told apart by their tool tips. Give a window to
    /// one such object at the most. \a window may go first.
    explicit LineEntry(WMMainWindow *window, QObject *parent = nullptr);

    /// \a hint gives the keypad's line of help, whenever a line is about to be edited.
    void setHint(const Hint &hint) { m_hint = hint; }

private Q_SLOTS:
    void beginInsertion();
    void endInsertion();
    void begin();
    void end();

private:
    void endWithoutKeypad();
    void goOn();
    void tellKeypad();
    void showLineHigh();
    bool isOnSpareLine() const;
    bool isOnNewLine() const;
    void takeNewLineBack();
    void removeSpareLine();
    QTextBlock line() const;
    QTextDocument *document() const;

    QPointer<WMMainWindow> m_window;
    QPointer<WGCodeEditer> m_editor;
    Hint m_hint;
    /// What the window's text was before the keypad.
    QString m_textBefore;
    bool m_isOpen = false;
    bool m_isOnLastLine = false;
    /// The keypad edits a line that an Ins has just added.
    bool m_isOnNewLine = false;
    /// QTextDocument::revision() at which the cursor stood on a line that Ins had just added; -1
    /// for never. The other one: on the empty line that the library had left.
    int m_newRevision = -1;
    int m_spareRevision = -1;
    int m_newLine = -1;
    bool m_isNewBelowSpare = false;
};

#endif // LINEENTRY_H
