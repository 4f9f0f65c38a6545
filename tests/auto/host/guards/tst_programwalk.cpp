// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/programwalk.h"
#include "programwindow.h"

#include <hmidevice/numerickeypad.h>

#include <QIntValidator>
#include <QLabel>
#include <QScopedPointer>
#include <QScrollBar>

class TestProgramWalk : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void touchOnTheReadOutLeadsToALine();
    void touchOnTheProgramsNameAsksForNothing();
    void keypadHasTheLimits();
    void answerBeyondTheProgramLeadsToItsEnd_data();
    void answerBeyondTheProgramLeadsToItsEnd();
    void cancelledKeypadLeavesTheCursor();
    void withoutATouchScreenNoKeypadOpens();
    void secondTouchOpensNoSecondKeypad();
    void keypadOpensThoughTakenForVisible();
    void loadIsNotHeldByAKeypad();
    void windowMayGoWhileTheKeypadIsOpen();
    void endsAreReached();
    void pageTurnsWithItsCursor();
    void pageStopsAtTheEnds();
    void cursorOutOfSightComesIntoThePage();
    void emptyProgramStaysWhereItIs();

private:
    QWidget *label(int index) const;
    void touchReadOut() const;
    int row() const { return m_program->editor()->getCurRowNumber(); }
    int top() const { return ProgramWalk::topLine(m_program->editor()); }
    int bottom() const { return ProgramWalk::bottomLine(m_program->editor()); }

    QScopedPointer<ProgramWindow> m_program;
    ProgramWalk *m_walk;
};

namespace {

const int lineCount = 5000;

} // namespace

void TestProgramWalk::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    m_program.reset(new ProgramWindow);
    QString text;
    for (int i = 1; i < lineCount; ++i)
        text += QString("G01 X%1\n").arg(i);
    m_program->editor()->setPlainText(text);
    m_walk = new ProgramWalk(m_program->window());
    m_program->window()->resize(640, 400);
    m_program->window()->show();
    QVERIFY(TestCompat::waitForExposed(m_program->window()));
}

void TestProgramWalk::cleanup()
{
    m_program.reset();
    FilarixTest::cleanup();
}

QWidget *TestProgramWalk::label(int index) const
{
    return m_program->window()->widget(0)->findChildren<QLabel *>().value(index);
}

void TestProgramWalk::touchReadOut() const
{
    QTest::mouseClick(label(1), Qt::LeftButton);
}

void TestProgramWalk::touchOnTheReadOutLeadsToALine()
{
    // On "Row:", on its number, and beside them: a thumb is not that exact.
    const int last = 6;
    for (int i = 1; i <= last; ++i) {
        const int line = 7 * i + 4321;
        DeviceLog::acceptWith(QString::number(line));
        QTest::mouseClick(label(i), Qt::LeftButton);
        QTRY_COMPARE(row(), line);
        QCOMPARE(DeviceLog::answersLeft(), 0);
        QVERIFY(ProgramWalk::isCursorSeen(m_program->editor()));
        QCOMPARE(m_program->editor()->getCurColNumber(), 1);
        QCOMPARE(static_cast<QLabel *>(label(4))->text(), QString::number(line));
    }
}

void TestProgramWalk::touchOnTheProgramsNameAsksForNothing()
{
    QTest::mouseClick(label(0), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    // A press that leaves the read-out is none.
    QTest::mousePress(label(1), Qt::LeftButton);
    QTest::mouseRelease(label(1), Qt::LeftButton, Qt::NoModifier, QPoint(5, 60));
    QCoreApplication::processEvents();
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
}

void TestProgramWalk::keypadHasTheLimits()
{
    QVariantList told;
    QValidator::State states[] = {QValidator::Invalid, QValidator::Invalid, QValidator::Invalid};
    DeviceLog::runThenCancel([&] {
        const QObject *object = DeviceLog::object();
        told << object->property("hmiName") << object->property("hmiMinimum")
             << object->property("hmiMaximum") << object->property("hmiInteger");
        const char *const texts[] = {"1", "5000", "5001"};
        for (int i = 0; i < 3; ++i) {
            QString text = QString(texts[i]);
            int position = 0;
            states[i] = DeviceLog::validator()->validate(text, position);
        }
    });
    touchReadOut();
    QTRY_COMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(told, QVariantList() << QString("Line") << 1.0 << double(lineCount) << true);
    QCOMPARE(int(states[0]), int(QValidator::Acceptable));
    QCOMPARE(int(states[1]), int(QValidator::Acceptable));
    QVERIFY(states[2] != QValidator::Acceptable);
    const QStringList calls = DeviceLog::keypadCalls();
    // Nothing to take away before the first digit.
    QVERIFY(calls.contains("NumericKeypad.setText()"));
    QVERIFY(calls.contains("NumericKeypad.setLimitToolTip(1 - 5000)"));
    QVERIFY(calls.contains("NumericKeypad.setDecimalPointEnabled(false)"));
    // The next caller's number has its point, and no limits of ours.
    QCOMPARE(calls.mid(calls.size() - 2), QStringList()
                                              << "NumericKeypad.setDecimalPointEnabled(true)"
                                              << "NumericKeypad.setLimitToolTip()");
}

void TestProgramWalk::answerBeyondTheProgramLeadsToItsEnd_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("line");
    QTest::newRow("zero") << "0" << 1;
    QTest::newRow("behind the end") << "999999" << lineCount;
    QTest::newRow("no number") << "" << 1;
}

