// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/lineentry.h"
#include "programwindow.h"

#include <hmidevice/gcodekeypad.h>

#include <QMouseEvent>
#include <QRect>
#include <QTextBlock>
#include <QVariant>

class TestLineEntry : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keypadIsToldWhatItEdits();
    void lineIsShownHigh();
    void linesAreWrittenOneAfterTheOther();
    void nextLineComesBelowTheEditedOne();
    void cancelledNextLineLeavesNone_data();
    void cancelledNextLineLeavesNone();
    void cancelledInsertionLeavesNoLine_data();
    void cancelledInsertionLeavesNoLine();
    void cancelledInsertionLeavesNoChange();
    void cancelledEditOfALineLeavesIt();
    void cancelAfterSomethingElseLeavesTheLine_data();
    void cancelAfterSomethingElseLeavesTheLine();
    void insertionBelowTheEndLeavesNoEmptyLine();
    void editAndRemovalAreUndoneTogether();
    void insertionsWithoutAnEditStay();
    void textOfTheWindowIsTheKeypads();
    void fingerThatSlidesOffChangesNothing_data();
    void fingerThatSlidesOffChangesNothing();
    void withoutAKeypadNothingHappens_data();
    void withoutAKeypadNothingHappens();
    void changeByOthersEndsTheEntry();
    void hiddenWindowEndsTheEntry();
    void windowMayGoWhileTheKeypadIsOpen();
    void entryMayGoWhileTheKeypadIsOpen();
    void entryMayGoWhileTheNextLineIsOpen();
};

namespace {

/// A window with its entry, on the screen.
class Entered
{
public:
    explicit Entered(const QString &text = QString()) : entry(new LineEntry(host.window()))
    {
        if (!text.isEmpty())
            host.editor()->setPlainText(text);
        host.document()->setModified(false);
        host.window()->show();
        QCoreApplication::processEvents();
    }

    ~Entered() { delete entry.data(); }

    void goTo(int line)
    {
        host.editor()->setTextCursor(QTextCursor(host.document()->findBlockByNumber(line - 1)));
    }
    int line() const { return host.editor()->textCursor().blockNumber() + 1; }
    QVariant told(const char *name) const { return host.window()->property(name); }
    /// Ins has the same text twice, before the line and below it.
    void insert(bool isBelow = true)
    {
        QList<QToolButton *> found;
        Q_FOREACH (QToolButton *button, host.window()->findChildren<QToolButton *>()) {
            if (button->text() == QLatin1String("Ins"))
                found.append(button);
        }
        const int count = host.document()->blockCount();
        const int before = line();
        found.first()->click();
        // The one below the line leads there.
        if (isBelow != (line() > before)) {
            host.editor()->undo();
            host.document()->clearUndoRedoStacks(QTextDocument::RedoStack);
            goTo(before);
            found.last()->click();
        }
        QCOMPARE(host.document()->blockCount(), count + 1);
    }

    ProgramWindow host;
    QPointer<LineEntry> entry;
};

void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

} // namespace

void TestLineEntry::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestLineEntry::keypadIsToldWhatItEdits()
{
    Entered entered("G21\nG90\nM30");
    entered.entry->setHint(
        [](const QTextBlock &line) { return "behind " + line.previous().text(); });
    entered.goTo(2);
    QVariantList told;
    DeviceLog::runThenCancel([&] {
        told << entered.told("hmiName") << entered.told("hmiHint") << entered.told("hmiNextLine")
             << entered.told("hmiNextLineChosen") << entered.told("hmiEditedRect");
    });
    entered.host.press("Edit");
    QCOMPARE(DeviceLog::object().data(), static_cast<QObject *>(entered.host.window()));
    QCOMPARE(told.at(0).toString(), QString("Line 2"));
    QCOMPARE(told.at(1).toString(), QString("behind G21"));
    QCOMPARE(told.at(2), QVariant(true));
    QCOMPARE(told.at(3), QVariant(false));
    QWidget *viewport = entered.host.editor()->viewport();
    const QRect rect = told.at(4).toRect();
    const QRect seen(viewport->mapToGlobal(QPoint(0, 0)), viewport->size());
    QVERIFY(seen.contains(rect));
    QCOMPARE(rect.width(), seen.width());
    QCOMPARE(rect.top(), seen.top() + entered.host.editor()->cursorRect().top());

    // The next one is told anew.
    entered.goTo(1);
    DeviceLog::cancel();
    entered.host.press("Edit");
    QCOMPARE(entered.told("hmiName").toString(), QString("Line 1"));
    QCOMPARE(entered.told("hmiHint").toString(), QString("behind "));
}

