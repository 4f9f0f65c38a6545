// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FITTEDLIST_H
#define FITTEDLIST_H

#include "base/filarixhostglobal.h"

#include <QScrollArea>
#include <QStringList>

class TListWidget;

/// A list of the library that fills its place. By itself a list keeps the width that it was made
/// with, 480 pixels at the most. setSize() widens its rows and leaves the title behind.
///
///     FittedList *taught = new FittedList(FilarixRows::titleRow(...));
///     layout->addWidget(taught);
///     taught->list()->addWidget(row, true, false);
///
/// Rows and title are as wide as the place, and the page has as many rows as fit its height, one
/// at the least. It asks for no width: in a dock or a splitter give it a least one, 360 pixels,
/// say. How high a row is, the list takes from the screen, as ever. An open row may push the foot
/// of the page out of sight: the row that was touched is moved into view.
class FILARIX_HOST_EXPORT FittedList : public QScrollArea
{
    Q_OBJECT

public:
    /// \a title as TListWidget takes it, kind first; empty makes a list without a title.
    explicit FittedList(const QStringList &title = QStringList(), QWidget *parent = nullptr);

    /// The list, owned by this widget, which calls setSize() and setTotalLine() of the list.
    TListWidget *list() const { return m_list; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void keepInView(int row);
    void moveIntoView();

private:
    void fitTitle();
    void fitPage();

    const QStringList m_title;
    TListWidget *m_list;
    int m_width = 0;
    int m_touched = -1;
};

#endif // FITTEDLIST_H
