// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/barpager.h"

#include <QToolBar>
#include <QToolButton>

typedef QVector<QPair<int, int>> Pages;

class TestBarPager : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void pages_data();
    void pages();
    void everyButtonOfANarrowBarIsOnSomePage();
    void barThatFitsHasNoKey();
};

void TestBarPager::pages_data()
{
    QTest::addColumn<QVector<int>>("widths");
    QTest::addColumn<int>("room");
    QTest::addColumn<Pages>("expected");
    const QVector<int> five(5, 10);
    QTest::newRow("nothing") << QVector<int>() << 100 << Pages();
    QTest::newRow("all fit to the pixel") << five << 50 << Pages{{0, 4}};
    QTest::newRow("last page is filled from the end") << five << 40 << Pages{{0, 3}, {1, 4}};
    QTest::newRow("three pages") << five << 20 << Pages{{0, 1}, {2, 3}, {3, 4}};
    QTest::newRow("wider than the room")
        << five << 5 << Pages{{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}};
}

void TestBarPager::pages()
{
    QFETCH(QVector<int>, widths);
    QFETCH(int, room);
    QTEST(BarPager::pages(widths, room), "expected");
}

static QList<QToolButton *> fill(QToolBar *bar, int count)
{
    QList<QToolButton *> buttons;
    for (int i = 0; i < count; ++i) {
        buttons.append(new QToolButton);
        buttons.last()->setText(QString("Button %1").arg(i));
        bar->addWidget(buttons.last());
    }
    return buttons;
}

static QToolButton *moreKey(QToolBar *bar)
{
    const QList<QToolButton *> buttons = bar->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->text() == "More")
            return button;
    }
    return nullptr;
}

void TestBarPager::everyButtonOfANarrowBarIsOnSomePage()
{
    QToolBar bar;
    const QList<QToolButton *> buttons = fill(&bar, 12);
    new BarPager(&bar);
    bar.resize(300, 72);
    bar.show();
    QVERIFY(TestCompat::waitForExposed(&bar));

    QSet<QToolButton *> seen;
    for (int page = 0; page < 12; ++page) {
        QTRY_VERIFY(moreKey(&bar)->isVisible());
        for (QToolButton *button : buttons) {
            if (!button->isVisible())
                continue;
            seen.insert(button);
            QVERIFY(bar.rect().contains(button->geometry()));
            QVERIFY(button->geometry().right() < moreKey(&bar)->geometry().left());
        }
        QTest::mouseClick(moreKey(&bar), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    QCOMPARE(seen.size(), 12);
}

void TestBarPager::barThatFitsHasNoKey()
{
    QToolBar bar;
    const QList<QToolButton *> buttons = fill(&bar, 4);
    new BarPager(&bar);
    bar.resize(200, 72);
    bar.show();
    QVERIFY(TestCompat::waitForExposed(&bar));
    QVERIFY(moreKey(&bar)->isVisible());
    bar.resize(800, 72);
    QTRY_VERIFY(!moreKey(&bar)->isVisible());
    for (QToolButton *button : buttons)
        QVERIFY(button->isVisible());
}

FILARIX_TEST_MAIN(TestBarPager)
#include "tst_barpager.moc"
