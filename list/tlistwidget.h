// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_TLISTWIDGET_H
#define FILARIX_TLISTWIDGET_H

#include "filarixglobal.h"
#include "listwidget.h"

#include <QList>
#include <QSize>
#include <QStringList>

class MJLine;
class QMouseEvent;

/// A teach program of any length on a small panel. The list keeps every row as a list of strings.
/// Only the rows of the page have widgets, refilled as the page moves.
///
///     QStringList title = QStringList() << "Title" << "Title" << columns;   // nine or more
///     TListWidget *list = new TListWidget(title, parent);
///     Q_FOREACH (QStringList row, program)      // "MJ", number, instruction name, ...
///         list->addWidget(row, false, false);
///     QStringList none;
///     list->addWidget(none, true, true);        // show the last page
///
/// A row is the kind followed by the kind's own strings. A list holds rows of one family: "MJ",
/// "ML", "Oth" and "Title" rows, or "DataEditor" rows. Row indexes count from 0; in a list with a
/// title row 0 is the title, and the host's own rows count from 1.
///
/// A row reports itself by the number that it shows, so a host gives each row its index as number.
/// Inserting and removing keep that up: they number the rows behind "3", "4" and so on under a
/// title, "N3", "N4" without one. A table drops the "N" as it reports itself. An instruction row
/// does not, and then reports 0: a list of instructions wants a title.
///
/// An edit of the operator reaches the row at once: getContent() is always current, and no signal
/// tells of it. The list belongs to its parent, the row widgets to the list. The list never gives a
/// row widget away, and no pointer to one should outlive the event.
///
/// Failures are silent. An operation on a row that doesn't exist does nothing, and a query for one
/// gives an empty answer.
class FILARIX_EXPORT TListWidget : public ListWidget
{
    Q_OBJECT

public:
    /// An empty \a list makes a list without a title. Otherwise it is the title row, kind first,
    /// and comes back changed: without its kind, and filled up for the row widget.
    TListWidget(QStringList &list, QWidget *parent);
    /// The same with a copy of the title row: what a form made with Qt Designer asks for, without
    /// one.
    explicit TListWidget(QWidget *parent, QStringList title = QStringList())
        : TListWidget(title, parent)
    {}

    /// Builds the widget of a row as a child of this list, outside the page. Takes the kind off
    /// \a list and may fill it up. \a expand opens an instruction row; \a title makes a
    /// "DataEditor" row a title. Null for an unknown kind, which is taken off all the same.
    QWidget *createWidget(QStringList &list, bool expand, bool title);

    /// Number of rows, the title included; ListWidget::count() is the number of row widgets.
    int count() const;
    /// The slot of row \a i, its place among the row widgets, whether or not the row is on the
    /// page. The title is in slot 0.
    int getListPos(int i) const;
    /// Moves a page that starts at or above row 0 to the first row under the title.
    void checkStartLine();
    /// Makes the page show what the rows, the page's start and length and the selection say. An
    /// open row at the foot of a full page pushes the first two rows of the page out.
    void reshow();
    /// New rows get the width of \a s, and the page as many rows as fit its height. The height of
    /// the screen holds 14 rows with the title; no page gets fewer than 5. Replaces all row widgets
    /// but the title.
    void setSize(QSize s);
    /// \a n rows a page, the title not counted. 0 or less shows no row.
    void setTotalLine(int n);

    /// A page up. All paging commands close the open rows that they come to, and leave the current
    /// row as it is, on the page or not. At the end of the rows, or in a list shorter than a page,
    /// the commands do nothing; none goes round.
    void prevPage();
    /// A page down; the last page may be a short one.
    void nextPage();
    /// A row up.
    void prevLine();
    /// A row down.
    void nextLine();
    /// To the first row.
    void home();
    /// To the last full page.
    void end();

    /// The current row, on the page or not; never the title.
    int getCurIndex();
    /// Makes row \a i current without moving the page, and selects all rows between it and
    /// getLastIndex() during a multiple selection. \a force redraws the page in any case. A
    /// negative \a i is ignored; one behind the last row is taken.
    void setCurIndex(int i, bool force);
    /// The end of a multiple selection that stays where it was started.
    int getLastIndex() const;
    /// From now on each current row stretches the selection from the one that is current now.
    void setMultiSelect();
    /// Ends a multiple selection: the current row alone is selected.
    void clearMultiSelect();
    /// Whether a multiple selection is on.
    bool isMultiSelect() const;
    /// Shows row \a i, if it is on the page, as not selected (\a plain) or as selected.
    void deselect(int i, bool plain);

