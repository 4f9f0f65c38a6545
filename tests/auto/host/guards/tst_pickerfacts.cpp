// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/pickerfacts.h"

#include <QScopedPointer>

class TestPickerFacts : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void namesThatPassByAreNotRead();
    void noNameNoFacts_data();
    void noNameNoFacts();
    void longProgramIsCountedInPart();
    void diskThatDoesNotAnswerIsTold();

private:
    QScopedPointer<PickerFacts> m_facts;
};

void TestPickerFacts::init()
{
    FilarixTest::init();
    writeFile(programDir() + "/coil.cnc", "; Coil\nG01\n");
    writeFile(programDir() + "/long.cnc", QByteArray("G01 X1 Y2 Z3\n").repeated(200000));
    m_facts.reset(new PickerFacts(programDir(), MachineProfile::forSamples(), false, nullptr));
}

void TestPickerFacts::cleanup()
{
    m_facts.reset();
    FilarixTest::cleanup();
}

void TestPickerFacts::namesThatPassByAreNotRead()
{
    for (int i = 0; i < 50; ++i)
        m_facts->tell("long.cnc");
    m_facts->tell("coil.cnc");
    QVERIFY(!m_facts->isSettled());
    QCOMPARE(m_facts->text(), QString());
    QTRY_VERIFY(m_facts->isSettled());
    QVERIFY(m_facts->text().startsWith("Coil\n3 lines\n1 KB\n"));
}

void TestPickerFacts::noNameNoFacts_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a path") << "../coil.cnc";
    QTest::newRow("hidden") << ".coil.cnc";
}

void TestPickerFacts::noNameNoFacts()
{
    QFETCH(QString, name);
    m_facts->tell("coil.cnc");
    QTRY_VERIFY(m_facts->text().contains("3 lines"));
    m_facts->tell(name);
    QTRY_VERIFY(m_facts->isSettled());
    QCOMPARE(m_facts->text(), QString());
}

void TestPickerFacts::longProgramIsCountedInPart()
{
    QFile file(programDir() + "/long.cnc");
    QVERIFY(file.resize(ProgramSummary::mostBytes + 1));
    m_facts->tell("long.cnc");
    QTRY_VERIFY(m_facts->isSettled());
    QVERIFY2(m_facts->text().startsWith("More than 200001 lines: too long to be read here."),
             qPrintable(m_facts->text()));
}

void TestPickerFacts::diskThatDoesNotAnswerIsTold()
{
    m_facts->setStallTime(0);
    m_facts->tell("long.cnc");
    QTRY_COMPARE(m_facts->text(), QString("The panel's storage does not answer."));
    m_facts->setStallTime(PickerFacts::stallMs);
    m_facts->tell("coil.cnc");
    QTRY_VERIFY(m_facts->text().contains("3 lines"));
}

FILARIX_TEST_MAIN(TestPickerFacts)
#include "tst_pickerfacts.moc"
