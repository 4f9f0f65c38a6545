// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/windowcommands.h"
#include "modaldriver.h"
#include "programwindow.h"
#include "signalhook.h"

#include <QDialog>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSignalSpy>

Q_DECLARE_METATYPE(WindowCommands::Command)

class TestWindowCommands : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void eachCommandIsHeld_data();
    void eachCommandIsHeld();
    void removeIsKnownInTheLanguageOfThatMoment();
    void droppedCommandNeverRuns();
    void commandRunsUntilItsDialogsAreClosed();
    void pressIsAsGoodAsATouch();
    void hiddenButtonIsPressedAndOffAgain();
    void buttonThatWasHiddenWhileItsCommandWaitedPasses();
    void commandWhoseButtonWasDisabledIsLost();
    void unknownCommandDoesNothing();

private:
    void take();

    QScopedPointer<ProgramWindow> m_program;
    QScopedPointer<WindowCommands> m_commands;
    QList<int> m_held;
};

void TestWindowCommands::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<WindowCommands::Command>("WindowCommands::Command");
    programDir();
    m_program.reset(new ProgramWindow);
    m_program->window()->show();
    take();
}

void TestWindowCommands::cleanup()
{
    m_commands.reset();
    m_program.reset();
    FilarixTest::cleanup();
}

void TestWindowCommands::take()
{
    m_held.clear();
    m_commands.reset(new WindowCommands(m_program->window()));
    m_commands->onCommand([this](WindowCommands::Command command) { m_held.append(command); });
}

void TestWindowCommands::eachCommandIsHeld_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("command");
    QTest::newRow("New") << "New" << int(WindowCommands::New);
    QTest::newRow("Open") << "Open" << int(WindowCommands::Open);
    QTest::newRow("Remove") << "RM" << int(WindowCommands::Remove);
    QTest::newRow("Save") << "Save" << int(WindowCommands::Save);
    QTest::newRow("Save as") << "SaveAs" << int(WindowCommands::SaveAs);
    QTest::newRow("Download") << "D/L" << int(WindowCommands::Download);
}

void TestWindowCommands::eachCommandIsHeld()
{
    QFETCH(QString, key);
    QFETCH(int, command);
    QSignalSpy done(m_commands.data(), SIGNAL(done(WindowCommands::Command)));
    QSignalSpy sent(m_program->window(), SIGNAL(signal_download(QString)));
    m_program->press(key);
    QTRY_COMPARE(m_held, QList<int>() << command);
    // A dialog of the command's would be a stray window by now.
    QVERIFY(!m_commands->isBusy());
    QCOMPARE(done.size(), 0);
    QCOMPARE(sent.size(), 0);

    ModalDriver driver;
    const bool opensPicker = command == WindowCommands::Open || command == WindowCommands::Remove
                             || command == WindowCommands::Save
                             || command == WindowCommands::SaveAs;
    if (opensPicker)
        driver.reject();
    m_commands->pass(WindowCommands::Command(command));
    QVERIFY(m_commands->isBusy());
    QTRY_COMPARE(done.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(int(done.first().first().value<WindowCommands::Command>()), command);
    QCOMPARE(sent.size(), command == WindowCommands::Download ? 1 : 0);
    QVERIFY(!m_commands->isBusy());
    QCOMPARE(m_held.size(), 1);
}

void TestWindowCommands::removeIsKnownInTheLanguageOfThatMoment()
{
    m_commands.reset();
    m_program.reset();
    const TestCompat::MarkingTranslator translator("WMMainWindow");
    m_program.reset(new ProgramWindow);
    m_program->window()->show();
    take();
    QToolButton *remove = nullptr;
    const QList<QToolButton *> buttons = m_program->window()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->toolTip() == "Remove G File!*")
            remove = button;
    }
    QVERIFY(remove);
    remove->click();
    QTRY_COMPARE(m_held, QList<int>() << int(WindowCommands::Remove));
}

