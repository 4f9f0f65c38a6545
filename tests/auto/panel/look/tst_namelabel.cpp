// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/namelabel.h"

class TestNameLabel : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNameThatFitsIsShownWithItsState();
    void itIsBrokenBetweenItsParts();
    void theStateGivesWayToItsMark();
    void aLongNameLosesItsMiddle_data();
    void aLongNameLosesItsMiddle();
    void theNumberStaysWhereverItStands_data();
    void theNumberStaysWhereverItStands();
    void lettersGetSmallerBeforeAnythingIsLost();
    void lettersGetNarrowerBeforeAWordIsBroken();
    void whatIsShownIsPainted();
};

namespace {

/// In letters of which so many fill \a width.
int widthOf(const NameLabel &label, const QString &text)
{
    return label.fontMetrics().horizontalAdvance(text);
}

void prepare(NameLabel *label, int pixels, int lines)
{
    QFont font = label->font();
    font.setPixelSize(pixels);
    label->setFont(font);
    label->setLines(lines);
}

} // namespace

void TestNameLabel::aNameThatFitsIsShownWithItsState()
{
    NameLabel label;
    label.resize(400, 30);
    label.setName("coil.cnc");
    QCOMPARE(label.shown(), QStringList("coil.cnc"));
    QCOMPARE(label.accessibleName(), QString());
    label.setName("coil.cnc", "*", "changed");
    QCOMPARE(label.shown(), QStringList("coil.cnc (changed)"));
    QCOMPARE(label.text(), QString("coil.cnc*"));
    QCOMPARE(label.accessibleName(), QString("coil.cnc, changed"));
}

void TestNameLabel::itIsBrokenBetweenItsParts()
{
    NameLabel label;
    prepare(&label, 11, 3);
    label.resize(widthOf(label, "stator-coi"), 60);
    label.setName("program.teach");
    QCOMPARE(label.shown(), QStringList({"program", ".teach"}));
    label.setName("stator-coil.cnc");
    QCOMPARE(label.shown(), QStringList({"stator-", "coil.cnc"}));
    label.setName("Files and stick");
    QCOMPARE(label.shown(), QStringList({"Files", "and stick"}));
    // A part that is longer than a line is broken all the same.
    label.setName("programmed.teach");
    QCOMPARE(label.shown().join(QString()), QString("programmed.teach"));
}

void TestNameLabel::theStateGivesWayToItsMark()
{
    NameLabel label;
    prepare(&label, 11, 1);
    label.setName("coil.cnc", "*", "changed");
    label.resize(widthOf(label, "coil.cnc (changed)"), 30);
    QCOMPARE(label.shown(), QStringList("coil.cnc (changed)"));
    label.resize(widthOf(label, "coil.cnc (changed)") - 1, 30);
    QCOMPARE(label.shown(), QStringList("coil.cnc*"));
}

void TestNameLabel::aLongNameLosesItsMiddle_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    const QString dots = QString(QChar(0x2026));
    QTest::newRow("a number at the end") << "stator-coil-left-4711.cnc"
                                         << "stator-" + dots + "4711.cnc";
    QTest::newRow("a number in front") << "4711-stator-coil-left.cnc"
                                       << "4711-st" + dots + "left.cnc";
    QTest::newRow("no number") << "stator-coil-of-the-left.cnc"
                               << "stator-" + dots + "left.cnc";
    QTest::newRow("a number in the middle") << "stator-4711-of-the-left.cnc"
                                            << "stator-4711" + dots + "cnc";
    QTest::newRow("short enough") << "stator-4711.cnc"
                                  << "stator-4711.cnc";
}

void TestNameLabel::aLongNameLosesItsMiddle()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    const auto isShort = [&](const QString &text) { return text.size() <= shown.size(); };
    QCOMPARE(NameLabel::shortened(name, isShort), shown);
}

void TestNameLabel::theNumberStaysWhereverItStands_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"4711", "a4711b", "4711-a-very-long-name-of-a-coil.cnc",
          "a-very-long-name-of-a-coil-4711", "a-very-long-4711-name-of-a-coil.cnc",
          "machine-2-coil-4711-left-side-of-the-stator.cnc"})
        QTest::newRow(name) << name;
}

// In each width, down to the number with a letter and dots at its sides.
void TestNameLabel::theNumberStaysWhereverItStands()
{
    QFETCH(QString, name);
    for (int length = name.size(); length >= 8; --length) {
        const QString text =
            NameLabel::shortened(name, [=](const QString &some) { return some.size() <= length; });
        QVERIFY2(text.contains("4711"), qPrintable(text));
        QVERIFY2(text.size() <= length, qPrintable(text));
        QCOMPARE(text.at(0), name.at(0));
        QCOMPARE(text.at(text.size() - 1), name.at(name.size() - 1));
    }
    QCOMPARE(NameLabel::shortened(name, [](const QString &text) { return text.size() < 2; }),
             QString(QChar(0x2026)));
}

void TestNameLabel::lettersGetSmallerBeforeAnythingIsLost()
{
    NameLabel small;
    prepare(&small, 11, 1);
    NameLabel label;
    prepare(&label, 16, 1);
    label.setName("stator-coil-left-4711.cnc");
    label.resize(widthOf(small, "stator-coil-left-4711.cnc"), 30);
    QCOMPARE(label.shown(), QStringList("stator-coil-left-4711.cnc"));
    QVERIFY(label.isWhole());
    // They get narrower, too, down to four fifths.
    label.resize(label.width() * 3 / 4, 30);
    QVERIFY(!label.isWhole());
    QVERIFY2(label.shown().first().contains(QChar(0x2026)), qPrintable(label.shown().first()));
    QVERIFY2(label.shown().first().contains("4711"), qPrintable(label.shown().first()));
    // Of no width there is nothing to show.
    label.resize(1, 30);
    QCOMPARE(label.shown(), QStringList(QString(QChar(0x2026))));
}

void TestNameLabel::lettersGetNarrowerBeforeAWordIsBroken()
{
    NameLabel label;
    prepare(&label, 11, 3);
    label.setName("program.teach", "*", "changed");
    const int whole = widthOf(label, "program");
    label.resize(whole * 85 / 100, 60);
    QCOMPARE(label.shown(), QStringList({"program", ".teach*"}));
    QVERIFY(label.isWhole());
    // Narrower than that nobody reads it, and the letters have their width again.
    label.resize(whole * 70 / 100, 60);
    QVERIFY(label.shown().first() != "program");
    QVERIFY(!label.isWhole());
    QCOMPARE(label.shown().join(QString()), QString("program.teach*"));
    QVERIFY(widthOf(label, label.shown().first()) <= label.width());
}

void TestNameLabel::whatIsShownIsPainted()
{
    const auto picture = [](const QString &name) {
        NameLabel label;
        prepare(&label, 14, 1);
        label.setName(name);
        label.resize(120, 30);
        return TestCompat::grab(&label).toImage();
    };
    // The ends differ, and the room is for less.
    QVERIFY(picture(QString(40, 'a') + "1") != picture(QString(40, 'a') + "2"));
    QCOMPARE(picture(QString(40, 'a') + "1"), picture(QString(41, 'a') + "1"));
}

FILARIX_TEST_MAIN(TestNameLabel)
#include "tst_namelabel.moc"
