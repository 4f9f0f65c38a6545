// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LISTSCREEN_H
#define LISTSCREEN_H

#include "programs/unsavedrows.h"
#include "shell/panelscreen.h"

#include <functional>

#include <QPointer>
#include <QSize>
#include <QStringList>

class QGridLayout;
class QLabel;
class QScrollArea;
class TListWidget;

/// A screen around one of the library's paged lists: the list at the size of the panel, and a panel
/// of keys beside it on a lying panel, below it on an upright or a small one.
class ListScreen : public PanelScreen, public UnsavedRows
{
    Q_OBJECT

public:
    TListWidget *list() const { return m_list; }
    /// All rows but the title.
    QList<QStringList> rows() const override;

    /// Whether the rows are still to come. No key does anything until they are there.
    bool isLoading() const override { return m_isLoading; }
    bool lookForChanges() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// \a surface is the whole panel. An empty \a title makes a list without a title row.
    /// \a keyColumns is the number of keys in a line beside the list.
    ListScreen(const QSize &surface, QStringList title, int keyColumns, QWidget *parent);

    /// Appends a key to the panel.
    PanelKey *addKey(const QIcon &icon, const std::function<QString()> &text);
    /// A key of the shell's strip that is off as well until the rows are there.
    PanelKey *whenLoaded(PanelKey *key);
    void setLoading(bool isLoading);
    /// Appends the four keys that turn pages.
    void addPagingKeys();
    /// Fills the list, the first row under the title becoming current, and shows its first page.
    void setRows(const QList<QStringList> &rows);
    /// Rows of the list that are none of the host's: 1 with a title.
    int firstRow() const { return m_firstRow; }

private:
    int listWidth(const QSize &surface) const;
    void fitPage();
    void keepRowInView(int row);

    const bool m_keysBeside;
    const int m_keyColumns;
    const int m_firstRow;
    TListWidget *m_list;
    QScrollArea *m_area;
    QGridLayout *m_keyGrid;
    QLabel *m_notice;
    QList<QPointer<PanelKey>> m_loadKeys;
    int m_keyCount = 0;
    bool m_isLoading = false;
};

#endif // LISTSCREEN_H
