// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/unsavedlist.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedwork.h"
#include "rowfixture.h"
#include "scriptquestioner.h"
#include "tlistwidget.h"

#include <QScopedPointer>
#include <QSignalSpy>

using namespace RowFixture;

/// A host whose operator's rows outlive a power cut.
class TestUnsavedList : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreThoseBelowTheTitle();
    void rowsOfBeforeCountAsStored();
    void storedRowsAreNoChange();
    void rowsComeBackAsAChange();
    void rowsThatAListWouldNotTakeAreRefused();
    void operatorIsToldOfThem();
    void rowsComeBackAtTheNextStart();
};

namespace {

/// A list with a title and \a count instructions.
class Taught
{
public:
    explicit Taught(int count) : m_title(title()), m_list(new TListWidget(m_title, nullptr))
    {
        for (int i = 1; i <= count; ++i) {
            QStringList row = instruction(i);
            m_list->addWidget(row, true, false);
        }
    }

    TListWidget *list() { return m_list.data(); }

private:
    QStringList m_title;
    QScopedPointer<TListWidget> m_list;
};

} // namespace

void TestUnsavedList::rowsAreThoseBelowTheTitle()
{
    Taught taught(3);
    const UnsavedList rows(taught.list(), 1, "Taught rows");
    QVERIFY(!rows.isLoading());
    QCOMPARE(rows.rows().size(), 3);
    QCOMPARE(rows.rows().first(), instruction(1));
    QCOMPARE(rows.filePath(), QString());
}

void TestUnsavedList::rowsOfBeforeCountAsStored()
{
    Taught taught(3);
    UnsavedList rows(taught.list(), 1, "Taught rows");
    QVERIFY(!rows.lookForChanges());
    QStringList row = instruction(4);
    taught.list()->addWidget(row, true, false);
    QVERIFY(rows.lookForChanges());
}

void TestUnsavedList::storedRowsAreNoChange()
{
    Taught taught(3);
    UnsavedList rows(taught.list(), 1, "Taught rows");
    QStringList row = instruction(4);
    taught.list()->addWidget(row, true, false);
    rows.noteStored();
    QVERIFY(!rows.lookForChanges());
}

void TestUnsavedList::rowsComeBackAsAChange()
{
    Taught taught(2);
    UnsavedList rows(taught.list(), 1, "Taught rows");
    QList<QStringList> kept;
    for (int i = 1; i <= 30; ++i)
        kept.append(instruction(i));
    QVERIFY(rows.bringBack(QString(), kept));
    QCOMPARE(rows.rows(), kept);
    QCOMPARE(taught.list()->count(), 31);
    QVERIFY(rows.lookForChanges());
    QVERIFY(rows.bringBack(QString(), QList<QStringList>()));
    QCOMPARE(taught.list()->count(), 1);
}

void TestUnsavedList::rowsThatAListWouldNotTakeAreRefused()
{
    Taught taught(2);
    UnsavedList rows(taught.list(), 1, "Taught rows");
    QVERIFY(!rows.bringBack(QString(), QList<QStringList>() << (QStringList() << "none")));
    QCOMPARE(taught.list()->count(), 3);
    QVERIFY(!rows.lookForChanges());
}

void TestUnsavedList::operatorIsToldOfThem()
{
    Taught taught(2);
    const UnsavedList rows(taught.list(), 1, "Taught rows");
    QCOMPARE(rows.nameOf(QString()), QString("Taught rows"));
    QCOMPARE(rows.describe("Taught rows", "13:05", 2), QString("Taught rows, 13:05, rows: 2"));
}

void TestUnsavedList::rowsComeBackAtTheNextStart()
{
    const QString folder = home() + "/unsaved";
    ScriptQuestioner questioner;
    {
        Taught taught(2);
        UnsavedList rows(taught.list(), 1, "Taught rows");
        UnsavedWork work(folder);
        work.watchRows("taught", &rows);
        QStringList row = instruction(3);
        taught.list()->addWidget(row, true, false);
        QVERIFY(work.flush(10000));
    }
    Taught taught(2);
    UnsavedList rows(taught.list(), 1, "Taught rows");
    UnsavedWork work(folder);
    work.watchRows("taught", &rows);
    UnsavedOffer offer(folder, &work, &questioner);
    offer.addRows("taught", &rows);
    questioner.answers << 1;
    QSignalSpy ended(&offer, SIGNAL(ended()));
    offer.start();
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(questioner.asked.size(), 1);
    QVERIFY(questioner.asked.first().plainText().contains("rows: 3"));
    QCOMPARE(rows.rows().size(), 3);
    QVERIFY(work.flush(10000));
}

FILARIX_TEST_MAIN(TestUnsavedList)
#include "tst_unsavedlist.moc"
