// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/windowdialogs.h"
#include "modaldriver.h"
#include "programwindow.h"
#include "signalhook.h"
#include "wfiledialog.h"

#include <QDialog>
#include <QDir>
#include <QMessageBox>
#include <QProgressDialog>
#include <QScopedPointer>
#include <QSignalSpy>

Q_DECLARE_METATYPE(WindowDialogs::Picker)
Q_DECLARE_METATYPE(QDialog *)
Q_DECLARE_METATYPE(QMessageBox *)

class TestWindowDialogs : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void pickersAreToldApart_data();
    void pickersAreToldApart();
    void pickersAreToldApartInAnotherLanguage();
    void pickerIsSeenBeforeItProposes();
    void questionAboutChangesIsSeen();
    void questionAboutReadingAgainIsSeen();
    void removalIsSeenAndItsQuestion();
    void fileThatCannotBeReadIsSeen();
    void abortOfALongLoadIsSeen();
    void dialogsOfOthersAreLetBe();
    void nothingIsSeenAfterTheEnd();

private:
    int pickerSeen(int signal = 0) const
    {
        return int(m_pickers->at(signal).at(1).value<WindowDialogs::Picker>());
    }
    int seen() const;

    QScopedPointer<ProgramWindow> m_program;
    QScopedPointer<WindowDialogs> m_dialogs;
    QScopedPointer<QSignalSpy> m_pickers;
    QScopedPointer<QSignalSpy> m_saves;
    QScopedPointer<QSignalSpy> m_reloads;
    QScopedPointer<QSignalSpy> m_removes;
    QScopedPointer<QSignalSpy> m_removed;
    QScopedPointer<QSignalSpy> m_failed;
    QScopedPointer<QSignalSpy> m_aborted;
};

void TestWindowDialogs::initTestCase()
{
    qRegisterMetaType<WindowDialogs::Picker>("WindowDialogs::Picker");
    qRegisterMetaType<QDialog *>("QDialog*");
    qRegisterMetaType<QMessageBox *>("QMessageBox*");
}

void TestWindowDialogs::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    writeFile(programDir() + "/coil.cnc", "G01\n");
    m_program.reset(new ProgramWindow);
    m_program->window()->show();
    m_dialogs.reset(new WindowDialogs);
    WindowDialogs *dialogs = m_dialogs.data();
    m_pickers.reset(new QSignalSpy(dialogs, SIGNAL(pickerShown(QDialog *, WindowDialogs::Picker))));
    m_saves.reset(new QSignalSpy(dialogs, SIGNAL(saveQuestionShown(QMessageBox *))));
    m_reloads.reset(new QSignalSpy(dialogs, SIGNAL(reloadQuestionShown(QMessageBox *))));
    m_removes.reset(new QSignalSpy(dialogs, SIGNAL(removeQuestionShown(QMessageBox *))));
    m_removed.reset(new QSignalSpy(dialogs, SIGNAL(removed())));
    m_failed.reset(new QSignalSpy(dialogs, SIGNAL(failed())));
    m_aborted.reset(new QSignalSpy(dialogs, SIGNAL(loadAborted())));
}

void TestWindowDialogs::cleanup()
{
    m_dialogs.reset();
    m_program.reset();
    FilarixTest::cleanup();
}

// All that was told, of whatever kind.
int TestWindowDialogs::seen() const
{
    return m_pickers->size() + m_saves->size() + m_reloads->size() + m_removes->size()
           + m_removed->size() + m_failed->size() + m_aborted->size();
}

void TestWindowDialogs::pickersAreToldApart_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("picker");
    QTest::newRow("Open") << "Open" << int(WindowDialogs::OpenPicker);
    QTest::newRow("Save") << "Save" << int(WindowDialogs::SavePicker);
    QTest::newRow("Save as") << "SaveAs" << int(WindowDialogs::SavePicker);
    QTest::newRow("Remove") << "RM" << int(WindowDialogs::RemovePicker);
}

void TestWindowDialogs::pickersAreToldApart()
{
    QFETCH(QString, key);
    ModalDriver driver;
    driver.reject();
    m_program->press(key);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_pickers->size(), 1);
    QTEST(pickerSeen(), "picker");
    QCOMPARE(seen(), 1);
}

void TestWindowDialogs::pickersAreToldApartInAnotherLanguage()
{
    const TestCompat::MarkingTranslator translator("WMMainWindow");
    ModalDriver driver;
    driver.reject();
    m_program->press("Open");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_pickers->size(), 1);
    QCOMPARE(pickerSeen(), int(WindowDialogs::OpenPicker));
}

