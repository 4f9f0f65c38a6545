// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "../../list/rowprobe.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "guards/rowwatcher.h"
#include "recordingkeypads.h"
#include "rowfixture.h"
#include "tlistwidget.h"

#include <QPointer>
#include <QSignalSpy>

using namespace RowFixture;
using namespace RowProbe;

/// A host that hears of what its operator edits.
class TestRowWatcher : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void editOfAnInstructionIsTold();
    void editOfATextAmongInstructionsIsTold();
    void editOfATableIsTold();
    void editOfARowOnAnotherPageIsTold();
    void editOfANewRowIsTold();
    void cancelledEditIsNotTold();
    void whatTheHostWritesIsNotTold();
    void eachEditIsToldOnce();
    void editOfAReplacedRowIsToldWhereItWent_data();
    void editOfAReplacedRowIsToldWhereItWent();
    void listMayGoFirst();
};

namespace {

/// A list of instructions with its watcher and what that told.
class Watched
{
public:
    explicit Watched(int rows)
        : m_title(title())
        , m_list(new TListWidget(m_title, nullptr))
        , watcher(m_list.data())
        , told(&watcher, SIGNAL(rowEdited(int, QStringList)))
    {
        for (int i = 1; i <= rows; ++i) {
            QStringList row = instruction(i);
            m_list->addWidget(row, false, false);
        }
        QStringList none;
        m_list->addWidget(none, true, true);
        m_list->home();
        QCoreApplication::processEvents();
    }

    TListWidget *list() { return m_list.data(); }
    MJLine *line(int row)
    {
        return qobject_cast<MJLine *>(m_list->itemAt(m_list->getListPos(row)));
    }
    void editZ(int row, const QString &text)
    {
        DeviceLog::acceptWith(text);
        tap(RowView(line(row)).cell(RowView::Z));
    }
    void drop() { m_list.reset(); }

private:
    QStringList m_title;
    QScopedPointer<TListWidget> m_list;

public:
    RowWatcher watcher;
    QSignalSpy told;
};

QStringList edited(int number, const QString &z)
{
    QStringList row = instruction(number);
    row[8] = z;
    return row;
}

} // namespace

void TestRowWatcher::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestRowWatcher::editOfAnInstructionIsTold()
{
    Watched watched(5);
    watched.editZ(3, "12.5");
    QCOMPARE(watched.told.size(), 1);
    QCOMPARE(watched.told.first().at(0).toInt(), 3);
    QCOMPARE(watched.told.first().at(1).toStringList(), edited(3, "12.5"));
    QCOMPARE(watched.list()->getContent(3), edited(3, "12.5"));
}

void TestRowWatcher::editOfATextAmongInstructionsIsTold()
{
    Watched watched(2);
    QStringList row = comment("3", "hello");
    watched.list()->addWidget(row, true, false);
    QCoreApplication::processEvents();
    DeviceLog::acceptWith("bye");
    tap(tableCell(watched.line(3)->dataEditor(), 2));
    QCOMPARE(watched.told.size(), 1);
    QCOMPARE(watched.told.first().at(0).toInt(), 3);
    QCOMPARE(watched.told.first().at(1).toStringList(), comment("3", "bye"));
}

void TestRowWatcher::editOfATableIsTold()
{
    QStringList none;
    TListWidget list(none, nullptr);
    for (int i = 0; i < 3; ++i) {
        QStringList row = variable(QString("N%1").arg(i), "7");
        list.addWidget(row, true, false);
    }
    // Rows that were there before.
    RowWatcher watcher(&list);
    QSignalSpy told(&watcher, SIGNAL(rowEdited(int, QStringList)));
    DeviceLog::acceptWith("8");
    tap(tableCell(qobject_cast<DataEditor *>(list.itemAt(1)), 2));
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().at(0).toInt(), 1);
    QCOMPARE(told.first().at(1).toStringList(), variable("N1", "8"));
}