void TestWindowCommands::droppedCommandNeverRuns()
{
    m_program->window()->insertLine("G99");
    QSignalSpy done(m_commands.data(), SIGNAL(done(WindowCommands::Command)));
    m_program->press("New");
    QTRY_COMPARE(m_held.size(), 1);
    m_commands->drop(WindowCommands::New);
    QCoreApplication::processEvents();
    QCOMPARE(m_program->document()->toPlainText(), QString("G99"));
    QCOMPARE(done.size(), 0);
    // The next one is held as the first was.
    m_program->press("New");
    QTRY_COMPARE(m_held.size(), 2);
}

void TestWindowCommands::commandRunsUntilItsDialogsAreClosed()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    ModalDriver driver;
    driver.then([this](QWidget *dialog) {
        QCOMPARE(int(m_commands->running()), int(WindowCommands::Open));
        QVERIFY(m_commands->isBusy());
        ProgramWindow::pick(dialog, "coil.cnc");
    });
    QSignalSpy done(m_commands.data(), SIGNAL(done(WindowCommands::Command)));
    m_program->press("Open");
    QTRY_COMPARE(m_held.size(), 1);
    m_commands->pass(WindowCommands::Open);
    QTRY_COMPARE(done.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(int(m_commands->running()), int(WindowCommands::None));
    QCOMPARE(m_program->window()->getCurrentFile(), programDir() + "/coil.cnc");
}

void TestWindowCommands::pressIsAsGoodAsATouch()
{
    m_commands->press(WindowCommands::Download);
    QTRY_COMPARE(m_held, QList<int>() << int(WindowCommands::Download));
}

// A bar without room for all of its buttons hides some, and a hidden one is off.
void TestWindowCommands::hiddenButtonIsPressedAndOffAgain()
{
    QToolButton *save = m_program->button("Save");
    m_program->hideButton("Save");
    QVERIFY(!save->isEnabled());
    m_commands->press(WindowCommands::Save);
    QTRY_COMPARE(m_held.size(), 1);
    ModalDriver driver;
    driver.reject();
    QSignalSpy done(m_commands.data(), SIGNAL(done(WindowCommands::Command)));
    m_commands->pass(WindowCommands::Save);
    QTRY_COMPARE(done.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!save->isEnabled());

    m_commands->press(WindowCommands::Save);
    QTRY_COMPARE(m_held.size(), 2);
    m_commands->drop(WindowCommands::Save);
    QVERIFY(!save->isEnabled());
}

void TestWindowCommands::buttonThatWasHiddenWhileItsCommandWaitedPasses()
{
    QToolButton *download = m_program->button("D/L");
    QSignalSpy sent(m_program->window(), SIGNAL(signal_download(QString)));
    download->click();
    QTRY_COMPARE(m_held.size(), 1);
    m_program->hideButton("D/L");
    QCoreApplication::processEvents();
    QVERIFY(!download->isEnabled());
    m_commands->pass(WindowCommands::Download);
    QTRY_COMPARE(sent.size(), 1);
    QVERIFY(!download->isEnabled());
}

// A key that is off is pressed by nobody, and whoever waits for the command has to hear of it.
void TestWindowCommands::commandWhoseButtonWasDisabledIsLost()
{
    QSignalSpy done(m_commands.data(), SIGNAL(done(WindowCommands::Command)));
    QSignalSpy lost(m_commands.data(), SIGNAL(lost(WindowCommands::Command)));
    m_program->press("D/L");
    QTRY_COMPARE(m_held.size(), 1);
    m_program->window()->setDownloading(true);
    m_commands->pass(WindowCommands::Download);
    QTRY_COMPARE(lost.size(), 1);
    QCOMPARE(int(lost.first().first().value<WindowCommands::Command>()),
             int(WindowCommands::Download));
    QCOMPARE(done.size(), 0);
    QVERIFY(!m_commands->isBusy());
}

void TestWindowCommands::unknownCommandDoesNothing()
{
    QSignalSpy lost(m_commands.data(), SIGNAL(lost(WindowCommands::Command)));
    m_commands->press(WindowCommands::None);
    m_commands->pass(WindowCommands::None);
    m_commands->drop(WindowCommands::None);
    QCoreApplication::processEvents();
    QVERIFY(!m_commands->isBusy());
    QCOMPARE(lost.size(), 0);
    QVERIFY(m_held.isEmpty());
}

FILARIX_TEST_MAIN(TestWindowCommands)
#include "tst_windowcommands.moc"
