// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/primarysurface.h"
#include "display/surfaceloan.h"
#include "filarixtest.h"
#include "tlistwidget.h"

#include <QScreen>

class TestSurfaceLoan : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aLoanLastsAsLongAsItStands();
    void theWidthMayBeLentToo();
    void aLoanWithinALoanGivesBackTheOuterOne();
    void rowsAreMadeForTheHeightLent();

private:
    static QSize available() { return QGuiApplication::primaryScreen()->availableSize(); }
};

void TestSurfaceLoan::init()
{
    FilarixTest::init();
    const QRect small(0, 0, 480, 272);
    PrimarySurface::set(small, small);
}

void TestSurfaceLoan::aLoanLastsAsLongAsItStands()
{
    {
        const SurfaceLoan loan(600);
        QCOMPARE(available(), QSize(480, 600));
        // What windows are placed by stays.
        QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(480, 272));
    }
    QCOMPARE(available(), QSize(480, 272));
}

void TestSurfaceLoan::theWidthMayBeLentToo()
{
    const SurfaceLoan loan(600, 300);
    QCOMPARE(available(), QSize(300, 600));
}

void TestSurfaceLoan::aLoanWithinALoanGivesBackTheOuterOne()
{
    const SurfaceLoan outer(600);
    {
        const SurfaceLoan inner(700, 400);
        QCOMPARE(available(), QSize(400, 700));
    }
    QCOMPARE(available(), QSize(480, 600));
}

static int rowHeight()
{
    QStringList noTitle;
    TListWidget list(noTitle, nullptr);
    QStringList row{"DataEditor", "0", QString(), "name", "value"};
    list.addWidget(row, false, false);
    list.setCurIndex(0, true);
    list.home();
    return list.itemAt(0) ? list.itemAt(0)->minimumHeight() : 0;
}

void TestSurfaceLoan::rowsAreMadeForTheHeightLent()
{
    const int small = rowHeight();
    QVERIFY2(small > 0 && small < 34, qPrintable(QString::number(small)));
    const SurfaceLoan loan;
    QCOMPARE(rowHeight(), 34);
}

FILARIX_TEST_MAIN(TestSurfaceLoan)
#include "tst_surfaceloan.moc"