    /// A number that the host parks here, 0 at first; the list makes no use of it.
    int getExtraIndex() const;
    /// Parks a number; see getExtraIndex().
    void setExtraIndex(int index);

    /// Appends a copy of \a row, ends a multiple selection, and makes the last page the page. With
    /// \a refresh the row becomes current and the page is drawn. \a viewOnly leaves the rows as
    /// they are and ignores \a row. So a host appends many rows with \a refresh false, and draws
    /// them by one last call.
    void addWidget(QStringList &row, bool refresh, bool viewOnly);
    /// Inserts a copy of \a row at \a i, at the end if \a i is behind it, and makes it current.
    /// The rows from \a i on are renumbered; the new row keeps the number that it has. Ends a
    /// multiple selection. The page stays, and is drawn with \a refresh; with \a viewOnly nothing
    /// but that. A negative \a i changes nothing.
    void insertWidget(int i, QStringList &row, bool refresh, bool viewOnly);
    /// Removes row \a i and renumbers the rows after it. The current row stays the same row as
    /// long as it exists. Ends a multiple selection; the page is drawn with \a refresh. An \a i
    /// behind the end removes nothing.
    void removeWidget(int i, bool refresh);
    /// Removes all rows but the title, and tells its progress by sg_item_deleted().
    void clear();

    /// Replaces row \a i and refills its widget. \a row comes back without its kind, and filled
    /// up if the row has a widget. The kind must be of the list's family.
    void setContent(int i, QStringList &row);
    /// Row \a i, kind first, with what the operator has entered.
    QStringList getContent(int i) const;
    /// The kind of row \a i. The title keeps no kind.
    QString typeAt(int i) const;
    /// Writes the number of row \a i. In a list without a title the first row of the page shows
    /// it at its next refill only.
    void setIndex(int i, QString n);

    /// The three V values of an instruction row; empty for another kind.
    QStringList getV(int i) const;
    /// The six Jpos values of an instruction row; empty for another kind.
    QStringList getJpos(int i) const;
    /// The V index of an instruction row, 0 where that is no number; -1 for another kind.
    int getVIndex(int i) const;
    /// The same for the Jpos index.
    int getJposIndex(int i) const;
    /// Writes the V values of an instruction row, and the V index if \a l holds a fourth string.
    /// Fewer than three strings, or another kind of row, change nothing. Without a title the widget
    /// in slot 0 shows the values at its next refill only. With a title the widget in the last slot
    /// does.
    void setV(int i, QStringList &l);
    /// The same for the six Jpos values, with the Jpos index as the seventh string.
    void setJpos(int i, QStringList &l);

Q_SIGNALS:
    /// The operator touched this row, which is now the current row.
    void clicked(int);
    /// The operator touched the Jpos label of this row, which is now the current row.
    void sg_jpos_update(int);
    /// The operator touched the V label of this row, which is now the current row.
    void sg_v_update(int);
    /// The progress of clear() in percent; the last one is 100.
    void sg_item_deleted(int value);

public Q_SLOTS:
    /// A row widget reports its Jpos label: makes the row current and passes it on.
    void on_jpos_update(int);
    /// A row widget reports its V label: the same.
    void on_v_update(int);
    /// A row was opened or closed: lays the page out anew. \a expand is ignored.
    void on_line_changed(bool expand);
    /// A row widget was touched: makes row \a index current and emits clicked().
    void on_line_clicked(int index);
    /// Takes a changed row from its widget, the sender.
    void on_content_change(int);

protected:
    /// Does nothing with a touch beside the rows: it neither selects nor goes on.
    void mousePressEvent(QMouseEvent *event) override;

private:
    int titleCount() const;
    bool isRow(int i) const;
    QWidget *rowWidget(int i) const;
    MJLine *groupWidget(int i) const;

    int pageEnd() const;
    bool isFootOpen(int end) const;
    int pushOutAtTheTop();
    void showRow(int i);
    void refill(int i, QStringList &row);
    bool hasFullPage() const;
    bool hasRowsBehindThePage() const;
    void closeOpenRows();
    void turnTo(qint64 startLine);

    void renumber(int from, int step);
    void showIndex(int i, const QString &n);
    int indexAfterRemoval(int index, int removed, int rows) const;
    QStringList groupValues(int i, int firstPair, int pairs) const;
    int groupIndex(int i, int position) const;
    bool storeGroup(int i, const QStringList &l, int firstPair, int pairs, int indexPosition);

    QList<QStringList> m_content;
    int m_startLine;
    int m_totalLine;
    QWidget *m_titleWidget;
    int m_curIndex;
    int m_extraIndex;
    int m_lastIndex;
    bool m_multiSelect;
    QSize m_size;
};

#endif // FILARIX_TLISTWIDGET_H
