// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/measures.h"
#include "look/pagekeys.h"
#include "look/paneltable.h"

#include <QDialog>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

/// A dialog of a content and its keys.
class PagedDialog : public QDialog
{
public:
    PagedDialog(QAbstractScrollArea *content, int kept) : keys(new PageKeys(content, kept))
    {
        QVBoxLayout *column = new QVBoxLayout(this);
        column->addWidget(content, 1);
        column->addLayout(keys);
        resize(300, 260);
    }

    QPushButton *key(const char *name) const { return findChild<QPushButton *>(name); }
    void press(const char *name) const { QTest::mouseClick(key(name), Qt::LeftButton); }

    PageKeys *keys;
};

class TestPageKeys : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void lastRowOfAPageIsTheFirstOfTheNext();
    void pixelsAreKeptInView();
    void keyThatLeadsNowhereIsOff();
    void contentThatComesLaterIsFollowed();
    void everyKeyIsForAThumbAndHasAName();
};

static PanelTable *makeTable(int rows)
{
    PanelTable *table = new PanelTable(rows, 1);
    table->horizontalHeader()->hide();
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    for (int row = 0; row < rows; ++row)
        table->setItem(row, 0, new QTableWidgetItem(QString::number(row)));
    return table;
}

void TestPageKeys::lastRowOfAPageIsTheFirstOfTheNext()
{
    PanelTable *table = makeTable(100);
    PagedDialog dialog(table, PageKeys::oneRow);
    dialog.show();
    const QScrollBar *bar = table->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    QVERIFY(bar->pageStep() > 2);
    dialog.press("forth");
    QCOMPARE(bar->value(), bar->pageStep() - 1);
    dialog.press("forth");
    QCOMPARE(bar->value(), 2 * (bar->pageStep() - 1));
    dialog.press("back");
    QCOMPARE(bar->value(), bar->pageStep() - 1);
}

void TestPageKeys::pixelsAreKeptInView()
{
    QScrollArea *area = new QScrollArea;
    QWidget *content = new QWidget;
    content->setMinimumSize(50, 3000);
    area->setWidget(content);
    PagedDialog dialog(area, 40);
    dialog.show();
    const QScrollBar *bar = area->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 1000);
    dialog.press("forth");
    QCOMPARE(bar->value(), bar->pageStep() - 40);
    // A view of less height than what is kept moves all the same.
    area->setMaximumHeight(20);
    QTRY_VERIFY(bar->pageStep() <= 40);
    const int before = bar->value();
    dialog.press("forth");
    QCOMPARE(bar->value(), before + 1);
}

void TestPageKeys::keyThatLeadsNowhereIsOff()
{
    PanelTable *table = makeTable(20);
    PagedDialog dialog(table, PageKeys::oneRow);
    dialog.show();
    QTRY_VERIFY(dialog.key("forth")->isEnabled());
    QVERIFY(!dialog.key("back")->isEnabled());
    int presses = 0;
    while (dialog.key("forth")->isEnabled() && ++presses < 50)
        dialog.press("forth");
    QCOMPARE(table->verticalScrollBar()->value(), table->verticalScrollBar()->maximum());
    QVERIFY(presses > 1 && presses < 20);
    QVERIFY(dialog.key("back")->isEnabled());
}

void TestPageKeys::contentThatComesLaterIsFollowed()
{
    PanelTable *table = makeTable(0);
    PagedDialog dialog(table, PageKeys::oneRow);
    dialog.show();
    QVERIFY(!dialog.key("forth")->isEnabled());
    table->setRowCount(100);
    QTRY_VERIFY(dialog.key("forth")->isEnabled());
    table->setRowCount(1);
    QTRY_VERIFY(!dialog.key("forth")->isEnabled());
}

void TestPageKeys::everyKeyIsForAThumbAndHasAName()
{
    PagedDialog dialog(makeTable(5), PageKeys::oneRow);
    QPushButton *close = dialog.keys->add("Close", "close");
    QHBoxLayout *second = new QHBoxLayout;
    static_cast<QVBoxLayout *>(dialog.layout())->addLayout(second);
    PageKeys::addTo(second, "Bring back", "restore");
    dialog.show();
    QTRY_VERIFY(close->width() > dialog.key("back")->width());
    const QList<QPushButton *> keys = dialog.findChildren<QPushButton *>();
    QCOMPARE(keys.size(), 4);
    for (const QPushButton *key : keys) {
        QVERIFY(key->height() >= Measures::touch() && key->width() >= Measures::touch());
        QVERIFY(!key->autoDefault());
    }
    for (const char *name : {"back", "forth"}) {
        QVERIFY(!dialog.key(name)->icon().isNull());
        QCOMPARE(dialog.key(name)->text(), QString());
    }
    QCOMPARE(dialog.key("back")->accessibleName(), QString("Page up"));
    QCOMPARE(dialog.key("forth")->accessibleName(), QString("Page down"));
}

FILARIX_TEST_MAIN(TestPageKeys)
#include "tst_pagekeys.moc"
