// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WMMainWindow and WGCodeEditer: lines that are edited on a keypad.

#include "devicelog.h"
#include "filarixtest.h"
#include "modaldriver.h"
#include "openwindow.h"
#include "strictmessages.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QPointer>
#include <QTextBlock>
#include <QTextDocument>
#include <QToolButton>

/// The Edit button with the G-code keypad behind it, the transfer manager behind I/E, and the two
/// operations by which a host writes lines.
class TestSoftEdit : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theKeypadIsSetUpInOrder();
    void anAcceptedTextReplacesTheLine_data();
    void anAcceptedTextReplacesTheLine();
    void aCancelledKeypadLeavesTheLine();
    void anUnchangedTextStillReplacesTheLine();
    void anEmptyLineGivesAnEmptyTextAndHint();
    void withoutATouchScreenNothingHappens();
    void withoutAKeypadNothingHappens();
    void windowMayGoWhileTheKeypadIsOpen();
    void theLineIsReadEvenWithoutATouchScreen();
    void theResultIsNotClearedBeforehand();
    void eachUseSetsTheKeypadUpInFull();
    void theTextIsARealProperty();
    void theTransferManagerTellsTheWindowNothing_data();
    void theTransferManagerTellsTheWindowNothing();
    void hostReplacesTheCurrentLine();
    void hostInsertsALine();
};

namespace {

const char program[] = "G01 X1\nG02 X2\nM30";

struct Desk
{
    explicit Desk(int row = 1) : window(nullptr, 0), editor(window.findChild<WGCodeEditer *>())
    {
        editor->setPlainText(QLatin1String(program));
        goTo(row);
        editor->document()->setModified(false);
    }
    void goTo(int row)
    {
        editor->setTextCursor(QTextCursor(editor->document()->findBlockByNumber(row)));
    }
    void pressEdit()
    {
        Q_FOREACH (QToolButton *button, window.findChildren<QToolButton *>()) {
            if (button->text() == QLatin1String("Edit"))
                button->click();
        }
    }
    QString text() const { return editor->toPlainText(); }
    bool modified() const { return editor->document()->isModified(); }

    WMMainWindow window;
    WGCodeEditer *editor;
};

QStringList setUpCalls(const QString &line)
{
    return QStringList() << QLatin1String("GCodeKeypad.setObject(WMMainWindow)")
                         << QLatin1String("GCodeKeypad.setValidator(null)")
                         << QString::fromLatin1("GCodeKeypad.setText(%1)").arg(line)
                         << QString::fromLatin1("GCodeKeypad.setLimitToolTip(%1)").arg(line)
                         << QLatin1String("GCodeKeypad.exec");
}

} // namespace

void TestSoftEdit::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestSoftEdit::theKeypadIsSetUpInOrder()
{
    Desk desk;
    DeviceLog::cancel();
    desk.pressEdit();
    QCOMPARE(DeviceLog::calls(), QStringList() << QLatin1String("HMIDeviceInfo.isTouchScreen")
                                               << QLatin1String("GCodeKeypad.instance")
                                               << setUpCalls(QLatin1String("G02 X2")));
    QCOMPARE(DeviceLog::object().data(), static_cast<QObject *>(&desk.window));
    QVERIFY(!DeviceLog::validator());
}

void TestSoftEdit::anAcceptedTextReplacesTheLine_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("accepted");
    QTest::addColumn<QString>("text");
    QTest::newRow("first line") << 0 << "G00"
                                << "G00\nG02 X2\nM30";
    QTest::newRow("line in the middle") << 1 << "G03 X5"
                                        << "G01 X1\nG03 X5\nM30";
    QTest::newRow("last line: an empty one follows") << 2 << "M02"
                                                     << "G01 X1\nG02 X2\nM02\n";
    QTest::newRow("empty text") << 1 << ""
                                << "G01 X1\n\nM30";
}

void TestSoftEdit::anAcceptedTextReplacesTheLine()
{
    QFETCH(int, row);
    QFETCH(QString, accepted);
    QFETCH(QString, text);
    Desk desk(row);
    DeviceLog::acceptWith(accepted);
    desk.pressEdit();
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(desk.text(), text);
    QVERIFY(desk.modified());
    QCOMPARE(desk.window.text(), accepted);
}

void TestSoftEdit::aCancelledKeypadLeavesTheLine()
{
    Desk desk;
    desk.window.setText(QLatin1String("left from before"));
    DeviceLog::cancel();
    desk.pressEdit();
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(desk.text(), QString::fromLatin1(program));
    QVERIFY(!desk.modified());
}

void TestSoftEdit::anUnchangedTextStillReplacesTheLine()
{
    Desk desk;
    DeviceLog::acceptWith(QLatin1String("G02 X2"));
    desk.pressEdit();
    QCOMPARE(desk.text(), QString::fromLatin1(program));
    QVERIFY(desk.modified());
}

void TestSoftEdit::anEmptyLineGivesAnEmptyTextAndHint()
{
    Desk desk;
    desk.editor->setPlainText(QLatin1String("G01\n\nM30"));
    desk.goTo(1);
    DeviceLog::acceptWith(QLatin1String("G04"));
    desk.pressEdit();
    QCOMPARE(DeviceLog::keypadCalls(), setUpCalls(QString()));
    QCOMPARE(desk.text(), QString::fromLatin1("G01\nG04\nM30"));
}