void TestLineEntry::lineIsShownHigh()
{
    Entered entered(QString("G01 X1\n").repeated(500));
    QCoreApplication::processEvents();
    entered.goTo(300);
    entered.host.editor()->centerCursor();
    const int height = entered.host.editor()->viewport()->height();
    DeviceLog::cancel();
    entered.host.press("Edit");
    QVERIFY(entered.host.editor()->cursorRect().top() < height / 3);
    QVERIFY(entered.host.editor()->cursorRect().top() > 0);
    QCOMPARE(entered.line(), 300);
}

void TestLineEntry::linesAreWrittenOneAfterTheOther()
{
    Entered entered;
    DeviceLog::acceptForNextLine("G21");
    DeviceLog::acceptForNextLine("G90");
    DeviceLog::acceptWith("M30");
    entered.host.press("Edit");
    QTRY_COMPARE(DeviceLog::answersLeft(), 0);
    settle();
    // The library leaves an empty line below an edited last one.
    QCOMPARE(entered.host.text(), QString("G21\nG90\nM30\n"));
}

void TestLineEntry::nextLineComesBelowTheEditedOne()
{
    Entered entered("G21\nG90\nM30");
    entered.goTo(1);
    DeviceLog::acceptForNextLine("G20");
    DeviceLog::acceptForNextLine("T1");
    DeviceLog::acceptWith("S300");
    entered.host.press("Edit");
    QTRY_COMPARE(DeviceLog::answersLeft(), 0);
    settle();
    QCOMPARE(entered.host.text(), QString("G20\nT1\nS300\nG90\nM30"));
    QCOMPARE(entered.line(), 3);
    QVERIFY(DeviceLog::keypadCalls().contains("GCodeKeypad.setText()"));
}

void TestLineEntry::cancelledNextLineLeavesNone_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("after");
    QTest::newRow("within") << 1 << "G20\nG90\nM30";
    QTest::newRow("at the end") << 3 << "G21\nG90\nG20\n";
}

void TestLineEntry::cancelledNextLineLeavesNone()
{
    QFETCH(int, line);
    QFETCH(QString, after);
    Entered entered("G21\nG90\nM30");
    entered.goTo(line);
    DeviceLog::acceptForNextLine("G20");
    DeviceLog::cancel();
    entered.host.press("Edit");
    QTRY_COMPARE(DeviceLog::answersLeft(), 0);
    settle();
    QCOMPARE(entered.host.text(), after);
    QVERIFY(!entered.host.document()->isRedoAvailable());
}

void TestLineEntry::cancelledInsertionLeavesNoLine_data()
{
    QTest::addColumn<bool>("isBelow");
    QTest::addColumn<int>("line");
    QTest::newRow("below the first") << true << 1;
    QTest::newRow("below the last") << true << 3;
    QTest::newRow("above the first") << false << 1;
    QTest::newRow("above the last") << false << 3;
}

void TestLineEntry::cancelledInsertionLeavesNoLine()
{
    QFETCH(bool, isBelow);
    QFETCH(int, line);
    Entered entered("G21\nG90\nM30");
    entered.goTo(line);
    entered.insert(isBelow);
    DeviceLog::cancel();
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\nG90\nM30"));
    QCOMPARE(entered.line(), line);
    QVERIFY(!entered.host.document()->isRedoAvailable());
}