// Whoever hears of it may propose a name of its own after the dialog has proposed one.
void TestWindowDialogs::pickerIsSeenBeforeItProposes()
{
    QString atSignal = "never told";
    const SignalHook hook(
        m_dialogs.data(), SIGNAL(pickerShown(QDialog *, WindowDialogs::Picker)), [&] {
            const QVariant dialog = m_pickers->last().first();
            atSignal = dialog.value<QDialog *>()->findChild<QLineEdit *>()->text();
        });
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QString("coil.cnc"));
        static_cast<QDialog *>(dialog)->reject();
    });
    m_program->press("Open");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(atSignal, QString());
}

void TestWindowDialogs::questionAboutChangesIsSeen()
{
    m_program->window()->insertLine("G99");
    ModalDriver driver;
    driver.press(QMessageBox::Cancel);
    m_program->press("New");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_saves->size(), 1);
    QCOMPARE(seen(), 1);
}

void TestWindowDialogs::questionAboutReadingAgainIsSeen()
{
    ModalDriver driver;
    driver.then([](QWidget *dialog) { ProgramWindow::pick(dialog, "coil.cnc"); });
    m_program->press("Open");
    driver.then([](QWidget *dialog) { ProgramWindow::pick(dialog, "coil.cnc"); });
    driver.press(QMessageBox::Cancel);
    m_program->press("Open");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_pickers->size(), 2);
    QCOMPARE(m_reloads->size(), 1);
    QCOMPARE(seen(), 3);
}

void TestWindowDialogs::removalIsSeenAndItsQuestion()
{
    ModalDriver driver;
    driver.then([](QWidget *dialog) { ProgramWindow::pick(dialog, "coil.cnc"); });
    driver.press(QMessageBox::Yes);
    driver.then([](QWidget *box) { static_cast<QDialog *>(box)->accept(); });
    m_program->press("RM");
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!QFile::exists(programDir() + "/coil.cnc"));
    QCOMPARE(m_removes->size(), 1);
    QCOMPARE(m_removed->size(), 1);
    QCOMPARE(seen(), 3);
}

void TestWindowDialogs::fileThatCannotBeReadIsSeen()
{
    QVERIFY(QDir().mkpath(programDir() + "/folder.cnc"));
    ModalDriver driver;
    driver.then([](QWidget *dialog) { ProgramWindow::pick(dialog, "folder.cnc"); });
    driver.press(QMessageBox::Ok);
    m_program->press("Open");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_failed->size(), 1);
    QCOMPARE(seen(), 2);
}

void TestWindowDialogs::abortOfALongLoadIsSeen()
{
    writeFile(programDir() + "/long.cnc", QByteArray("G01 X1\n").repeated(1000));
    const SignalHook hook(m_program->window()->findChild<WGCodeEditer *>(),
                          SIGNAL(blockCountChanged(int)), [](int count) {
                              const QWidgetList topLevels = QApplication::topLevelWidgets();
                              for (QWidget *widget : topLevels) {
                                  QProgressDialog *progress =
                                      qobject_cast<QProgressDialog *>(widget);
                                  if (!progress || count < 100)
                                      continue;
                                  // The toolkit shows it after seconds.
                                  progress->show();
                                  progress->findChild<QPushButton *>()->click();
                              }
                          });
    ModalDriver driver;
    driver.then([](QWidget *dialog) { ProgramWindow::pick(dialog, "long.cnc"); });
    m_program->press("Open");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_aborted->size(), 1);
    QVERIFY(m_program->document()->blockCount() < 1000);
}

void TestWindowDialogs::dialogsOfOthersAreLetBe()
{
    QWidget parent;
    QMessageBox box(QMessageBox::Question, WMMainWindow::tr("Application"), "Save?",
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &parent);
    box.show();
    // A host's own dialog of the same title is of another class.
    QDialog picker;
    picker.setWindowTitle(WMMainWindow::tr("Open file"));
    picker.show();
    WFileDialog another(nullptr);
    another.setTitle("Pick a program");
    another.show();
    QMessageBox other(QMessageBox::Question, "Another", "Save?",
                      QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    other.show();
    QProgressDialog progress("Copying:", "Abort", 0, 10);
    progress.show();
    progress.cancel();
    QCOMPARE(seen(), 0);
}

void TestWindowDialogs::nothingIsSeenAfterTheEnd()
{
    m_dialogs.reset();
    ModalDriver driver;
    driver.reject();
    m_program->press("Open");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_pickers->size(), 0);
}

FILARIX_TEST_MAIN(TestWindowDialogs)
#include "tst_windowdialogs.moc"
