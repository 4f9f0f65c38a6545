// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_LISTWIDGET_H
#define FILARIX_LISTWIDGET_H

#include "filarixglobal.h"

#include <QWidget>

class QVBoxLayout;

/// A plain vertical stack of widgets whose fixed height is the sum of its rows' heights.
///
/// It does not scroll; a scroll area can hold it and relies on that height. Rows become children
/// of the stack. Mind the names: takeAt() destroys a row, removeWidget() does not.
///
///     ListWidget *stack = new ListWidget(scrollArea);
///     stack->addWidget(new QLabel(tr("first row")));
///     scrollArea->setWidget(stack);
class FILARIX_EXPORT ListWidget : public QWidget
{
public:
    /// Empty and of height 0. \a parent may be null.
    explicit ListWidget(QWidget *parent);
    ~ListWidget() override;

    /// Appends a row, which counts with the height() that it has now. Null is ignored.
    void addWidget(QWidget *widget);
    /// Inserts a row at \a index, counted from 0; a negative one, or one behind the end, appends.
    /// Null is ignored.
    void insertWidget(int index, QWidget *widget);

    /// Takes the row at \a index out and returns it: alive, still a child, and where it stood on
    /// the screen. Null, and nothing changed, for an index out of range.
    QWidget *removeWidget(int index);
    /// The same for a row that is at hand. Null is ignored; a widget that is no row must not be
    /// given, for its height is subtracted all the same.
    void removeWidget(QWidget *widget);

    /// Takes the row at \a index out and deletes it at once. Nothing happens out of range.
    void takeAt(int index);
    /// The same for a row that is at hand. Null is ignored.
    void takeAt(QWidget *widget);

    /// The row's index, or -1.
    int indexof(QWidget *widget) const;
    /// The row at \a index, or null out of range.
    QWidget *itemAt(int index) const;
    /// The sum of the rows' heights in pixels as they were when they were added. It hides
    /// QWidget::height(), which can differ while a layout holds the stack.
    int height() const;
    /// The number of rows.
    int count() const;

    using QWidget::setContentsMargins;
    /// Margins in pixels; a negative one counts as 0.
    void setContentsMargins(int left, int top, int right, int bottom);

    /// Takes all rows out, without deleting them, and hides the stack: whoever fills it anew has
    /// to show it. The rows stay children of the stack, and go with it unless the caller deletes
    /// them or gives them another parent.
    void clear();

    /// Sums the heights anew. To be called after a row has changed its height.
    void recalculateHeight();

private:
    void initializeWidget();
    void applyHeight();

    QVBoxLayout *boxLayout;
    int totalHeight;

protected:
    /// Starts at 0 and is read by nothing here: a place that a derived stack may use.
    int reserved;
};

#endif // FILARIX_LISTWIDGET_H
