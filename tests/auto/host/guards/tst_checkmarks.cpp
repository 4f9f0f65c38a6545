// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/checkmarks.h"

#include <QScopedPointer>
#include <QSignalSpy>

/// A host that has the program checked while its operator edits it.
class TestCheckMarks : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingIsCheckedWithoutAProfile();
    void rightProgramHasNoMarks();
    void programThatIsNotBegunHasNoMarks();
    void findingsAreMarked();
    void worstFindingOfALineStays();
    void cursorGoesFromMarkToMark();
    void changeIsCheckedAnewAfterAPause();
    void changesAreCheckedOnce();
    void otherProfileChecksAnew();
    void checkMayEndWhileItReads();
    void editorMayGoFirst();

private:
    void check(const QString &program);
    QString markedRows() const;

    QScopedPointer<QPlainTextEdit> m_editor;
    QScopedPointer<CheckMarks> m_check;
};

static const char rightProgram[] = "G21\nG90\nT1\nG00 X0 Y25 U0\nM10\nG00 X0.125 Y8\n"
                                   "G01 U2.5 F200\nS300 M03\nG33 X12.625 K0.25\nM05\n"
                                   "G01 U0 F200\nG00 X0 Y25\nM12\nM30";

// Two unknown words, on lines 3 and 9.
static QString faultyProgram()
{
    return QString(rightProgram).replace("T1", "T1 Q1").replace("K0.25", "K0.25 Q2");
}

void TestCheckMarks::init()
{
    FilarixTest::init();
    m_editor.reset(new QPlainTextEdit);
    m_check.reset(new CheckMarks(m_editor.data()));
    m_check->setPause(0);
}

void TestCheckMarks::cleanup()
{
    m_check.reset();
    m_editor.reset();
    FilarixTest::cleanup();
}

void TestCheckMarks::check(const QString &program)
{
    m_check->setProfile(MachineProfile::forSamples());
    QSignalSpy checked(m_check.data(), SIGNAL(checked()));
    m_editor->setPlainText(program);
    QTRY_VERIFY(m_check->isCurrent());
    QVERIFY(!checked.isEmpty());
}

QString TestCheckMarks::markedRows() const
{
    QStringList rows;
    Q_FOREACH (int row, m_check->marks()->rows())
        rows.append(QString::number(row));
    return rows.join(" ");
}

void TestCheckMarks::nothingIsCheckedWithoutAProfile()
{
    QSignalSpy checked(m_check.data(), SIGNAL(checked()));
    m_editor->setPlainText(faultyProgram());
    QVERIFY(!m_check->isCurrent());
    m_check->setProfile(MachineProfile::forSamples());
    QTRY_COMPARE(checked.size(), 1);
    QCOMPARE(markedRows(), QString("3 9"));
}

void TestCheckMarks::rightProgramHasNoMarks()
{
    check(rightProgram);
    QVERIFY(m_check->findings().isEmpty());
    QCOMPARE(markedRows(), QString());
}

void TestCheckMarks::programThatIsNotBegunHasNoMarks()
{
    check("; a title\n\n");
    QVERIFY(m_check->findings().isEmpty());
    check("; a title\n\nG21");
    QVERIFY(!m_check->findings().isEmpty());
}

void TestCheckMarks::findingsAreMarked()
{
    check(faultyProgram());
    QCOMPARE(m_check->findings().size(), 2);
    QCOMPARE(markedRows(), QString("3 9"));
    QCOMPARE(int(m_check->marks()->severity(3)), int(ErrorMarks::Error));
    QCOMPARE(m_check->marks()->text(3), m_check->findings().first().text());
}

