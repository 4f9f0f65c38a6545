// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programname.h"

class TestProgramName : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void impossibleNamesAreExplained_data();
    void impossibleNamesAreExplained();
    void bareNamesHaveNoSuffix_data();
    void bareNamesHaveNoSuffix();
    void freeNameIsNotTaken_data();
    void freeNameIsNotTaken();
    void partKeepsTheSuffix();
    void unnamedFollowsTheLanguage();
};

void TestProgramName::impossibleNamesAreExplained_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPossible");
    QTest::newRow("plain") << "coil.cnc" << true;
    QTest::newRow("blank inside") << "flange coil.cnc" << true;
    QTest::newRow("bare") << "rotor" << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("blanks") << "   " << false;
    QTest::newRow("path") << "../hmi/program.teach" << false;
    QTest::newRow("absolute") << "/etc/passwd" << false;
    QTest::newRow("null character") << QString("a%1b").arg(QChar(0)) << false;
    QTest::newRow("this folder") << "." << false;
    QTest::newRow("folder above") << ".." << false;
    QTest::newRow("hidden") << ".coil.cnc" << false;
}

void TestProgramName::impossibleNamesAreExplained()
{
    QFETCH(QString, name);
    QTEST(ProgramName::complaint(name).isEmpty(), "isPossible");
}

void TestProgramName::bareNamesHaveNoSuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isBare");
    QTest::newRow("bare") << "rotor" << true;
    QTest::newRow("dot at the end") << "rotor." << true;
    QTest::newRow("suffix") << "rotor.cnc" << false;
    QTest::newRow("another suffix") << "rotor.nc" << false;
}

void TestProgramName::bareNamesHaveNoSuffix()
{
    QFETCH(QString, name);
    QTEST(ProgramName::isBare(name), "isBare");
}

void TestProgramName::freeNameIsNotTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("free");
    QTest::newRow("free") << "a.cnc" << QStringList("b.cnc") << "a.cnc";
    QTest::newRow("taken") << "a.cnc" << QStringList("a.cnc") << "a_2.cnc";
    QTest::newRow("taken twice") << "a.cnc"
                                 << (QStringList() << "a.cnc"
                                                   << "a_2.cnc")
                                 << "a_3.cnc";
    QTest::newRow("taken in other letters") << "a.cnc" << QStringList("A.CNC") << "a_2.cnc";
    QTest::newRow("bare") << "a" << QStringList("a") << "a_2";
}

void TestProgramName::freeNameIsNotTaken()
{
    QFETCH(QString, name);
    QFETCH(QStringList, taken);
    QTEST(ProgramName::freeOne(name, taken), "free");
}

void TestProgramName::partKeepsTheSuffix()
{
    QCOMPARE(ProgramName::ofPart("stator-coil.cnc"), QString("stator-coil-part.cnc"));
    QCOMPARE(ProgramName::ofPart("rotor"), QString("rotor-part"));
}

void TestProgramName::unnamedFollowsTheLanguage()
{
    QCOMPARE(ProgramName::unnamed(), QString("New program"));
    const TestCompat::MarkingTranslator translator("ProgramName");
    QCOMPARE(ProgramName::unnamed(), QString("New program*"));
}

FILARIX_TEST_MAIN(TestProgramName)
#include "tst_programname.moc"
