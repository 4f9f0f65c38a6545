// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/pickerfacts.h"
#include "signalhook.h"
#include "somecoil.h"

#include <QScopedPointer>
#include <QSignalSpy>

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
    void readingIsStopped();
    void stopWithoutReadingDoesNothing();
    void endIsToldOnce();
    void programOfAnotherFolder();
    void coilOfAWindingProgram();
    void factsThatHaveNoRoomStayAway();
    void inOneLineWhatMattersComesFirst();

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

void TestPickerFacts::readingIsStopped()
{
    {
        const SignalHook hook(m_facts.data(), SIGNAL(progressed(int)), [this] { m_facts->stop(); });
        m_facts->tell("long.cnc");
        QTRY_COMPARE(m_facts->text(), QString("Not read to its end: it was stopped."));
    }
    QVERIFY(m_facts->isSettled());
    QVERIFY(!m_facts->summary());
    m_facts->tell("coil.cnc");
    QTRY_VERIFY(m_facts->text().contains("3 lines"));
}

void TestPickerFacts::stopWithoutReadingDoesNothing()
{
    m_facts->stop();
    m_facts->tell("coil.cnc");
    // Nothing is read yet: the choice may move on.
    m_facts->stop();
    QTRY_VERIFY(m_facts->text().contains("3 lines"));
    m_facts->stop();
    QVERIFY(m_facts->text().contains("3 lines"));
}

void TestPickerFacts::endIsToldOnce()
{
    QSignalSpy settled(m_facts.data(), SIGNAL(settled()));
    for (const char *name : {"coil.cnc", "nowhere.cnc", ""}) {
        m_facts->tell(name);
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(m_facts->isSettled());
        settled.clear();
    }
    m_facts->setStallTime(0);
    m_facts->tell("long.cnc");
    QTRY_COMPARE(settled.size(), 1);
    QVERIFY(!m_facts->summary());
}

void TestPickerFacts::programOfAnotherFolder()
{
    writeFile(home() + "/stick/theirs.cnc", "G01\nG01\nG01\n");
    m_facts->setFolder(home() + "/stick");
    m_facts->tell("theirs.cnc");
    QTRY_VERIFY(m_facts->text().startsWith("4 lines"));
}

void TestPickerFacts::coilOfAWindingProgram()
{
    writeFile(programDir() + "/winds.cnc", SomeCoil::program(2, 10));
    m_facts->setProfile(MachineProfile::forSamples());
    m_facts->tell("winds.cnc");
    QTRY_VERIFY(m_facts->text().contains("20 turns"));
    // In a picker there is no room for it.
    QVERIFY(!m_facts->text().contains("Runs for"));
    m_facts->setRoom(PickerFacts::AsManyAsFit);
    m_facts->resize(400, 300);
    m_facts->tell("winds.cnc");
    QTRY_VERIFY(m_facts->isSettled());
    QVERIFY(m_facts->summary() != nullptr);
    QCOMPARE(m_facts->summary()->model().layers().size(), 2);
    QVERIFY2(m_facts->text().contains("20 turns"), qPrintable(m_facts->text()));
    QVERIFY2(m_facts->text().contains("\nRuns for 5.2 s\n"), qPrintable(m_facts->text()));
}

void TestPickerFacts::factsThatHaveNoRoomStayAway()
{
    m_facts->setRoom(PickerFacts::AsManyAsFit);
    m_facts->resize(200, 300);
    m_facts->show();
    m_facts->tell("coil.cnc");
    QTRY_COMPARE(m_facts->text().count('\n'), 3);
    m_facts->resize(200, m_facts->fontMetrics().height() * 2 + 9);
    QCOMPARE(m_facts->text(), QString("Coil\n3 lines"));
    QFont font = m_facts->font();
    font.setPixelSize(10);
    m_facts->setFont(font);
    m_facts->resize(200, 300);
    QCOMPARE(m_facts->text().count('\n'), 3);
}

void TestPickerFacts::inOneLineWhatMattersComesFirst()
{
    m_facts->setRoom(PickerFacts::OneLine);
    m_facts->resize(600, 30);
    m_facts->show();
    m_facts->tell("coil.cnc");
    QTRY_VERIFY(m_facts->text().startsWith("3 lines   1 KB   2"));
    QVERIFY(m_facts->text().endsWith("   Coil"));
    m_facts->resize(m_facts->fontMetrics().width("3 lines   1 KB") + 10, 30);
    QCOMPARE(m_facts->text(), QString("3 lines   1 KB"));
    // Never nothing.
    m_facts->resize(10, 30);
    QCOMPARE(m_facts->text(), QString("3 lines"));
    m_facts->setRoom(PickerFacts::AllOfThem);
    QVERIFY(m_facts->text().contains('\n'));
}

FILARIX_TEST_MAIN(TestPickerFacts)
#include "tst_pickerfacts.moc"
