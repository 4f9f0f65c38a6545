// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/programpickers.h"
#include "modaldriver.h"
#include "programs/recentprograms.h"
#include "programwindow.h"
#include "wfiledialog.h"

#include <QLabel>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QToolButton>

class TestProgramPickers : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void eachPickerSaysWhatItIsFor_data();
    void eachPickerSaysWhatItIsFor();
    void shownTwiceItIsFittedOnce();
    void hiddenPickerIsLetBeAndNoted();
    void otherDialogsAreLetBe();
    void turnsAreCountedByTheHostsProfile();
    void openedAndSavedAreNotedAndRemovedAreNot_data();
    void openedAndSavedAreNotedAndRemovedAreNot();
    void removedProgramIsForgotten();
    void orderStaysFromPickerToPicker();
    void withoutListOfRecentOnesAllGoesOn();

private:
    void open(const QString &title = "Open file");
    QLineEdit *field() const { return m_dialog->findChild<QLineEdit *>(); }

    QScopedPointer<RecentPrograms> m_recent;
    QScopedPointer<ProgramPickers> m_pickers;
    QScopedPointer<WFileDialog> m_dialog;
};

void TestProgramPickers::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<QDialog *>("QDialog*");
    emptyFolder(programDir());
    writeFile(programDir() + "/coil.cnc", "G01 X1\n");
    writeFile(programDir() + "/Rotor.cnc", "G01 X1\n");
    m_recent.reset(new RecentPrograms(QString()));
    m_pickers.reset(new ProgramPickers(programDir()));
    m_pickers->setRecent(m_recent.data());
}

void TestProgramPickers::cleanup()
{
    m_dialog.reset();
    m_pickers.reset();
    m_recent.reset();
    FilarixTest::cleanup();
}

void TestProgramPickers::open(const QString &title)
{
    m_dialog.reset(new WFileDialog(nullptr));
    m_dialog->setTitle(title);
    m_dialog->show();
}

void TestProgramPickers::eachPickerSaysWhatItIsFor_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("words");
    QTest::addColumn<bool>("isRed");
    QTest::newRow("open") << "Open file"
                          << "Open a program" << false;
    QTest::newRow("save as") << "Save as"
                             << "Save the program as" << false;
    QTest::newRow("remove") << "Remove file"
                            << "Remove a program" << true;
}

void TestProgramPickers::eachPickerSaysWhatItIsFor()
{
    QFETCH(QString, title);
    QFETCH(QString, words);
    QFETCH(bool, isRed);
    QSignalSpy fitted(m_pickers.data(), SIGNAL(fitted(QDialog *)));
    open(title);
    QCOMPARE(fitted.count(), 1);
    QCOMPARE(m_dialog->findChild<QLabel *>("pickerTitle")->text(), words);
    const QWidget *strip = m_dialog->findChild<QWidget *>("pickerStrip");
    QVERIFY(strip->isVisible());
    QCOMPARE(strip->property("danger").toBool(), isRed);
    const QColor ground = strip->palette().color(QPalette::Window);
    QCOMPARE(ground.red() > 2 * ground.blue() && ground.red() > 2 * ground.green(), isRed);
}

void TestProgramPickers::shownTwiceItIsFittedOnce()
{
    open();
    m_dialog->hide();
    m_dialog->show();
    QCOMPARE(m_dialog->findChildren<QLabel *>("pickerTitle").size(), 1);
}

void TestProgramPickers::hiddenPickerIsLetBeAndNoted()
{
    m_dialog.reset(new WFileDialog(nullptr));
    m_dialog->setTitle("Open file");
    m_dialog->setAttribute(Qt::WA_DontShowOnScreen);
    m_dialog->show();
    QVERIFY(!m_dialog->findChild<QLabel *>("pickerTitle"));
    field()->setText("Rotor.cnc");
    m_dialog->accept();
    QCOMPARE(m_recent->names(), QStringList("Rotor.cnc"));
}

void TestProgramPickers::openedAndSavedAreNotedAndRemovedAreNot_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("noted");
    QTest::newRow("open") << "Open file"
                          << (QStringList() << "new.cnc"
                                            << "Rotor.cnc");
    QTest::newRow("save as") << "Save as"
                             << (QStringList() << "new.cnc"
                                               << "Rotor.cnc");
    QTest::newRow("remove") << "Remove file" << QStringList("Rotor.cnc");
}

void TestProgramPickers::openedAndSavedAreNotedAndRemovedAreNot()
{
    QFETCH(QString, title);
    QFETCH(QStringList, noted);
    m_recent->note("Rotor.cnc");
    open(title);
    field()->setText("new.cnc");
    m_dialog->reject();
    QCOMPARE(m_recent->names(), QStringList("Rotor.cnc"));
    open(title);
    field()->setText("new.cnc");
    m_dialog->accept();
    QCOMPARE(m_recent->names(), noted);
}

void TestProgramPickers::otherDialogsAreLetBe()
{
    QSignalSpy spy(m_pickers.data(), SIGNAL(fitted(QDialog *)));
    open("Pick a program");
    QCOMPARE(spy.count(), 0);
    QVERIFY(!m_dialog->findChild<QLabel *>("pickerTitle"));
}

void TestProgramPickers::turnsAreCountedByTheHostsProfile()
{
    int asked = 0;
    m_pickers->setProfile([&asked] {
        ++asked;
        return MachineProfile::forSamples();
    });
    open();
    QCOMPARE(asked, 1);
}

void TestProgramPickers::removedProgramIsForgotten()
{
    m_recent->note("coil.cnc");
    m_recent->note("Rotor.cnc");
    ProgramWindow window;
    ModalDriver driver;
    driver.then([](QWidget *dialog) { ProgramWindow::pick(dialog, "Rotor.cnc"); });
    driver.press(QMessageBox::No);
    window.press("RM");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_recent->names().first(), QString("Rotor.cnc"));
    driver.then([](QWidget *dialog) { ProgramWindow::pick(dialog, "Rotor.cnc"); });
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Yes);
    window.press("RM");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_recent->names(), QStringList("coil.cnc"));
    QVERIFY(!QFile::exists(programDir() + "/Rotor.cnc"));
}

void TestProgramPickers::orderStaysFromPickerToPicker()
{
    m_recent->note("Rotor.cnc");
    open();
    QCOMPARE(field()->text(), QString("Rotor.cnc"));
    m_dialog->findChildren<QToolButton *>("pickerOrder").at(1)->click();
    m_dialog->reject();
    open("Save as");
    QVERIFY(m_dialog->findChildren<QToolButton *>("pickerOrder").at(1)->isChecked());
    QCOMPARE(field()->text(), QString("coil.cnc"));
}

void TestProgramPickers::withoutListOfRecentOnesAllGoesOn()
{
    m_pickers->setRecent(nullptr);
    open();
    QCOMPARE(field()->text(), QString("coil.cnc"));
    m_dialog->accept();
    QCOMPARE(m_recent->names(), QStringList());
}

FILARIX_TEST_MAIN(TestProgramPickers)
#include "tst_programpickers.moc"