void TestLineEntry::cancelledInsertionLeavesNoChange()
{
    Entered entered("G21\nG90");
    entered.insert();
    QVERIFY(entered.host.isModified());
    DeviceLog::cancel();
    entered.host.press("Edit");
    QVERIFY(!entered.host.isModified());

    // Neither has an earlier change gone with the line.
    entered.host.editor()->insertLine(QString("T1"));
    entered.insert();
    DeviceLog::cancel();
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\nT1\nG90"));
    QVERIFY(entered.host.isModified());
}

void TestLineEntry::cancelledEditOfALineLeavesIt()
{
    Entered entered("G21\n\nG90");
    entered.goTo(2);
    DeviceLog::cancel();
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\n\nG90"));

    // A keypad that was accepted with nothing in it is the operator's will.
    entered.insert();
    DeviceLog::acceptWith("");
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\n\n\nG90"));
}

void TestLineEntry::cancelAfterSomethingElseLeavesTheLine_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("another line") << "go";
    QTest::newRow("typed meanwhile") << "type";
    QTest::newRow("saved meanwhile") << "save";
    QTest::newRow("edited before") << "edit";
}

void TestLineEntry::cancelAfterSomethingElseLeavesTheLine()
{
    QFETCH(QString, what);
    Entered entered("G21\nG90");
    entered.insert();
    QString after("G21\n\nG90");
    if (what == "go") {
        entered.goTo(3);
    } else if (what == "type") {
        entered.host.editor()->insertPlainText("T1");
        after = "G21\nT1\nG90";
    } else if (what == "save") {
        entered.host.document()->setModified(false);
    } else {
        DeviceLog::acceptWith("T2");
        entered.host.press("Edit");
        after = "G21\nT2\nG90";
    }
    DeviceLog::cancel();
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), after);
}

/// Ins and Edit for each line is what a new operator does.
void TestLineEntry::insertionBelowTheEndLeavesNoEmptyLine()
{
    Entered entered;
    Q_FOREACH (const QString &line, QStringList() << "G21"
                                                  << "G90"
                                                  << "M30") {
        entered.insert();
        DeviceLog::acceptWith(line);
        entered.host.press("Edit");
    }
    QCOMPARE(entered.host.text(), QString("G21\nG90\nM30\n"));
    QCOMPARE(entered.line(), 4);

    // One that was cancelled in between changes nothing of it.
    entered.insert();
    DeviceLog::cancel();
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\nG90\nM30\n"));
    DeviceLog::acceptWith("M02");
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\nG90\nM30\nM02\n"));
}

void TestLineEntry::editAndRemovalAreUndoneTogether()
{
    Entered entered;
    entered.insert();
    DeviceLog::acceptWith("G21");
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\n"));
    entered.host.editor()->undo();
    QCOMPARE(entered.host.text(), QString("\n"));
    entered.host.editor()->redo();
    QCOMPARE(entered.host.text(), QString("G21\n"));
}

void TestLineEntry::insertionsWithoutAnEditStay()
{
    Entered entered("G21");
    entered.insert();
    entered.insert();
    QCOMPARE(entered.host.text(), QString("G21\n\n"));
    DeviceLog::acceptWith("G90");
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\n\nG90\n"));
}

void TestLineEntry::textOfTheWindowIsTheKeypads()
{
    Entered entered("G21");
    DeviceLog::acceptWith("G20");
    entered.host.press("Edit");
    QCOMPARE(entered.host.window()->text(), QString("G20"));
    DeviceLog::cancel();
    entered.host.press("Edit");
    QCOMPARE(entered.host.window()->text(), QString("G20"));
}

