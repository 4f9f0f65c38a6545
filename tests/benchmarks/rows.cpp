// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "works.h"

#include "contest.h"
#include "plainlist.h"
#include "rowstyle_p.h"
#include "samplerows.h"
#include "subjects.h"
#include "tlistwidget.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

namespace {

using namespace Subjects;

const int rowsPerPage = 14;

template<class List>
class ListSubject
{
public:
    explicit ListSubject(int rows) : m_list(m_noTitle, nullptr)
    {
        for (int i = 0; i < rows; ++i)
            append(false);
        m_list.resize(480, 600);
        m_list.show();
        m_list.addWidget(m_noTitle, true, true);
        m_list.home();
        settle();
    }

    void append(bool refresh)
    {
        QStringList row = sampleRow(m_list.count());
        m_list.addWidget(row, refresh, false);
    }

    double turnPages(int times)
    {
        return cpuOf([&]() {
                   for (int i = 0; i < times; ++i) {
                       if (m_isAtHome)
                           m_list.nextPage();
                       else
                           m_list.prevPage();
                       m_isAtHome = !m_isAtHome;
                       settle();
                   }
               })
               / times;
    }

    /// Makes the last row current: no page that is turned to shows the mark.
    void takeMarkAway()
    {
        m_list.setCurIndex(m_list.count() - 1, false);
        settle();
    }

    double refill(int times)
    {
        return cpuOf([&]() {
                   for (int i = 0; i < times; ++i)
                       m_list.reshow();
               })
               / times;
    }

    double appendRows(int times)
    {
        const double cost = cpuOf([&]() {
            for (int i = 0; i < times; ++i)
                append(true);
        });
        settle();
        return cost / times;
    }

    double insertAtFront()
    {
        QStringList row = sampleRow(0);
        return cpuOf([&]() { m_list.insertWidget(0, row, false, false); });
    }

private:
    QStringList m_noTitle;
    List m_list;
    bool m_isAtHome = true;
};

class RowModel : public QAbstractTableModel
{
public:
    explicit RowModel(int rows)
    {
        for (int i = 0; i < rows; ++i)
            m_rows.append(sampleRow(i));
    }

    int rowCount(const QModelIndex &) const override { return m_rows.size(); }
    int columnCount(const QModelIndex &) const override { return 6; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return QVariant();
        const QStringList &row = m_rows.at(index.row());
        const int column = index.column();
        if (column < 2)
            return row.at(column + 1);
        return QString(row.at(2 * column - 1) + QLatin1Char(':') + row.at(2 * column));
    }

private:
    QList<QStringList> m_rows;
};

class TableSubject
{
public:
    explicit TableSubject(int rows) : m_model(rows)
    {
        m_view.setModel(&m_model);
        m_view.horizontalHeader()->hide();
        m_view.verticalHeader()->hide();
        m_view.verticalHeader()->setDefaultSectionSize(34);
        m_view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view.setFrameShape(QFrame::NoFrame);
        for (int column = 0; column < 6; ++column)
            m_view.setColumnWidth(column, 80);
        m_view.resize(480, 34 * rowsPerPage);
        m_view.show();
        settle();
    }

    double turnPages(int times)
    {
        return cpuOf([&]() {
                   for (int i = 0; i < times; ++i) {
                       m_view.verticalScrollBar()->setValue(m_isAtHome ? rowsPerPage : 0);
                       m_isAtHome = !m_isAtHome;
                       settle();
                   }
               })
               / times;
    }

private:
    RowModel m_model;
    QTableView m_view;
    bool m_isAtHome = true;
};

/// Marks a row and takes the mark away again: the toolkit's own call and nothing else.
class MarkSubject
{
public:
    MarkSubject() : m_list(m_noTitle, nullptr)
    {
        QStringList row = sampleRow(0);
        m_list.addWidget(row, true, false);
        m_list.resize(480, 600);
        m_list.show();
        settle();
    }

    double mark(int times)
    {
        QWidget *const row = m_list.itemAt(0);
        return cpuOf([&]() {
                   for (int i = 0; i < times; ++i)
                       row->setStyleSheet(
                           QLatin1String(i % 2 ? RowStyle::plainRow : RowStyle::selectedRow));
               })
               / times;
    }

private:
    QStringList m_noTitle;
    TListWidget m_list;
};

void measurePages(Report &report, int rows)
{
    ListSubject<TListWidget> own(rows);
    ListSubject<TListWidget> unmarked(rows);
    unmarked.takeMarkAway();
    MarkSubject mark;
    ListSubject<PlainList> other(rows);
    TableSubject table(rows);
    const int rounds = 15;

    const QString turn = QLatin1String("page turn, painted");
    Contest turns(turn, rows);
    turns.add(shipped, [&]() { return own.turnPages(10); });
    turns.add(plain, [&]() { return other.turnPages(10); });
    turns.add(tableView, [&]() { return table.turnPages(10); });
    const QString withoutMark = QLatin1String("no mark");
    turns.add(withoutMark, [&]() { return unmarked.turnPages(10); });
    const QString bareMark = QLatin1String("bare mark");
    turns.add(bareMark, [&]() { return mark.mark(10); });
    turns.run(report, rounds, true);
    report.compare(turn, rows, shipped, rows, plain, 0.22);
    report.compare(turn, rows, shipped, rows, tableView, 1);
    report.compare(turn, rows, withoutMark, rows, tableView, 1);
    report.compare(turn, rows, bareMark, rows, tableView);
    report.compare(turn, rows, plain, rows, tableView);

    const QString refill = QLatin1String("refill of an unchanged page");
    Contest refills(refill, rows);
    refills.add(shipped, [&]() { return own.refill(20); });
    refills.add(plain, [&]() { return other.refill(5); });
    refills.run(report, rounds, true);
    report.compare(refill, rows, shipped, rows, plain, 0.01);

    const QString append = QLatin1String("append with refresh");
    Contest appends(append, rows);
    appends.add(shipped, [&]() { return own.appendRows(5); });
    appends.add(plain, [&]() { return other.appendRows(5); });
    appends.run(report, rounds, true);
    report.compare(append, rows, shipped, rows, plain, 0.1);
}

void measureInsertion(Report &report, int rows, double limit)
{
    ListSubject<TListWidget> own(rows);
    ListSubject<PlainList> other(rows);
    const QString work = QLatin1String("insert at the front");
    Contest contest(work, rows);
    contest.add(shipped, [&]() { return own.insertAtFront(); });
    contest.add(plain, [&]() { return other.insertAtFront(); });
    contest.run(report, 11, true);
    report.compare(work, rows, shipped, rows, plain, limit);
}

} // namespace

void measureRows(Report &report, const Extent &extent)
{
    measurePages(report, 1000);
    if (!extent.isQuick)
        measurePages(report, 100000);
    measureInsertion(report, 1000, 0);
    measureInsertion(report, 10000, 0.2);
    if (!extent.isQuick)
        measureInsertion(report, 100000, 0.15);
}
