// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_WGCODEEDITER_H
#define FILARIX_WGCODEEDITER_H

#include "filarixglobal.h"

#include <QPlainTextEdit>
#include <QString>
#include <QStringList>

class WFindDialog;
class WHighlighter;

namespace GCODE {

/// Where WGCodeEditer::moveEvent() takes the cursor.
enum MoveOperation { MoveUp = 0, MoveDown = 1 };

} // namespace GCODE

/// The text pane for one G-code program: line numbers, a marked current line, syntax colours, and
/// the commands that work on whole lines.
///
/// It is made for a touch panel: a press places the cursor and selects nothing. It has a copy
/// buffer of its own and leaves the system clipboard alone. The parent widget owns it; it owns its
/// gutter, its highlighter (through the document) and its find dialog.
///
///     WGCodeEditer *editor = new WGCodeEditer(parent);
///     editor->readGCode(text);
///     editor->gotoLine(12);
///
/// Numbering: rows and columns (getCurRowNumber(), getCurColNumber(), gotoLine(), the gutter) count
/// from 1; currentLineNumber() counts blocks from 0, getLineText() text lines from 0.
class FILARIX_EXPORT WGCodeEditer : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// Empty. \a parent may be null.
    explicit WGCodeEditer(QWidget *parent);
    ~WGCodeEditer() override;

    /// Puts \a text below the cursor as a line of its own, or into the current line if that is
    /// empty.
    void insertLine(const QString &text);
    /// Adds an empty line below the current one.
    void insertLine();
    /// Adds an empty line above the current one and puts the cursor there.
    void insertBefore();
    /// Removes the current line; the next one moves up. An empty last line stays.
    void deleteLine();
    /// Moves the cursor one line; a value that is neither up nor down moves nothing. It has nothing
    /// to do with the handler of the same name, which stays the base class's.
    void moveEvent(GCODE::MoveOperation op);
    /// The text of the line under the cursor.
    QString curLineText();
    /// The text of the text line \a line, from 0; empty for a number that no line has.
    QString getLineText(int line);
    /// The number of the cursor's block, from 0.
    int currentLineNumber();
    /// Replaces the current line by \a text. On the last line a new empty line follows it, so that
    /// there is always one to go on with.
    void updateGCode(QString text);
    /// The cursor's row, from 1.
    int getCurRowNumber() const;
    /// The cursor's column, from 1: column 1 is before the first character.
    int getCurColNumber() const;

    /// Puts a program's text into the editor. From 500 lines on it goes in as 50 pieces without
    /// comments and empty lines, under a progress dialog that can abort; the pieces are appended,
    /// so a caller clears the document first. Below that the text goes in unchanged.
    ///
    /// Events of all kinds are served between the pieces, and an abort keeps what is in by then.
    /// Whatever is done to the editor meanwhile, the rest of the program still comes behind it. A
    /// host that wants the editor gone calls deleteLater(), at any time: the load then ends there.
    /// To delete it from a slot that the load itself calls, such as one of textChanged(), is an
    /// error.
    void readGCode(QString text);
    /// The lines without what follows the first ";", without empty lines and without the lines that
    /// this makes empty, joined by line ends, none after the last. Blanks stay.
    QString preproccess(QStringList lines);

    /// Records a mark for the block \a line, from 0: the columns of \a code that are not blank. A
    /// code of blanks records nothing; a second mark on a line replaces the first. Marks are kept
    /// until the editor goes, whatever happens to the text.
    void addErrorCode(int line, QString code);
    /// Colours the whole document anew if there is any mark. The marks themselves are recorded, not
    /// drawn.
    void highlightErrorCode();

    /// Width of the gutter in pixels.
    int lineNumberAreaWidth();
    /// Draws the gutter; called by it.
    void lineNumberAreaPaintEvent(QPaintEvent *event);

public Q_SLOTS:
    /// Makes room for the gutter; the editor's own connections see to it. \a newBlockCount is
    /// ignored.
    void updateLineNumberAreaWidth(int newBlockCount);
    /// Marks the cursor's line, in place of all other marks; in a read-only editor none.
    void highlightCurrentLine();
    /// Scrolls the gutter by \a dy pixels, or draws it anew along \a rect of the viewport.
    void updateLineNumberArea(QRect rect, int dy);
    /// Jumps to the row \a lineNum, from 1, and shows it in red until the cursor moves. A row that
    /// does not exist leads to the first line.
    void gotoLine(int lineNum);
    /// Asks for a number of lines and takes as many, from the current one on, into the editor's own
    /// buffer. Hides the base class's slot, which uses the clipboard.
    void copy();
    /// Inserts the editor's own buffer at the cursor. Hides the base class's slot.
    void paste();
    /// Shows the find dialog, which is made at its first use and stays.
    void findAndReplace();
    /// Selects the next match of \a str, without wrapping around; a message tells when there is
    /// none.
    void findNext(const QString &str, Qt::CaseSensitivity cs);
    /// The same towards the start of the program.
    void findPrevious(const QString &str, Qt::CaseSensitivity cs);
    /// Replaces the match of the search just done; without one it does nothing.
    void replaceTxt(const QString &str);

protected:
    using QPlainTextEdit::moveEvent;

    /// Places the cursor and leaves the press to the parent: nothing is selected by dragging.
    void mousePressEvent(QMouseEvent *event) override;
    /// Leaves it to the parent: a double touch selects no word.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    /// Keeps the gutter as high as the pane.
    void resizeEvent(QResizeEvent *event) override;

private:
    void search(const QString &str, QTextDocument::FindFlags flags, Qt::CaseSensitivity cs);

    QWidget *lineNumberArea;
    WHighlighter *highlighter;
    int currentLine;
    WFindDialog *findDialog;
    bool isFound;
    QString copiedText;
};

/// The gutter of line numbers to the left of a WGCodeEditer, its child.
class WGLineNubmerArea : public QWidget
{
public:
    /// The editor's constructor makes its own.
    explicit WGLineNubmerArea(WGCodeEditer *editor);

    /// As wide as the numbers ask for; the height is the editor's to set.
    QSize sizeHint() const override;

protected:
    /// Has the editor draw it.
    void paintEvent(QPaintEvent *event) override;

private:
    WGCodeEditer *codeEditor;
};

#endif // FILARIX_WGCODEEDITER_H
