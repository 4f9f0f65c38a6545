// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "modaldriver.h"
#include "programs/programopener.h"
#include "programwindow.h"

#include <QDir>
#include <QScopedPointer>
#include <QTextDocument>

/// Counts the windows that an operator would have seen.
class ShownWindows : public QObject
{
public:
    ShownWindows() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_count += watched->inherits("QDialog");
        return false;
    }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

class TestProgramOpener : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void programIsOpenedUnseen_data();
    void programIsOpenedUnseen();
    void secondProgramTakesThePlaceOfTheFirst();
    void programThatIsOpenStays();
    void changesAreTheOperatorsToAnswer();
    void whatIsNoProgramIsRefused_data();
    void whatIsNoProgramIsRefused();
    void ownOpenIsLeftAlone();
    void textIsPutInOneStep_data();
    void textIsPutInOneStep();

private:
    QScopedPointer<ProgramWindow> m_program;
    WMMainWindow *m_window = nullptr;
    WGCodeEditer *m_editor = nullptr;
};

void TestProgramOpener::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    m_program.reset(new ProgramWindow);
    m_window = m_program->window();
    m_editor = m_program->editor();
}

void TestProgramOpener::cleanup()
{
    m_program.reset();
    FilarixTest::cleanup();
}

void TestProgramOpener::programIsOpenedUnseen_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QString("coil.cnc");
    QTest::newRow("blanks and signs") << QString(" a 'coil' & 50%.cnc");
    QTest::newRow("umlauts") << QString::fromUtf8("spule-\u00fc.cnc");
}

void TestProgramOpener::programIsOpenedUnseen()
{
    QFETCH(QString, name);
    writeFile(programDir() + "/aaa.cnc", "G99\n");
    writeFile(programDir() + '/' + name, "G01 X1\nG01 X2\n");
    ShownWindows shown;
    QVERIFY(ProgramOpener(m_window).open(programDir() + '/' + name));
    QCOMPARE(m_window->getCurrentFile(), programDir() + '/' + name);
    QCOMPARE(m_editor->toPlainText(), QString("G01 X1\nG01 X2\n"));
    QVERIFY(m_window->windowTitle().startsWith(name));
    QVERIFY(!m_editor->document()->isModified());
    QCOMPARE(shown.count(), 0);
}

void TestProgramOpener::secondProgramTakesThePlaceOfTheFirst()
{
    writeFile(programDir() + "/one.cnc", "G01\n");
    writeFile(programDir() + "/two.cnc", "G02\n");
    ProgramOpener opener(m_window);
    QVERIFY(opener.open(programDir() + "/one.cnc"));
    QVERIFY(opener.open(programDir() + "/two.cnc"));
    QCOMPARE(m_editor->toPlainText(), QString("G02\n"));
    QCOMPARE(m_window->getCurrentFile(), programDir() + "/two.cnc");
}

void TestProgramOpener::programThatIsOpenStays()
{
    writeFile(programDir() + "/one.cnc", "G01\n");
    ProgramOpener opener(m_window);
    QVERIFY(opener.open(programDir() + "/one.cnc"));
    ModalDriver driver;
    QVERIFY(opener.open(programDir() + "/one.cnc"));
    QVERIFY2(driver.finished(), driver.report());
}

void TestProgramOpener::changesAreTheOperatorsToAnswer()
{
    writeFile(programDir() + "/one.cnc", "G01\n");
    m_editor->insertPlainText("x");
    ModalDriver driver;
    driver.press(QMessageBox::Cancel);
    QVERIFY(!ProgramOpener(m_window).open(programDir() + "/one.cnc"));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_editor->toPlainText(), QString("x"));
}

void TestProgramOpener::whatIsNoProgramIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << QString();
    QTest::newRow("elsewhere") << QString("/tmp/home/elsewhere/one.cnc");
    QTest::newRow("a name alone") << QString("one.cnc");
    QTest::newRow("the folder") << QString("/tmp/home/cnc/");
    QTest::newRow("below it") << QString("/tmp/home/cnc/more/one.cnc");
    QTest::newRow("up and down") << QString("/tmp/home/cnc/../elsewhere/one.cnc");
}

void TestProgramOpener::whatIsNoProgramIsRefused()
{
    QFETCH(QString, path);
    programDir();
    writeFile(home() + "/elsewhere/one.cnc", "G01\n");
    writeFile(home() + "/cnc/more/one.cnc", "G01\n");
    ModalDriver driver;
    QVERIFY(!ProgramOpener(m_window).open(path));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_editor->toPlainText(), QString());
}

// The opener answers its own question, and that alone.
void TestProgramOpener::ownOpenIsLeftAlone()
{
    writeFile(programDir() + "/one.cnc", "G01\n");
    ProgramOpener opener(m_window);
    QVERIFY(opener.open(programDir() + "/one.cnc"));
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QVERIFY(!dialog->testAttribute(Qt::WA_DontShowOnScreen));
        dialog->close();
    });
    QMetaObject::invokeMethod(m_window, "open");
    QVERIFY2(driver.finished(), driver.report());
}

void TestProgramOpener::textIsPutInOneStep_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("other") << QString("M30");
    QTest::newRow("one more line") << QString("G01 X1\nG01 X2\nG01 X3\n");
    QTest::newRow("one line less") << QString("G01 X1\n");
    QTest::newRow("in the middle") << QString("G01 X1\nG04 X2\n");
    QTest::newRow("at the start") << QString("x") + QString("G01 X1\nG01 X2\n");
    QTest::newRow("wide") << QString::fromUtf8("G01 X1\n\xf0\x9f\x98\x80G01 X2\n");
    QTest::newRow("line separator") << QString("G01 X1\nG01") + QChar(0x2028) + "X2\n";
}

void TestProgramOpener::textIsPutInOneStep()
{
    QFETCH(QString, text);
    writeFile(programDir() + "/one.cnc", "G01 X1\nG01 X2\n");
    ProgramOpener opener(m_window);
    QVERIFY(opener.open(programDir() + "/one.cnc"));
    opener.put(text, 3);
    QCOMPARE(m_program->text(), text);
    QVERIFY(m_editor->document()->isModified());
    QCOMPARE(m_editor->textCursor().position(), qMin(3, text.size()));
    m_editor->undo();
    QCOMPARE(m_program->text(), QString("G01 X1\nG01 X2\n"));
    QVERIFY(!m_editor->document()->isModified());
    // What is there already is no change.
    opener.put(m_program->text(), -5);
    QVERIFY(!m_editor->document()->isModified());
}

FILARIX_TEST_MAIN(TestProgramOpener)
#include "tst_programopener.moc"
