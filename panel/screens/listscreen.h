// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LISTSCREEN_H
#define LISTSCREEN_H

#include "programs/unsavedrows.h"
#include "shell/panelscreen.h"
#include "storage/rowkeeper.h"

#include <functional>

#include <QPointer>
#include <QSize>
#include <QStringList>

class RowDetails;
class QGridLayout;
class QLabel;
class QScrollArea;
class TListWidget;

/// A screen around one of the library's paged lists, at the size of the panel, with a file that
/// keeps the rows.
///
/// The keys are beside the list on a wide panel, and below it on an upright or a small one.
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

    bool hasChanges() const override { return m_changed; }
    /// Sees whether the operator has changed a row: the list tells nobody.
    void refreshStatus() override;
    /// Writes the rows beside the event loop; ends in told().
    void store();
    /// Milliseconds after which a file counts as one that does not answer.
    virtual void setStallTime(int ms) { m_keeper->setStallTime(ms); }

    /// Whether \a columns keys have room side by side, next to a list with a title and its details.
    static bool hasRoomForKeys(const QSize &surface, int columns);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// \a surface is the whole panel. An empty \a title makes a list without a title row.
    /// \a keyColumns is the number of keys in a line beside the list. The screen owns \a keeper.
    ListScreen(const QSize &surface, QStringList title, int keyColumns, RowKeeper *keeper,
               QWidget *parent);

    /// Where store() writes.
    virtual QString storePath() const = 0;
    /// What store() writes; the list's rows if nothing else is said.
    virtual QList<QStringList> rowsToStore() const { return rows(); }
    /// Whether what store() would write may stand in the file; tells the operator if not.
    virtual bool mayStore() { return true; }
    /// What rowsToStore() gave last is in the file.
    virtual void noteStore() {}
    /// What the operator is told once \a count rows are stored.
    virtual QString storedText(int count) const = 0;
    /// What messages about the file are about.
    virtual QString fileCause() const = 0;
    RowKeeper *keeper() { return m_keeper; }
    /// The rows that the file holds.
    const QList<QStringList> &storedRows() const { return m_stored; }
    /// From now on \a keeper reads and stores; the screen owns it.
    void takeKeeper(RowKeeper *keeper);
    /// Tells what came of a store of \a rows.
    void noteStored(const QList<QStringList> &rows, const RowKeeper::Stored &stored);
    /// The file holds \a rows.
    void markStored(const QList<QStringList> &rows);
    /// Why there are no rows, if so, and what the operator can do.
    void tellUnread(const RowKeeper::Loaded &loaded, const QString &whenBroken,
                    const QString &whenStalled);
    /// Asks the operator about changes that are not stored, and stores them if asked to.
    bool mayLoseChanges(const QString &title, const QString &question);

    /// The row as the list shows it; rows() gives it back as files have it.
    virtual QStringList rowForList(const QStringList &row) const { return row; }

    /// Keys beyond \a lines lines take turns, and a key "More" at the end turns to the next ones.
    void setKeyLines(int lines);
    /// Appends a key to the panel.
    PanelKey *addKey(const QIcon &icon, const std::function<QString()> &text);
    /// A key of the shell's strip that is off as well until the rows are there.
    PanelKey *whenLoaded(PanelKey *key);
    void setLoading(bool isLoading);
    enum Turn { ToFirst, PageBack, PageOn, ToLast };
    /// Appends a key that turns pages.
    void addTurnKey(Turn turn);
    /// Appends all four of them.
    void addPagingKeys();
    /// Fills the list, the first row under the title becoming current, and shows its first page.
    void setRows(const QList<QStringList> &rows);
    /// Turns to the page of a row, and makes the row current.
    void bringIntoView(int row);
    /// Closes the rows that are open: what happens to a row would happen to another one's widget.
    void closeRows();
    /// Draws the page anew and turns to \a row, as the list counts it.
    void showRow(int row);
    /// What the chosen row holds, beside the list; null where the panel has no room for it.
    RowDetails *details() const { return m_details; }
    /// Brings details() up to date: another row may be chosen, or hold something else. Called
    /// where there are some, and in vain at worst.
    virtual void showDetails() {}
    /// The same as soon as details() can be there.
    void refreshDetails();
    /// Rows of the list that are none of the host's: 1 with a title.
    int firstRow() const { return m_firstRow; }
    /// Rows that a page has room for, the title not counted.
    int pageRows() const { return m_pageRows; }

private:
    int listWidth(const QSize &surface) const;
    void fitPage();
    void keepRowInView(int row);
    PanelKey *makeKey(const QIcon &icon, const std::function<QString()> &text);
    void layOutKeys();
    void placeKey(PanelKey *key, int place);
    void turnKeys();
    int pooled() const;

    const bool m_keysBeside;
    const int m_keyColumns;
    const int m_firstRow;
    TListWidget *m_list;
    QScrollArea *m_area;
    RowDetails *m_details;
    QWidget *m_keyPanel;
    QGridLayout *m_keyGrid;
    QLabel *m_notice;
    QList<PanelKey *> m_keys;
    PanelKey *m_moreKey = nullptr;
    QList<QPointer<PanelKey>> m_loadKeys;
    RowKeeper *m_keeper;
    QList<QStringList> m_stored;
    int m_keyLines = 0;
    int m_keyPage = 0;
    int m_pageRows = 1;
    bool m_isLoading = false;
    bool m_changed = false;
    bool m_isAsking = false;
};

#endif // LISTSCREEN_H
