// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PICKERTABLE_H
#define PICKERTABLE_H

#include "base/filarixhostglobal.h"
#include "programs/programlisting.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

class QTableWidget;

/// Sorts and filters a table of programs: that of the library's program picker, or a host's own.
///
/// The library's table stays what it is: its rows get other texts, in the order that is asked for.
/// The names are those that the library listed, until others are set.
///
///     PickerTable rows(table);
///     rows.setNames(names);
///     rows.setListing(listing); // sizes and dates
///     rows.fill();
class FILARIX_HOST_EXPORT PickerTable : public QObject
{
    Q_OBJECT

public:
    enum Order {
        LastUsed, ///< The recent ones first, then by name.
        ByName,   ///< Numbers in names count as such: "coil2" comes before "coil10".
        ByDate,   ///< The youngest first.
        BySize    ///< The largest first.
    };

    /// Takes the names out of \a table, which has to outlive the object.
    explicit PickerTable(QTableWidget *table, QObject *parent = nullptr);

    /// In the place of the names before; of sizes and dates nothing is known then.
    void setNames(const QStringList &names);
    /// Says once more what each column is: the language has changed.
    void retranslate();

    /// The programs used last, the very last one first.
    void setRecent(const QStringList &names);
    void setOrder(Order order);
    /// Shows the names that hold \a part, in large letters or small ones.
    void setFilter(const QString &part);
    /// Sizes and dates, when they are known.
    void setListing(const ProgramListing &listing);
    /// Dates take a third column, for which a narrow table has no room.
    void showDates(bool isWanted);

    /// Fills the table. To be called after what was set.
    void fill();

    /// Marks the row of this name, and moves it into view; without such a row none is marked.
    void mark(const QString &name);
    /// In no order.
    QStringList allNames() const;
    /// Those that the filter leaves, in the order of the rows.
    QStringList shownNames() const { return m_shown; }

private:
    struct Entry
    {
        QString name;
        QString sizeText;
        QString dateText;
        qint64 size;
        qint64 written;
        /// Place among the recent ones; behind them all for the others.
        int rank;
    };

    static bool isBefore(const Entry &a, const Entry &b, Order order);
    void setText(int row, int column, const QString &text);

    QTableWidget *m_table;
    QVector<Entry> m_entries;
    QStringList m_recent;
    QString m_filter;
    Order m_order = LastUsed;
    QStringList m_shown;
};

#endif // PICKERTABLE_H