void TestLineEntry::fingerThatSlidesOffChangesNothing_data()
{
    QTest::addColumn<bool>("isTakenForVisible");
    QTest::newRow("closed keypad") << false;
    // So the older toolkit takes it on X11 once it was closed before the server had mapped it.
    QTest::newRow("closed keypad taken for visible") << true;
}

void TestLineEntry::fingerThatSlidesOffChangesNothing()
{
    QFETCH(bool, isTakenForVisible);
    Entered entered("G21\nG90");
    entered.host.window()->setText("before");
    QToolButton *edit = entered.host.button("Edit");
    QTest::mousePress(edit, Qt::LeftButton);
    QMouseEvent move(QEvent::MouseMove, QPoint(-50, -50), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(edit, &move);
    GCodeKeypad::instance()->setAttribute(Qt::WA_WState_Visible, isTakenForVisible);
    QTest::mouseRelease(edit, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
    settle();
    QCOMPARE(entered.host.window()->text(), QString("before"));

    // The next press is told anew.
    entered.goTo(2);
    DeviceLog::acceptWith("G91");
    entered.host.press("Edit");
    QCOMPARE(entered.told("hmiName").toString(), QString("Line 2"));
    QCOMPARE(entered.host.text(), QString("G21\nG91\n"));
}

void TestLineEntry::withoutAKeypadNothingHappens_data()
{
    QTest::addColumn<bool>("isTouchScreen");
    QTest::newRow("no touch screen") << false;
    QTest::newRow("no keypad") << true;
}

void TestLineEntry::withoutAKeypadNothingHappens()
{
    QFETCH(bool, isTouchScreen);
    DeviceLog::setTouchScreen(isTouchScreen);
    DeviceLog::setInstanceAvailable(!isTouchScreen);
    Entered entered("G21");
    entered.insert();
    entered.host.press("Edit");
    QCOMPARE(entered.host.text(), QString("G21\n"));
    QVERIFY(!entered.told("hmiName").isValid());
    QVERIFY(entered.host.window()->text().isEmpty());
}

void TestLineEntry::changeByOthersEndsTheEntry()
{
    Entered entered("G21\nG90");
    DeviceLog::acceptForNextLine("G20");
    entered.host.press("Edit");
    entered.host.editor()->setPlainText("M30");
    settle();
    QCOMPARE(entered.host.text(), QString("M30"));
    QCOMPARE(DeviceLog::keypadCalls().count("GCodeKeypad.exec"), 1);
}

void TestLineEntry::hiddenWindowEndsTheEntry()
{
    Entered entered("G21\nG90");
    DeviceLog::acceptForNextLine("G20");
    entered.host.press("Edit");
    entered.host.window()->hide();
    settle();
    QCOMPARE(entered.host.text(), QString("G20\nG90"));
    QCOMPARE(DeviceLog::keypadCalls().count("GCodeKeypad.exec"), 1);
}

void TestLineEntry::windowMayGoWhileTheKeypadIsOpen()
{
    Entered entered("G21");
    DeviceLog::runThenCancel([&] { delete entered.host.window(); });
    entered.host.press("Edit");
    QVERIFY(entered.entry);
    settle();
}

void TestLineEntry::entryMayGoWhileTheKeypadIsOpen()
{
    Entered entered("G21\nG90");
    entered.insert();
    DeviceLog::runThenCancel([&] { delete entered.entry.data(); });
    entered.host.press("Edit");
    settle();
    QCOMPARE(entered.host.text(), QString("G21\n\nG90"));
}

void TestLineEntry::entryMayGoWhileTheNextLineIsOpen()
{
    Entered entered("G21\nG90");
    DeviceLog::acceptForNextLine("G20");
    DeviceLog::runThenCancel([&] { delete entered.entry.data(); });
    entered.host.press("Edit");
    settle();
    QVERIFY(!entered.entry);
    QVERIFY(entered.host.text().startsWith("G20\n"));
}

FILARIX_TEST_MAIN(TestLineEntry)
#include "tst_lineentry.moc"
