// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/gaptext.h"

#include <QElapsedTimer>

class TestGapText : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void textComesBack_data();
    void textComesBack();
    void changesGiveTheTextOfAString();
    void changesOfALongTextAreCheap();
};

static TextChange change(int position, int removed, const QString &added)
{
    TextChange change;
    change.position = position;
    change.removed = removed;
    change.added = added;
    return change;
}

void TestGapText::textComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a letter") << QString("x");
    QTest::newRow("lines") << QString("G01\nG02\n");
}

void TestGapText::textComesBack()
{
    QFETCH(QString, text);
    GapText gap(text);
    QCOMPARE(gap.size(), text.size());
    QCOMPARE(gap.toString(), text);
    gap.replace(change(0, 0, QString()));
    gap.replace(change(text.size(), 0, QString()));
    QCOMPARE(gap.toString(), text);
    gap.replace(change(0, text.size(), "all"));
    QCOMPARE(gap.toString(), QString("all"));
    gap.replace(change(0, 3, QString()));
    QCOMPARE(gap.size(), 0);
    QVERIFY(gap.toString().isEmpty());
}

void TestGapText::changesGiveTheTextOfAString()
{
    QString text = QString("G01 X1 Y2\n").repeated(50);
    GapText gap(text);
    unsigned seed = 11;
    const auto next = [&seed](int below) {
        seed = seed * 1103515245u + 12345u;
        return int((seed >> 8) % unsigned(below));
    };
    for (int i = 0; i < scaled(5000, 500); ++i) {
        const int position = next(text.size() + 1);
        const int removed = next(qMin(40, text.size() - position) + 1);
        // Now and then more than the gap holds.
        const QString added = QString(QChar('a' + next(26))).repeated(next(i % 100 ? 30 : 9000));
        text.replace(position, removed, added);
        gap.replace(change(position, removed, added));
        QCOMPARE(gap.size(), text.size());
        if (text.size() > 100000) {
            gap.replace(change(0, 90000, QString()));
            text.remove(0, 90000);
        }
        if (i % 50 == 0)
            QVERIFY(gap.toString() == text);
    }
    QVERIFY(gap.toString() == text);
}

// A text of 20 MB that were copied 100,000 times would take half an hour.
void TestGapText::changesOfALongTextAreCheap()
{
    const int lines = scaled(1000000, 50000);
    GapText gap(QString("G01 X1 Y2\n").repeated(lines));
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 100000; ++i)
        gap.replace(change(lines * 5 + i, 0, "x"));
    QVERIFY(time.elapsed() < patience(5000));
    QCOMPARE(gap.size(), lines * 10 + 100000);
}

FILARIX_TEST_MAIN(TestGapText)
#include "tst_gaptext.moc"