void TestRowWatcher::editOfARowOnAnotherPageIsTold()
{
    Watched watched(40);
    watched.list()->nextPage();
    QCoreApplication::processEvents();
    const int row = 15;
    QVERIFY(watched.line(row));
    watched.editZ(row, "3");
    QCOMPARE(watched.told.size(), 1);
    QCOMPARE(watched.told.first().at(0).toInt(), row);
    QCOMPARE(watched.told.first().at(1).toStringList(), edited(row, "3"));
}

void TestRowWatcher::editOfANewRowIsTold()
{
    Watched watched(2);
    QStringList row = instruction(3);
    watched.list()->addWidget(row, true, false);
    QCoreApplication::processEvents();
    watched.editZ(3, "4");
    QCOMPARE(watched.told.size(), 1);
    QCOMPARE(watched.told.first().at(0).toInt(), 3);
}

void TestRowWatcher::cancelledEditIsNotTold()
{
    Watched watched(2);
    DeviceLog::cancel();
    tap(RowView(watched.line(1)).cell(RowView::Z));
    QCOMPARE(watched.told.size(), 0);
}

void TestRowWatcher::whatTheHostWritesIsNotTold()
{
    Watched watched(5);
    QStringList row = edited(2, "99");
    watched.list()->setContent(2, row);
    QStringList v = strings("1|2|3|4");
    watched.list()->setV(1, v);
    QStringList jpos = strings("1|2|3|4|5|6|7");
    watched.list()->setJpos(1, jpos);
    watched.list()->setIndex(1, "1");
    watched.list()->removeWidget(4, true);
    watched.list()->setSize(QSize(300, 2000));
    watched.list()->clear();
    QCoreApplication::processEvents();
    QCOMPARE(watched.told.size(), 0);
}

void TestRowWatcher::eachEditIsToldOnce()
{
    Watched watched(5);
    watched.list()->setSize(QSize(400, 2000));
    watched.list()->reshow();
    QCoreApplication::processEvents();
    watched.editZ(2, "1");
    watched.editZ(2, "2");
    QCOMPARE(watched.told.size(), 2);
    QCOMPARE(watched.told.last().at(1).toStringList(), edited(2, "2"));
}

void TestRowWatcher::editOfAReplacedRowIsToldWhereItWent_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("row");
    const int none = 0;
    QTest::newRow("nothing moves") << "" << 3;
    QTest::newRow("a row goes before it") << "remove 2" << 2;
    QTest::newRow("it goes itself") << "remove 3" << none;
    QTest::newRow("a row comes before it") << "insert 3" << 4;
    QTest::newRow("it becomes another") << "set 3" << none;
    QTest::newRow("all rows go") << "clear 0" << none;
}

void TestRowWatcher::editOfAReplacedRowIsToldWhereItWent()
{
    QFETCH(QString, change);
    QFETCH(int, row);
    const int changed = change.section(' ', 1).toInt();
    Watched watched(40);
    TListWidget *list = watched.list();
    RecordingDevice::Answer answer;
    answer.accept = true;
    answer.text = "77";
    answer.action = [list, change, changed]() {
        list->setSize(QSize(300, 2000));
        QStringList other = instruction(changed);
        other[2] = "OTHER";
        if (change.startsWith("remove"))
            list->removeWidget(changed, true);
        else if (change.startsWith("insert"))
            list->insertWidget(changed, other, true, false);
        else if (change.startsWith("set"))
            list->setContent(changed, other);
        else if (change.startsWith("clear"))
            list->clear();
    };
    RecordingDevice::instance().answers << answer;
    tap(RowView(watched.line(3)).cell(RowView::Z));
    QCOMPARE(watched.told.size(), row ? 1 : 0);
    if (row) {
        QCOMPARE(watched.told.first().at(0).toInt(), row);
        QCOMPARE(watched.told.first().at(1).toStringList(), list->getContent(row));
        QCOMPARE(list->getContent(row).at(8), QString("77"));
    }
}

void TestRowWatcher::listMayGoFirst()
{
    Watched watched(3);
    QStringList row = instruction(4);
    watched.list()->addWidget(row, true, false);
    watched.drop();
    QCoreApplication::processEvents();
    QCOMPARE(watched.told.size(), 0);
}

FILARIX_TEST_MAIN(TestRowWatcher)
#include "tst_rowwatcher.moc"