void TestSoftEdit::withoutATouchScreenNothingHappens()
{
    Desk desk;
    DeviceLog::setTouchScreen(false);
    desk.pressEdit();
    QCOMPARE(DeviceLog::calls(), QStringList(QLatin1String("HMIDeviceInfo.isTouchScreen")));
    QCOMPARE(desk.text(), QString::fromLatin1(program));
    QVERIFY(!desk.modified());
}

void TestSoftEdit::windowMayGoWhileTheKeypadIsOpen()
{
    QPointer<OpenWindow> window(new OpenWindow);
    window->type(QLatin1String("G01 X1"));
    DeviceLog::acceptWith(QLatin1String("G02"));
    window->deleteLater(); // before the answer: the keypad's event loop is the next one
    QVERIFY(QMetaObject::invokeMethod(window, "softEditGcode"));
    QVERIFY(!window);
}

void TestSoftEdit::withoutAKeypadNothingHappens()
{
    Desk desk;
    DeviceLog::setInstanceAvailable(false);
    desk.pressEdit();
    QCOMPARE(DeviceLog::keypadCalls(), QStringList());
    QCOMPARE(desk.text(), QString::fromLatin1(program));
    QVERIFY(!desk.modified());
}

void TestSoftEdit::theLineIsReadEvenWithoutATouchScreen()
{
    Desk desk;
    DeviceLog::setTouchScreen(false);
    desk.pressEdit();
    QCOMPARE(desk.window.m_curLineText, QString::fromLatin1("G02 X2"));
    desk.goTo(2);
    desk.pressEdit();
    QCOMPARE(desk.window.m_curLineText, QString::fromLatin1("M30"));
    // What goes out is not what comes back.
    QCOMPARE(desk.window.m_text, QString());
}

void TestSoftEdit::theResultIsNotClearedBeforehand()
{
    Desk desk;
    desk.window.setText(QLatin1String("from before"));
    QString during;
    WMMainWindow *window = &desk.window;
    DeviceLog::runThenCancel([window, &during] { during = window->text(); });
    desk.pressEdit();
    QCOMPARE(during, QString::fromLatin1("from before"));
    QCOMPARE(desk.window.text(), QString::fromLatin1("from before"));
}

void TestSoftEdit::eachUseSetsTheKeypadUpInFull()
{
    Desk desk;
    DeviceLog::cancel();
    DeviceLog::cancel();
    desk.pressEdit();
    desk.goTo(0);
    desk.pressEdit();
    QCOMPARE(DeviceLog::keypadCalls(),
             setUpCalls(QLatin1String("G02 X2")) + setUpCalls(QLatin1String("G01 X1")));
}

void TestSoftEdit::theTextIsARealProperty()
{
    WMMainWindow window(nullptr, 0);
    QVERIFY(window.metaObject()->indexOfProperty("text") >= 0);
    QVERIFY(window.setProperty("text", QString::fromLatin1("G01")));
    QCOMPARE(window.text(), QString::fromLatin1("G01"));
}

void TestSoftEdit::theTransferManagerTellsTheWindowNothing_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("closed") << int(QDialog::Rejected);
    QTest::newRow("accepted") << int(QDialog::Accepted);
}

void TestSoftEdit::theTransferManagerTellsTheWindowNothing()
{
    QFETCH(int, result);
    Desk desk;
    desk.window.setCurrentFile(QLatin1String("/programs/a.cnc"));
    desk.editor->document()->setModified(true);
    QString opened;
    // Of unsaved changes nobody is asked: the manager is the only dialog.
    ModalDriver person;
    person.then([result, &opened](QWidget *widget) {
        opened = QLatin1String(widget->metaObject()->className());
        opened += QLatin1String(widget->parent() ? " with a parent" : " without a parent");
        qobject_cast<QDialog *>(widget)->done(result);
    });
    // Its own words about a connection that it leaves open.
    StrictMessages::expect(QLatin1String("ImportManage::slot_checkUSB"));
    bool returned = true;
    QVERIFY(QMetaObject::invokeMethod(&desk.window, "importExport", Q_RETURN_ARG(bool, returned)));
    QVERIFY2(person.finished(), person.report());
    QCOMPARE(opened, QString::fromLatin1("ImportManage without a parent"));
    QVERIFY(!returned);
    QCOMPARE(desk.text(), QString::fromLatin1(program));
    QVERIFY(desk.modified());
    QCOMPARE(desk.window.m_curFile, QString::fromLatin1("/programs/a.cnc"));
}

void TestSoftEdit::hostReplacesTheCurrentLine()
{
    Desk desk;
    desk.window.updateGcode(QLatin1String("G04 P1"));
    QCOMPARE(desk.text(), QString::fromLatin1("G01 X1\nG04 P1\nM30"));
    desk.goTo(2);
    desk.window.updateGcode(QLatin1String("M02"));
    QCOMPARE(desk.text(), QString::fromLatin1("G01 X1\nG04 P1\nM02\n"));
}

void TestSoftEdit::hostInsertsALine()
{
    Desk desk;
    desk.window.insertLine(QLatin1String("G04 P1"));
    QCOMPARE(desk.text(), QString::fromLatin1("G01 X1\nG02 X2\nG04 P1\nM30"));
    desk.editor->setPlainText(QLatin1String("G01\n\nM30"));
    desk.goTo(1);
    desk.window.insertLine(QLatin1String("G04"));
    QCOMPARE(desk.text(), QString::fromLatin1("G01\nG04\nM30"));
}

FILARIX_TEST_MAIN(TestSoftEdit)
#include "tst_softedit.moc"