// A keypad that knows no limits.
void TestProgramWalk::answerBeyondTheProgramLeadsToItsEnd()
{
    QFETCH(QString, answer);
    m_walk->goTo(500);
    DeviceLog::acceptWith(answer);
    m_walk->askForLine();
    QTEST(row(), "line");
}

void TestProgramWalk::cancelledKeypadLeavesTheCursor()
{
    m_walk->goTo(500);
    DeviceLog::cancel();
    touchReadOut();
    QTRY_COMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(row(), 500);
}

void TestProgramWalk::withoutATouchScreenNoKeypadOpens()
{
    DeviceLog::setTouchScreen(false);
    touchReadOut();
    QCoreApplication::processEvents();
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
    DeviceLog::setTouchScreen(true);
    DeviceLog::setInstanceAvailable(false);
    m_walk->askForLine();
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
}

void TestProgramWalk::secondTouchOpensNoSecondKeypad()
{
    int calls = 0;
    DeviceLog::runThenCancel([&] {
        calls = DeviceLog::keypadCalls().size();
        m_walk->askForLine();
        calls -= DeviceLog::keypadCalls().size();
    });
    m_walk->askForLine();
    QCOMPARE(calls, 0);
    QCOMPARE(DeviceLog::answersLeft(), 0);
}

// So the older toolkit takes it on X11 once it was closed before the server had mapped it.
void TestProgramWalk::keypadOpensThoughTakenForVisible()
{
    NumericKeypad::instance()->setAttribute(Qt::WA_WState_Visible);
    DeviceLog::acceptWith("500");
    m_walk->askForLine();
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(row(), 500);
}

void TestProgramWalk::loadIsNotHeldByAKeypad()
{
    QString text;
    for (int i = 0; i < 2000; ++i)
        text += QString("G02\n");
    m_program->editor()->clear();
    connect(m_program->editor(), SIGNAL(blockCountChanged(int)), m_walk, SLOT(askForLine()));
    m_program->editor()->readGCode(text);
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
    QVERIFY(m_program->editor()->blockCount() >= 2000);
}

void TestProgramWalk::windowMayGoWhileTheKeypadIsOpen()
{
    DeviceLog::runThenCancel([&] { m_program.reset(); });
    touchReadOut();
    QTRY_COMPARE(DeviceLog::answersLeft(), 0);
}

void TestProgramWalk::endsAreReached()
{
    m_walk->goToLast();
    QCOMPARE(row(), lineCount);
    QVERIFY(ProgramWalk::isCursorSeen(m_program->editor()));
    m_walk->goToFirst();
    QCOMPARE(row(), 1);
    QCOMPARE(top(), 1);
}

void TestProgramWalk::pageTurnsWithItsCursor()
{
    m_walk->goTo(500);
    const int oldTop = top();
    const int page = bottom() - oldTop;
    QVERIFY(page > 3);
    m_walk->pageDown();
    QCOMPARE(row(), 500 + page);
    // The line that was the last is on top: nothing was skipped.
    QCOMPARE(top(), oldTop + page);
    m_walk->pageUp();
    QCOMPARE(row(), 500);
    QCOMPARE(top(), oldTop);
}

void TestProgramWalk::pageStopsAtTheEnds()
{
    m_walk->goToFirst();
    m_walk->pageUp();
    QCOMPARE(row(), 1);
    QCOMPARE(top(), 1);
    m_walk->goTo(lineCount - 1);
    m_walk->pageDown();
    QCOMPARE(row(), lineCount);
    QCOMPARE(bottom(), lineCount);
}

// As behind a long load, and when the bar was dragged.
void TestProgramWalk::cursorOutOfSightComesIntoThePage()
{
    m_walk->goToLast();
    m_program->editor()->verticalScrollBar()->setValue(1000);
    QVERIFY(!ProgramWalk::isCursorSeen(m_program->editor()));
    QCOMPARE(top(), 1001);
    const int page = bottom() - top();
    m_walk->pageDown();
    QCOMPARE(top(), 1001 + page);
    QCOMPARE(row(), 1001 + page);
}

void TestProgramWalk::emptyProgramStaysWhereItIs()
{
    m_program->editor()->clear();
    m_walk->pageDown();
    m_walk->pageUp();
    m_walk->goToLast();
    m_walk->goToFirst();
    QCOMPARE(row(), 1);
    DeviceLog::acceptWith("1");
    m_walk->askForLine();
    QCOMPARE(row(), 1);
}

FILARIX_TEST_MAIN(TestProgramWalk)
#include "tst_programwalk.moc"
