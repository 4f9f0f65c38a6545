// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/figuregrid.h"

#include <QLabel>

class TestFigureGrid : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachFigureHasItsPlace();
    void fewerFiguresLeaveNothingBehind();
};

static QVector<CoilFigure> figures(int count)
{
    QVector<CoilFigure> all;
    for (int i = 0; i < count; ++i) {
        CoilFigure figure;
        figure.name = QString("Name %1").arg(i);
        figure.text = QString("%1 mm").arg(i * 100);
        all.append(figure);
    }
    return all;
}

static QStringList shown(const FigureGrid &grid)
{
    QStringList texts;
    for (const QLabel *label : grid.findChildren<QLabel *>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

void TestFigureGrid::eachFigureHasItsPlace()
{
    FigureGrid grid(3, false);
    grid.setFigures(figures(5));
    grid.show();
    QCOMPARE(shown(grid), QStringList({"Name 0", "0 mm", "Name 1", "100 mm", "Name 2", "200 mm",
                                       "Name 3", "300 mm", "Name 4", "400 mm"}));
    const QList<QLabel *> labels = grid.findChildren<QLabel *>();
    const auto place = [&](int index) { return labels.at(index)->mapTo(&grid, QPoint(0, 0)); };
    // The value below its name, three figures side by side.
    QVERIFY(place(1).y() > place(0).y());
    QVERIFY(place(4).x() > place(2).x());
    QCOMPARE(place(4).y(), place(0).y());
    QVERIFY(place(6).y() > place(1).y());
    QCOMPARE(place(6).x(), place(0).x());
}

void TestFigureGrid::fewerFiguresLeaveNothingBehind()
{
    FigureGrid grid(2, true);
    grid.show();
    grid.setFigures(figures(4));
    grid.setFigures(figures(1));
    QCOMPARE(shown(grid), QStringList({"Name 0", "0 mm"}));
    grid.setFigures(figures(2));
    QCOMPARE(shown(grid).size(), 4);
}

FILARIX_TEST_MAIN(TestFigureGrid)
#include "tst_figuregrid.moc"
