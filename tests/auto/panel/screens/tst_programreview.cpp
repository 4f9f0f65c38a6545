// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programinspection.h"
#include "screens/coilpreview.h"
#include "screens/programreview.h"

#include <QPlainTextEdit>
#include <QSignalSpy>

class TestProgramReview : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rightProgramHasNoFindings();
    void emptyProgramHasNoFindings();
    void findingsAreCountedAndMarked();
    void everyChangeIsCheckedAnew();
    void whatIsNotReadYetIsNotChecked();
    void faultyProfileChecksNothing();
    void findingIsFoundAgain();
    void nextAndPreviousGoByLines();
    void fileIsInspectedByTheSameRules();
    void reviewMayEndWhileItReads();

private:
    void make(const QString &program);

    QScopedPointer<QPlainTextEdit> m_editor;
    QScopedPointer<CoilPreview> m_preview;
    QScopedPointer<ProgramReview> m_review;
};

static const char rightProgram[] = "G21\nG90\nT1\nG00 X0 Y25 U0\nM10\nG00 X0.125 Y8\n"
                                   "G01 U2.5 F200\nS300 M03\nG33 X12.625 K0.25\nM05\n"
                                   "G01 U0 F200\nG00 X0 Y25\nM12\nM30";

// Two unknown words, on lines 3 and 9.
static QString faultyProgram()
{
    return QString(rightProgram).replace("T1", "T1 Q1").replace("K0.25", "K0.25 Q2");
}

void TestProgramReview::init()
{
    FilarixTest::init();
    m_editor.reset(new QPlainTextEdit);
    m_preview.reset(new CoilPreview(m_editor->document()));
    m_preview->setPause(0);
    m_preview->setProfile(MachineProfile::forSamples());
    m_review.reset(new ProgramReview(m_preview.data(), m_editor.data()));
}

void TestProgramReview::cleanup()
{
    m_review.reset();
    m_preview.reset();
    m_editor.reset();
    FilarixTest::cleanup();
}

void TestProgramReview::make(const QString &program)
{
    m_editor->setPlainText(program);
    QTRY_COMPARE(int(m_review->state()), int(ProgramReview::Checked));
}

void TestProgramReview::rightProgramHasNoFindings()
{
    make(rightProgram);
    QVERIFY(m_review->findings().isEmpty());
    QCOMPARE(m_review->errors(), 0);
    QCOMPARE(m_review->warnings(), 0);
    QCOMPARE(m_review->summary(),
             QString("Nothing found, by the rules of \"%1\".").arg(m_review->rules()));
    QCOMPARE(m_review->rules(), MachineProfile::forSamples().name());
    QVERIFY(m_editor->extraSelections().isEmpty());
}

void TestProgramReview::emptyProgramHasNoFindings()
{
    make("; a title\n\n");
    QVERIFY(m_review->findings().isEmpty());
    QCOMPARE(m_review->errors() + m_review->warnings(), 0);
    make("G21");
    QVERIFY(!m_review->findings().isEmpty());
}

void TestProgramReview::findingsAreCountedAndMarked()
{
    make(faultyProgram());
    QCOMPARE(m_review->findings().size(), 2);
    QCOMPARE(m_review->errors() + m_review->warnings(), 2);
    QCOMPARE(m_review->findings().at(0).line, 3);
    QCOMPARE(m_review->findings().at(1).line, 9);
    QCOMPARE(m_review->summary(),
             QString("Errors: %1, warnings: %2").arg(m_review->errors()).arg(m_review->warnings()));
    m_editor->show();
    QTRY_COMPARE(m_editor->extraSelections().size(), 2);
}

void TestProgramReview::everyChangeIsCheckedAnew()
{
    make(faultyProgram());
    m_editor->undo();
    make(rightProgram);
    QVERIFY(m_review->findings().isEmpty());
    make(faultyProgram());
    QCOMPARE(m_review->findings().size(), 2);
}

void TestProgramReview::whatIsNotReadYetIsNotChecked()
{
    QCOMPARE(int(m_review->state()), int(ProgramReview::Waiting));
    make(faultyProgram());
    QTextCursor(m_editor->document()).insertText("G21\n");
    QCOMPARE(int(m_review->state()), int(ProgramReview::Waiting));
    QCOMPARE(m_review->summary(), QString("The program is being checked."));
    QTRY_COMPARE(int(m_review->state()), int(ProgramReview::Checked));
    QCOMPARE(m_review->findings().at(0).line, 4);
}

void TestProgramReview::faultyProfileChecksNothing()
{
    const QString path = home() + "/machine.ini";
    writeFile(path, "nonsense");
    QSignalSpy changed(m_review.data(), SIGNAL(changed()));
    m_editor->setPlainText(faultyProgram());
    m_preview->readProfile(path);
    QTRY_COMPARE(int(m_review->state()), int(ProgramReview::Off));
    QCOMPARE(m_review->summary(), QString("No check: the machine's profile has a fault."));
    QTRY_VERIFY(m_preview->isCurrent());
    QCOMPARE(m_review->errors() + m_review->warnings(), 0);
    QVERIFY(m_review->findings().isEmpty());
    QVERIFY(m_editor->extraSelections().isEmpty());
}

void TestProgramReview::findingIsFoundAgain()
{
    make(faultyProgram());
    const Finding first = m_review->findings().at(0);
    const Finding last = m_review->findings().at(1);
    QCOMPARE(m_review->indexOf(last), 1);
    make(QString(rightProgram).replace("K0.25", "K0.25 Q2"));
    QCOMPARE(m_review->indexOf(last), 0);
    QCOMPARE(m_review->indexOf(first), -1);
}

void TestProgramReview::nextAndPreviousGoByLines()
{
    make(faultyProgram());
    QCOMPARE(m_review->after(0), 0);
    QCOMPARE(m_review->after(2), 0);
    QCOMPARE(m_review->after(3), 1);
    QCOMPARE(m_review->after(9), -1);
    QCOMPARE(m_review->before(3), -1);
    QCOMPARE(m_review->before(4), 0);
    QCOMPARE(m_review->before(14), 1);
}

void TestProgramReview::fileIsInspectedByTheSameRules()
{
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, faultyProgram().toLatin1());
    const std::shared_ptr<ProgramInspection> inspection = m_review->inspect(path);
    while (inspection->step())
        ;
    inspection->close();
    make(faultyProgram());
    QCOMPARE(inspection->verdict().errors, m_review->errors());
    QCOMPARE(inspection->verdict().warnings, m_review->warnings());
}

void TestProgramReview::reviewMayEndWhileItReads()
{
    m_editor->setPlainText(faultyProgram().repeated(5000));
    QTRY_VERIFY(m_preview->isReading());
    m_review.reset();
    QTRY_VERIFY(!m_preview->isReading());
}

FILARIX_TEST_MAIN(TestProgramReview)
#include "tst_programreview.moc"
