// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/panelstyle.h"
#include "screens/historydialog.h"

#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>

class TestHistoryDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newestIsOnTop();
    void touchChoosesTheVersion();
    void onlyKeyShowsOneProgram();
    void pageKeysReachEveryVersion();
    void emptyHistoryOffersNothing();
    void fitsTheSmallestPanel();
};

static QList<ProgramVersion> someVersions(int count)
{
    QList<ProgramVersion> versions;
    for (int i = 1; i <= count; ++i) {
        ProgramVersion version;
        version.number = i;
        version.name = i % 3 == 0 ? "other.cnc" : "coil.cnc";
        version.stored = QDateTime(QDate(2026, 11, 21), QTime(13, 5)).addSecs(60 * i).toUTC();
        version.bytes = 1024 * i - 1;
        version.hash = QByteArray::fromHex("3f2a91") + char(i);
        versions.append(version);
    }
    return versions;
}

static QPushButton *key(const HistoryDialog &dialog, const char *name)
{
    return dialog.findChild<QPushButton *>(name);
}

static QTableWidget *table(const HistoryDialog &dialog)
{
    return dialog.findChild<QTableWidget *>();
}

static void touchRow(const HistoryDialog &dialog, int row)
{
    const QRect cell = table(dialog)->visualItemRect(table(dialog)->item(row, 1));
    QTest::mouseClick(table(dialog)->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
}

void TestHistoryDialog::initTestCase()
{
    QApplication::setStyle(new PanelStyle);
}

void TestHistoryDialog::newestIsOnTop()
{
    HistoryDialog dialog(someVersions(4));
    QCOMPARE(table(dialog)->rowCount(), 4);
    QCOMPARE(table(dialog)->item(0, 0)->text(), QString("coil.cnc"));
    QCOMPARE(table(dialog)->item(0, 1)->text(), QString("2026-11-21 13:09"));
    QCOMPARE(table(dialog)->item(0, 2)->text(), QString("3F2A 9104"));
    QCOMPARE(table(dialog)->item(0, 3)->text(), QString("4 KB"));
    QCOMPARE(table(dialog)->item(1, 0)->text(), QString("other.cnc"));
}

void TestHistoryDialog::touchChoosesTheVersion()
{
    HistoryDialog dialog(someVersions(4));
    dialog.show();
    QCOMPARE(dialog.version().number, qint64(0));
    QVERIFY(!key(dialog, "restore")->isEnabled());
    touchRow(dialog, 1);
    QCOMPARE(dialog.version().number, qint64(3));
    QTest::mouseClick(key(dialog, "restore"), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestHistoryDialog::onlyKeyShowsOneProgram()
{
    HistoryDialog dialog(someVersions(9));
    dialog.show();
    QVERIFY(!key(dialog, "only")->isEnabled());
    touchRow(dialog, 3);
    QCOMPARE(dialog.version().name, QString("other.cnc"));
    const qint64 chosen = dialog.version().number;
    QTest::mouseClick(key(dialog, "only"), Qt::LeftButton);
    QCOMPARE(table(dialog)->rowCount(), 3);
    for (int row = 0; row < 3; ++row)
        QCOMPARE(table(dialog)->item(row, 0)->text(), QString("other.cnc"));
    // What was chosen stays so, and comes into the new list's view.
    QCOMPARE(dialog.version().number, chosen);
    QTest::mouseClick(key(dialog, "only"), Qt::LeftButton);
    QCOMPARE(table(dialog)->rowCount(), 9);
    QCOMPARE(dialog.version().number, chosen);
}

void TestHistoryDialog::pageKeysReachEveryVersion()
{
    HistoryDialog dialog(someVersions(100));
    dialog.show();
    QVERIFY(TestCompat::waitForExposed(&dialog));
    QVERIFY(!key(dialog, "back")->isEnabled());
    QScrollBar *bar = table(dialog)->verticalScrollBar();
    int turns = 0;
    for (; key(dialog, "forth")->isEnabled() && turns < 100; ++turns) {
        const int before = bar->value();
        QTest::mouseClick(key(dialog, "forth"), Qt::LeftButton);
        // No row is left out between two pages.
        QVERIFY(bar->value() > before && bar->value() - before <= bar->pageStep());
    }
    QCOMPARE(bar->value(), bar->maximum());
    QVERIFY(turns > 5);
    while (key(dialog, "back")->isEnabled() && turns < 300) {
        QTest::mouseClick(key(dialog, "back"), Qt::LeftButton);
        ++turns;
    }
    QCOMPARE(bar->value(), 0);
}

void TestHistoryDialog::emptyHistoryOffersNothing()
{
    HistoryDialog dialog((QList<ProgramVersion>()));
    dialog.show();
    for (const char *name : {"back", "forth", "only", "restore"})
        QVERIFY2(!key(dialog, name)->isEnabled(), name);
    QTest::mouseClick(key(dialog, "close"), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void TestHistoryDialog::fitsTheSmallestPanel()
{
    HistoryDialog dialog(someVersions(100));
    dialog.resize(472, 264);
    dialog.show();
    QVERIFY(TestCompat::waitForExposed(&dialog));
    QCOMPARE(dialog.size(), QSize(472, 264));
    const QList<QPushButton *> keys = dialog.findChildren<QPushButton *>();
    for (QPushButton *key : keys) {
        QVERIFY(dialog.rect().contains(key->geometry()));
        QVERIFY2(key->height() >= 34 && key->width() >= 34, qPrintable(key->text()));
        QVERIFY2(key->fontMetrics().horizontalAdvance(key->text()) < key->width(),
                 qPrintable(key->text()));
    }
    const QTableWidget *rows = table(dialog);
    QVERIFY(rows->rowHeight(0) >= 34);
    QVERIFY(rows->verticalScrollBar()->pageStep() >= 3);
    // Dates and sizes are read as a whole.
    for (int column : {1, 3}) {
        const int needed = rows->fontMetrics().horizontalAdvance(rows->item(99, column)->text());
        QVERIFY2(needed < rows->columnWidth(column), qPrintable(QString::number(column)));
    }
    QVERIFY(rows->columnWidth(0) >= 120);
}

FILARIX_TEST_MAIN(TestHistoryDialog)
#include "tst_historydialog.moc"