void TestCheckMarks::worstFindingOfALineStays()
{
    QPlainTextEdit editor;
    editor.setPlainText("one\ntwo\nthree");
    ErrorMarks marks(&editor);
    QVERIFY(marks.mark(1, ErrorMarks::Note));
    QVector<Finding> findings(3);
    findings[0].severity = Finding::Error;
    findings[0].kind = Finding::UnknownWord;
    findings[0].line = 2;
    findings[1].severity = Finding::Note;
    findings[1].line = 2;
    findings[2].severity = Finding::Warning;
    findings[2].line = 3;
    CheckMarks::mark(findings, &marks);
    QCOMPARE(marks.rows(), QList<int>() << 2 << 3);
    QCOMPARE(int(marks.severity(2)), int(ErrorMarks::Error));
    QCOMPARE(marks.text(2), findings.at(0).text());
    QCOMPARE(int(marks.severity(3)), int(ErrorMarks::Warning));
    findings.resize(1);
    findings[0].severity = Finding::Note;
    CheckMarks::mark(findings, &marks);
    QCOMPARE(marks.rows(), QList<int>() << 2);
    QCOMPARE(int(marks.severity(2)), int(ErrorMarks::Note));
}

void TestCheckMarks::cursorGoesFromMarkToMark()
{
    check(rightProgram);
    QCOMPARE(m_check->goToNext(), QString());
    check(faultyProgram());
    m_editor->moveCursor(QTextCursor::Start);
    QCOMPARE(m_check->goToNext(), m_check->findings().at(0).text());
    QCOMPARE(m_editor->textCursor().blockNumber(), 2);
    QCOMPARE(m_check->goToNext(), m_check->findings().at(1).text());
    QCOMPARE(m_editor->textCursor().blockNumber(), 8);
    QCOMPARE(m_check->goToNext(), m_check->findings().at(0).text());
    QCOMPARE(m_editor->textCursor().blockNumber(), 2);
}

void TestCheckMarks::changeIsCheckedAnewAfterAPause()
{
    check(faultyProgram());
    m_check->setPause(60000);
    QSignalSpy checked(m_check.data(), SIGNAL(checked()));
    m_editor->setPlainText(rightProgram);
    QVERIFY(!m_check->isCurrent());
    QCOMPARE(m_check->findings().size(), 2);
    m_check->setPause(0);
    m_editor->insertPlainText(" ");
    QTRY_VERIFY(m_check->isCurrent());
    QCOMPARE(checked.size(), 1);
    QVERIFY(m_check->findings().isEmpty());
    QCOMPARE(markedRows(), QString());
}

void TestCheckMarks::changesAreCheckedOnce()
{
    check(rightProgram);
    QSignalSpy checked(m_check.data(), SIGNAL(checked()));
    for (int i = 0; i < 20; ++i)
        m_editor->insertPlainText("Q1\n");
    QTRY_VERIFY(m_check->isCurrent());
    QCOMPARE(checked.size(), 1);
    QCOMPARE(m_check->findings().size(), 20);
}

void TestCheckMarks::otherProfileChecksAnew()
{
    check(rightProgram);
    QSignalSpy checked(m_check.data(), SIGNAL(checked()));
    MachineProfile nothingKnown;
    m_check->setProfile(nothingKnown);
    QTRY_COMPARE(checked.size(), 1);
    QVERIFY(!m_check->findings().isEmpty());
}

void TestCheckMarks::checkMayEndWhileItReads()
{
    m_check->setProfile(MachineProfile::forSamples());
    m_editor->setPlainText(QString("G21\nG90\n").repeated(20000));
    m_check.reset();
    QCoreApplication::processEvents();
    QVERIFY(m_editor->extraSelections().isEmpty());
}

void TestCheckMarks::editorMayGoFirst()
{
    check(faultyProgram());
    m_editor->setPlainText(rightProgram);
    m_editor.reset();
    QCoreApplication::processEvents();
    QVERIFY(!m_check->isCurrent());
    m_check->setProfile(MachineProfile::forSamples());
    QCoreApplication::processEvents();
    QCOMPARE(m_check->findings().size(), 2);
    QCOMPARE(markedRows(), QString());
    QCOMPARE(m_check->goToNext(), QString());
}

FILARIX_TEST_MAIN(TestCheckMarks)
#include "tst_checkmarks.moc"
