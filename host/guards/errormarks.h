// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ERRORMARKS_H
#define ERRORMARKS_H

#include "base/filarixhostglobal.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPointer>
#include <QString>
#include <QTextDocument>
#include <QTextFrame>

/// Lines of an editor that stay marked until they are cleared: what a check of the program found,
/// say. The editor's own mark is that of the current line, and goes with each movement.
///
///     ErrorMarks *marks = new ErrorMarks(editor, window);
///     marks->mark(12, ErrorMarks::Error, tr("X is out of range"));
///     ...
///     marks->clear();
///
/// A mark belongs to its line's text: lines that come and go above move it, a changed line keeps
/// its mark. A mark goes with its line: a line that undo brings back has no mark until it is marked
/// anew. Another program starts without marks.
///
/// The marks are drawn as extra selections behind those of the editor, as far as they are visible.
/// So neither the text nor its formats nor what can be undone knows of them. On the current line a
/// mark covers the text alone, so that both are seen. A host with extra selections of its own gets
/// these marks from extraSelections(), too, and may leave them out when it sets its own.
class FILARIX_HOST_EXPORT ErrorMarks : public QObject
{
    Q_OBJECT

public:
    /// How bad it is. Where lines with marks were joined, the worst is shown.
    enum Severity { Note, Warning, Error };

    /// What a marked line is drawn with.
    struct Colours
    {
        QColor text;
        QColor background;
    };

    /// \a editor, a WGCodeEditer or any other, may go first: then nothing is marked any more. An
    /// editor is given to one such object at the most.
    explicit ErrorMarks(QPlainTextEdit *editor, QObject *parent = nullptr);
    ~ErrorMarks() override;

    /// Marks \a row, from 1. Another mark there gives way. \a text, for the host alone, says what
    /// is wrong. A row that does not exist is not marked: false.
    bool mark(int row, Severity severity, const QString &text = QString());
    /// Clears the mark of \a row, from 1, if it has one.
    void unmark(int row);
    /// Clears all marks.
    void clear();

    /// The marked rows, from 1, in order, where they are by now.
    QList<int> rows() const;
    bool isMarked(int row) const { return find(row) >= 0; }
    /// Note for a row without a mark.
    Severity severity(int row) const;
    /// What mark() was given; empty for a row without a mark.
    QString text(int row) const;
    /// The next marked row behind \a row, or the last one before it; 0 when there is none. Row 0
    /// stands before the first.
    int nextRow(int row) const;
    int previousRow(int row) const;

    /// Draws marks of \a severity with \a colours, in place of defaultColours().
    void setColours(Severity severity, const Colours &colours);
    /// Readable on each other, and to be told from \a palette's base, be it light or dark.
    static Colours defaultColours(Severity severity, const QPalette &palette);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// An edit has moved marks to other rows, or taken some.
    void moved();

private Q_SLOTS:
    void noteChange(int position, int removed, int added);
    void refresh();

private:
    typedef QList<QTextEdit::ExtraSelection> Selections;

    struct Mark
    {
        int row;
        Severity severity;
        QString text;
        /// What the line holds.
        QString line;
    };
    struct Change;

    QPlainTextEdit *editor() const { return static_cast<QPlainTextEdit *>(m_editor.data()); }
    int find(int row) const;
    int firstFrom(int row) const;
    int rowAt(int index) const;
    void followDocument();
    void follow(const Change &change);
    void settle(int firstRow, int lastRow);
    Colours colours(Severity severity) const;
    QTextEdit::ExtraSelection selection(const Mark &mark) const;
    Selections visibleMarks() const;
    void repaint();

    /// A QPlainTextEdit until it goes; then a QWidget for a moment yet.
    QPointer<QWidget> m_editor;
    QPointer<QTextDocument> m_document;
    /// Made anew whenever the document is emptied as a whole.
    QPointer<QTextFrame> m_frame;
    /// By their rows.
    QList<Mark> m_marks;
    int m_blocks = 0;
    Colours m_colours[Error + 1];
};

#endif // ERRORMARKS_H
