// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "goldenlist.h"

class TestGoldenList : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void keptAndWantedPicturesAreToldApart();
    void aTableThatIsMissingIsEmpty();
    void namesSayWhatIsShown();
};

void TestGoldenList::keptAndWantedPicturesAreToldApart()
{
    const QString path = home() + "/pictures.txt";
    writeFile(path, "# screen 1x1\n"
                    "\n"
                    "screen   480x272  800x480  what it shows\n"
                    "program  Ld       L        a Dark program\n"
                    "files    -        lDh      files\n");
    const GoldenList list(path);
    QCOMPARE(list.stops("480x272", "light", false), QStringList({"program"}));
    QCOMPARE(list.stops("480x272", "dark", false), QStringList());
    QCOMPARE(list.stops("480x272", "dark", true), QStringList({"program"}));
    QCOMPARE(list.stops("800x480", "light", true), QStringList({"program", "files"}));
    QCOMPARE(list.stops("800x480", "dark", false), QStringList({"files"}));
    QCOMPARE(list.stops("800x480", "high-contrast", false), QStringList());
    QCOMPARE(list.stops("800x480", "high-contrast", true), QStringList({"files"}));
    QCOMPARE(list.stops("1x1", "light", true), QStringList());
}

void TestGoldenList::aTableThatIsMissingIsEmpty()
{
    QCOMPARE(GoldenList(home() + "/none").stops("480x272", "light", true), QStringList());
}

void TestGoldenList::namesSayWhatIsShown()
{
    QCOMPARE(GoldenList::fileName("480x272", "dark", "find"), QString("480x272-dark-find.png"));
}

FILARIX_TEST_MAIN(TestGoldenList)
#include "tst_goldenlist.moc"
