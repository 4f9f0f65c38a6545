// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "guards/programguard.h"
#include "heldfile.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "look/taparea.h"
#include "modaldriver.h"
#include "programs/checkeddownload.h"
#include "programs/recentprograms.h"
#include "screens/coilpreview.h"
#include "screens/machinedata.h"
#include "screens/programreview.h"
#include "screens/programscreen.h"
#include "shell/messagelog.h"
#include "shell/stateline.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

class TestProgramScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void downloadIsBracketedAndTold();
    void failedDownloadGivesTheKeyBack_data();
    void failedDownloadGivesTheKeyBack();
    void messageOfThePlcEndsWithADownload();
    void stoppedDownloadGivesTheKeyBack();
    void questionShowsWhatIsOnTheDisk();
    void refusedDownloadSendsNothing();
    void modifiedMarkFollowsTheDocument();
    void tagInsertsWhatIsNotInForce();
    void tagTellsWhenNothingIsLeft();
    void undoAndRedoKeysFollowTheDocument();
    void findKeyOpensTheDialog();
    void findDialogLeavesTheKeysOfAHighScreenFree_data();
    void findDialogLeavesTheKeysOfAHighScreenFree();
    void findTellsWhenItGoesOnAtTheTop();
    void findShowsReadableHits_data();
    void findShowsReadableHits();
    void touchOnTheRowLeadsToALine();
    void pagingKeysAreThere();
    void unnamedProgramHasOneName();
    void closingWithChangesAsks_data();
    void closingWithChangesAsks();
    void closingWaitsForASave();
    void closingDuringADownloadIsRefused();
    void aDiskThatHangsHoldsNoClosing_data();
    void aDiskThatHangsHoldsNoClosing();
    void closingIsRefusedWhileASaveHangs();
    void undoKeyIsOffAfterOpening();
    void stateStaysInView();
    void touchBesidesTheStateCounts();
    void questionShowsBothNumbers();
    void questionTellsOfOtherLines();
    void partIsSentByNoWay();
    void keypadGoesOnToTheNextLine();
    void keypadIsToldTheWordsInForce();
    void findingsLeaveTheirLineInView();
    void cancelledInsertionLeavesNoLine();
    void pickerIsDressedAndTheNameOutlivesThePanel();
    void programIsOpenedByItsPath();
    void unsavedWorkIsAskedAboutBeforeAProgramIsOpened();
    void loadOfALongProgramIsShownAndStopped();

private:
    QToolButton *button(const QString &text) const;
    PanelKey *key(const QString &text) const;
    void open(const QString &name, const QByteArray &bytes);

    QString m_plc;
    MachineData *m_machine = nullptr;
    ProgramScreen *m_screen = nullptr;
    QList<PanelKey *> m_keys;
};

void TestProgramScreen::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_plc = home() + "/plc";
    QVERIFY(QDir().mkpath(m_plc));
    m_machine = new MachineData;
    m_screen = new ProgramScreen(90, m_plc, home() + "/hmi", m_machine);
    m_keys = m_screen->keys();
    for (PanelKey *key : m_keys)
        key->setParent(m_screen);
    m_screen->resize(480, 700);
    m_screen->show();
    QVERIFY(TestCompat::waitForExposed(m_screen));
}

void TestProgramScreen::cleanup()
{
    delete m_screen;
    delete m_machine;
    // The window's buttons that no bar takes go with the screen.
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels)
        QVERIFY(!qobject_cast<QToolButton *>(widget));
    FilarixTest::cleanup();
}

QToolButton *TestProgramScreen::button(const QString &text) const
{
    const QList<QToolButton *> buttons = m_screen->programWindow()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

PanelKey *TestProgramScreen::key(const QString &text) const
{
    for (PanelKey *key : m_keys) {
        if (key->text() == text)
            return key;
    }
    return nullptr;
}

void TestProgramScreen::open(const QString &name, const QByteArray &bytes)
{
    writeFile(programDir() + '/' + name, bytes);
    ModalDriver driver;
    driver.then([name](QWidget *dialog) {
        dialog->findChild<QLineEdit *>()->setText(name);
        dialog->findChildren<QPushButton *>().first()->click();
    });
    QTest::mouseClick(button("Open"), Qt::LeftButton);
    QTRY_COMPARE(m_screen->programWindow()->getCurrentFile(), programDir() + '/' + name);
    QTRY_VERIFY(!m_screen->guard()->isBusy());
    QVERIFY2(driver.finished(), driver.report());
}

// What the operator answers to the question before a download.
static void answer(ModalDriver *driver, const char *key)
{
    driver->then([key](QWidget *dialog) {
        QTest::mouseClick(dialog->findChild<QPushButton *>(key), Qt::LeftButton);
    });
}

void TestProgramScreen::downloadIsBracketedAndTold()
{
    const QByteArray bytes = QByteArray("G01 X1\n").repeated(10000);
    writeFile(programDir() + "/coil.cnc", bytes);
    WMMainWindow *window = m_screen->programWindow();
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone)));
    QSignalSpy worked(m_screen, SIGNAL(worked(QString, int)));
    ModalDriver driver;
    answer(&driver, "send");
    Q_EMIT window->signal_download(programDir() + "/coil.cnc");
    QVERIFY(window->isDownloading());
    QVERIFY(!button("D/L")->isEnabled());
    QTRY_VERIFY(!window->isDownloading());
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(button("D/L")->isEnabled());
    QCOMPARE(readFile(m_plc + "/coil.cnc"), bytes);
    QVERIFY(worked.size() > 5);
    QCOMPARE(told.size(), 1);
    QVERIFY(told.at(0).at(0).toString().contains("coil.cnc"));
    QVERIFY(told.at(0).at(0).toString().contains("70000 bytes"));
}

void TestProgramScreen::failedDownloadGivesTheKeyBack_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("never saved") << QString();
    QTest::newRow("gone") << "/nowhere/coil.cnc";
}

void TestProgramScreen::failedDownloadGivesTheKeyBack()
{
    QFETCH(QString, program);
    WMMainWindow *window = m_screen->programWindow();
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone)));
    Q_EMIT window->signal_download(program);
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(!window->isDownloading());
    QVERIFY(button("D/L")->isEnabled());
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
}

void TestProgramScreen::messageOfThePlcEndsWithADownload()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    MessageLog log;
    connect(m_screen, &PanelScreen::told, &log, &MessageLog::tell);
    connect(m_screen, &PanelScreen::causeEnded, &log, &MessageLog::end);
    QVERIFY(QDir().rename(m_plc, m_plc + ".away"));
    ModalDriver driver;
    answer(&driver, "send");
    Q_EMIT m_screen->programWindow()->signal_download(programDir() + "/coil.cnc");
    QTRY_COMPARE(log.current().cause, QString("plc"));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(log.current().tone, Message::Alarm);
    // What is wrong with the program says nothing of the PLC, and ends nothing.
    Q_EMIT m_screen->programWindow()->signal_download(QString());
    QTRY_COMPARE(log.standingCount(), 2);
    QVERIFY(QDir().rename(m_plc + ".away", m_plc));
    answer(&driver, "send");
    Q_EMIT m_screen->programWindow()->signal_download(programDir() + "/coil.cnc");
    QTRY_COMPARE(log.current().tone, Message::Information);
    QVERIFY2(driver.finished(), driver.report());
    log.closeCurrent();
    QCOMPARE(log.current().tone, Message::Warning);
    QCOMPARE(log.standingCount(), 1);
}

void TestProgramScreen::stoppedDownloadGivesTheKeyBack()
{
    writeFile(programDir() + "/coil.cnc", QByteArray(50 * PlcTransfer::pieceBytes, 'X'));
    WMMainWindow *window = m_screen->programWindow();
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone)));
    ModalDriver driver;
    // Before the question a slow machine tells how far the copy is.
    driver.then([this](QWidget *dialog) {
        connect(m_screen, &PanelScreen::worked, m_screen, &PanelScreen::stopWork);
        QTest::mouseClick(dialog->findChild<QPushButton *>("send"), Qt::LeftButton);
    });
    Q_EMIT window->signal_download(programDir() + "/coil.cnc");
    QTRY_COMPARE(told.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!window->isDownloading());
    QVERIFY(!QFileInfo(m_plc + "/coil.cnc").exists());
    QVERIFY(!QFileInfo(m_screen->download()->snapshot()->copyPath()).exists());
}

void TestProgramScreen::questionShowsWhatIsOnTheDisk()
{
    // Lines that the editor would drop count, too: they are sent.
    writeFile(programDir() + "/coil.cnc", "; head\nG01 X1\n");
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone)));
    QStringList shown;
    ModalDriver driver;
    driver.then([&](QWidget *dialog) {
        for (const char *name : {"name", "lines", "checksum"})
            shown.append(dialog->findChild<QLabel *>(name)->text());
        dialog->close();
    });
    Q_EMIT m_screen->programWindow()->signal_download(programDir() + "/coil.cnc");
    QTRY_COMPARE(told.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    // printf '; head\nG01 X1\n' | sha256sum
    QCOMPARE(shown, QStringList() << "coil.cnc"
                                  << "3"
                                  << "909D 1E88");
}

void TestProgramScreen::refusedDownloadSendsNothing()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone)));
    ModalDriver driver;
    answer(&driver, "cancel");
    Q_EMIT m_screen->programWindow()->signal_download(programDir() + "/coil.cnc");
    QTRY_COMPARE(told.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(told.at(0).at(0).toString().contains("Nothing was sent"));
    QVERIFY(button("D/L")->isEnabled());
    QVERIFY(QDir(m_plc).entryList(QDir::Files | QDir::Hidden).isEmpty());
    QVERIFY(!QFileInfo(m_screen->download()->snapshot()->copyPath()).exists());
}

void TestProgramScreen::modifiedMarkFollowsTheDocument()
{
    QSignalSpy titles(m_screen, SIGNAL(titleChanged()));
    QVERIFY(!m_screen->hasChanges());
    m_screen->programWindow()->insertLine("G01 X1");
    QVERIFY(m_screen->hasChanges());
    QVERIFY(titles.size() >= 1);
    m_screen->editor()->undo();
    QTRY_VERIFY(!m_screen->hasChanges());
}

void TestProgramScreen::tagInsertsWhatIsNotInForce()
{
    m_screen->editor()->setPlainText("G00 X-6 Y14 Z0 U0 V0 W0\n");
    m_machine->setCurrentPoint(2);
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone)));
    QTest::mouseClick(button("Tag"), Qt::LeftButton);
    QCOMPARE(m_screen->editor()->getLineText(1), QString("G01 U1.5 F120"));
    QCOMPARE(told.size(), 1);
    QVERIFY(told.at(0).at(0).toString().contains("G01 U1.5 F120"));
}

void TestProgramScreen::tagTellsWhenNothingIsLeft()
{
    const QString program = m_machine->lineToCurrentPoint();
    m_screen->editor()->setPlainText(program);
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone)));
    QTest::mouseClick(button("Tag"), Qt::LeftButton);
    QCOMPARE(m_screen->editor()->toPlainText(), program);
    QCOMPARE(told.size(), 1);
    QVERIFY(told.at(0).at(0).toString().contains("nothing to insert"));
}

void TestProgramScreen::undoAndRedoKeysFollowTheDocument()
{
    QVERIFY(!key("Undo")->isEnabled());
    QVERIFY(!key("Redo")->isEnabled());
    m_screen->programWindow()->insertLine("G01 X1");
    QVERIFY(key("Undo")->isEnabled());
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QVERIFY(m_screen->editor()->toPlainText().isEmpty());
    QVERIFY(key("Redo")->isEnabled());
    QTest::mouseClick(key("Redo"), Qt::LeftButton);
    QCOMPARE(m_screen->editor()->toPlainText(), QString("G01 X1"));
}

void TestProgramScreen::findKeyOpensTheDialog()
{
    QTest::mouseClick(key("Find"), Qt::LeftButton);
    QWidget *dialog = nullptr;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        if (widget->inherits("WFindDialog"))
            dialog = widget;
    }
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->windowHandle()->transientParent(), m_screen->windowHandle());
}

static QWidget *findDialog()
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        if (widget->inherits("WFindDialog"))
            return widget;
    }
    return nullptr;
}

void TestProgramScreen::findDialogLeavesTheKeysOfAHighScreenFree_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isFree");
    QTest::newRow("480x800") << QSize(480, 700) << true;
    QTest::newRow("800x480") << QSize(800, 380) << false;
}

// On a low one it stands in the corner of the screen, so that lines stay in view.
void TestProgramScreen::findDialogLeavesTheKeysOfAHighScreenFree()
{
    QFETCH(QSize, size);
    QFETCH(bool, isFree);
    m_screen->resize(size);
    QCoreApplication::processEvents();
    QTest::mouseClick(key("Find"), Qt::LeftButton);
    const WGCodeEditer *editor = m_screen->editor();
    const QRect lines(editor->mapToGlobal(QPoint()), editor->size());
    QVERIFY(findDialog()->isVisible());
    QCOMPARE(lines.contains(QRect(findDialog()->pos(), findDialog()->size())), isFree);
}

static void findNext(const QString &text)
{
    findDialog()->findChild<QLineEdit *>()->setText(text);
    findDialog()->findChildren<QPushButton *>().first()->click();
}

void TestProgramScreen::findTellsWhenItGoesOnAtTheTop()
{
    m_screen->editor()->setPlainText("G01\nG03\n" + QString("G02\n").repeated(300));
    m_screen->editor()->moveCursor(QTextCursor::End);
    MessageLog log;
    connect(m_screen, &PanelScreen::told, &log, &MessageLog::tell);
    connect(m_screen, &PanelScreen::causeEnded, &log, &MessageLog::end);
    QTest::mouseClick(key("Find"), Qt::LeftButton);
    findNext("g01");
    QCOMPARE(m_screen->editor()->getCurRowNumber(), 1);
    QCOMPARE(log.current().text, QString("End reached, went on at the top: line 1."));
    // The next search says nothing, and the word has had its time.
    findNext("g03");
    QCOMPARE(m_screen->editor()->getCurRowNumber(), 2);
    QVERIFY(log.current().text.isEmpty());
}

void TestProgramScreen::findShowsReadableHits_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("light") << int(Look::Light);
    QTest::newRow("dark") << int(Look::Dark);
    QTest::newRow("made light, now dark") << -1;
}

void TestProgramScreen::findShowsReadableHits()
{
    QFETCH(int, look);
    const QPalette before = QApplication::palette();
    Look::use(look < 0 ? Look::Light : Look::Style(look));
    ProgramScreen screen(0, m_plc, home() + "/hmi", m_machine);
    qDeleteAll(screen.keys());
    if (look < 0)
        Look::use(Look::Dark);
    screen.resize(800, 400);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    WGCodeEditer *editor = screen.editor();
    editor->setPlainText("G01 X12.50\nG02\n");
    editor->findNext("G01 X12.50", Qt::CaseSensitive);
    QTextCursor start = editor->textCursor();
    start.setPosition(0);
    const QRect hit = editor->cursorRect(start).united(editor->cursorRect()).adjusted(1, 1, -2, -1);
    // With the focus, and while the dialog has it.
    screen.activateWindow();
    editor->setFocus();
    QTRY_VERIFY(editor->hasFocus());
    const double focused = Contrast::drawn(editor->viewport(), hit);
    m_screen->activateWindow();
    QTRY_VERIFY(!editor->hasFocus());
    const double unfocused = Contrast::drawn(editor->viewport(), hit);
    Look::use(Look::Light);
    QApplication::setPalette(before);
    QVERIFY2(focused >= Contrast::textContrast, qPrintable(QString::number(focused)));
    QVERIFY2(unfocused >= Contrast::textContrast, qPrintable(QString::number(unfocused)));
}

void TestProgramScreen::touchOnTheRowLeadsToALine()
{
    m_screen->editor()->setPlainText(QString("G01\n").repeated(3000));
    const QList<QLabel *> labels = m_screen->programWindow()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text() == "Row:") {
            DeviceLog::acceptWith("2500");
            QTest::mouseClick(label, Qt::LeftButton);
        }
    }
    QTRY_COMPARE(m_screen->editor()->getCurRowNumber(), 2500);
}

void TestProgramScreen::pagingKeysAreThere()
{
    m_screen->editor()->setPlainText(QString("G01\n").repeated(3000));
    const QList<QToolButton *> buttons = m_screen->programWindow()->findChildren<QToolButton *>();
    QStringList names;
    for (QToolButton *button : buttons) {
        if (!button->accessibleName().isEmpty())
            names.append(button->accessibleName());
        if (button->accessibleName() == "Last line")
            QTest::mouseClick(button, Qt::LeftButton);
    }
    QCOMPARE(names, QStringList() << "First line"
                                  << "Page up"
                                  << "Go to a line"
                                  << "Page down"
                                  << "Last line");
    QCOMPARE(m_screen->editor()->getCurRowNumber(), 3001);
}

void TestProgramScreen::unnamedProgramHasOneName()
{
    const QLabel *label = m_screen->programWindow()->findChild<QLabel *>();
    const auto hasOneName = [&](const QString &name) {
        return m_screen->title() == name && label->text() == name;
    };
    QTRY_VERIFY(hasOneName("New program"));
    open("coil.cnc", "G01\n");
    QTRY_VERIFY(hasOneName("coil.cnc"));
    for (int i = 0; i < 2; ++i) {
        QTest::mouseClick(button("New"), Qt::LeftButton);
        QTRY_VERIFY(m_screen->programWindow()->getCurrentFile().isEmpty());
        QTRY_VERIFY2(hasOneName("New program"), qPrintable(label->text()));
    }
    {
        const TestCompat::MarkingTranslator translator("ProgramName");
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m_screen, &change);
        QTRY_VERIFY(hasOneName("New program*"));
    }
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_screen, &change);
    QTRY_VERIFY(hasOneName("New program"));
    // A program of that name is not unnamed.
    open("untitled.cnc", "G01\n");
    QTRY_VERIFY(hasOneName("untitled.cnc"));
}

void TestProgramScreen::closingWithChangesAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closes");
    QTest::newRow("discard") << int(QMessageBox::Discard) << true;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
}

void TestProgramScreen::closingWithChangesAsks()
{
    QFETCH(int, answer);
    QVERIFY(m_screen->mayClose());
    m_screen->programWindow()->insertLine("G01 X1");
    ModalDriver driver;
    driver.press(QMessageBox::StandardButton(answer));
    QTEST(m_screen->mayClose(), "closes");
    QVERIFY2(driver.finished(), driver.report());

    // Save with a name that is given up is no leave to go.
    driver.press(QMessageBox::Save);
    driver.reject();
    QVERIFY(!m_screen->mayClose());
    QVERIFY2(driver.finished(), driver.report());
}

// What the library takes for saved may be nothing at all.
void TestProgramScreen::closingWaitsForASave()
{
    open("coil.cnc", "G01\n");
    m_screen->programWindow()->insertLine("G99");
    ModalDriver driver;
    driver.press(QMessageBox::Save);
    QVERIFY(m_screen->mayClose());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(QString::fromUtf8(readFile(programDir() + "/coil.cnc")),
             m_screen->editor()->toPlainText());

    // The file is gone as soon as it is written.
    m_screen->programWindow()->insertLine("G98");
    connect(m_screen->editor()->document(), &QTextDocument::modificationChanged, m_screen,
            [](bool isModified) {
                if (!isModified)
                    QFile::remove(programDir() + "/coil.cnc");
            });
    driver.press(QMessageBox::Save);
    answer(&driver, "answer0");
    QVERIFY(!m_screen->mayClose());
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(m_screen->hasChanges());
}

void TestProgramScreen::aDiskThatHangsHoldsNoClosing_data()
{
    QTest::addColumn<bool>("isSaving");
    QTest::newRow("saved at the end") << false;
    QTest::newRow("while a save hangs") << true;
}

void TestProgramScreen::aDiskThatHangsHoldsNoClosing()
{
    QFETCH(bool, isSaving);
    const QString path = programDir() + "/coil.cnc";
    open("coil.cnc", "G01\n");
    QTRY_VERIFY(!m_screen->guard()->isBusy());
    m_screen->programWindow()->insertLine("G99");
    HeldFile held(path);
    QVERIFY(held.isHeld());
    m_screen->guard()->setStallTime(300);
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    LoopPulse pulse;
    ModalDriver driver;
    if (isSaving) {
        m_screen->guard()->save();
        QTRY_VERIFY(m_screen->guard()->isBusy());
    } else {
        driver.press(QMessageBox::Save);
        QVERIFY(!m_screen->mayClose());
        QVERIFY2(driver.finished(), driver.report());
        QCOMPARE(told.size(), 1);
    }
    driver.press(QMessageBox::Discard);
    QVERIFY(m_screen->mayClose());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QString("The panel's storage does not answer."));
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    QVERIFY(held.isHeld());
    held.letGo();
    QCOMPARE(readFile(path), QByteArray("G01\n"));
}

void TestProgramScreen::closingIsRefusedWhileASaveHangs()
{
    open("coil.cnc", "G01\n");
    QTRY_VERIFY(!m_screen->guard()->isBusy());
    m_screen->programWindow()->insertLine("G99");
    HeldFile held(programDir() + "/coil.cnc");
    QVERIFY(held.isHeld());
    m_screen->guard()->save();
    QTRY_VERIFY(m_screen->guard()->isBusy());
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    LoopPulse pulse;
    QVERIFY(!m_screen->mayClose());
    QCOMPARE(told.size(), 1);
    QVERIFY(told.at(0).at(0).toString().endsWith("Close the panel after that."));
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    held.letGo();
    QTRY_VERIFY(!m_screen->guard()->isBusy());
    QVERIFY(!m_screen->hasChanges());
    QVERIFY(m_screen->mayClose());
}

void TestProgramScreen::undoKeyIsOffAfterOpening()
{
    open("coil.cnc", QByteArray("G01 X1\n").repeated(600));
    QVERIFY(!key("Undo")->isEnabled());
    QVERIFY(!key("Redo")->isEnabled());
    QVERIFY(!m_screen->hasChanges());
}

void TestProgramScreen::stateStaysInView()
{
    QLabel *line = m_screen->findChild<QLabel *>("stateLine");
    open("coil.cnc", "G01\n");
    QVERIFY(!line->isVisible());
    open("long.cnc", "; head\n" + QByteArray("G01 X1\n").repeated(600));
    QVERIFY(line->isVisible());
    const QString text = "602 lines in the file, 600 shown: no comments, no empty lines";
    QCOMPARE(line->text(), text);
    // A row of its own: nothing is covered.
    const QRect row(line->mapTo(m_screen, QPoint()), line->size());
    QVERIFY(row.bottom() < m_screen->programWindow()->y());
    QSignalSpy explained(m_screen, SIGNAL(explained(QString)));
    QTest::mouseClick(line, Qt::LeftButton);
    QCOMPARE(explained.size(), 1);
    QCOMPARE(explained.at(0).at(0).toString(), text);
    QTest::mouseClick(button("New"), Qt::LeftButton);
    QTRY_VERIFY(!line->isVisible());
}

// Where it is lower than a finger.
void TestProgramScreen::touchBesidesTheStateCounts()
{
    StateLine *line = m_screen->findChild<StateLine *>();
    QLabel *name = m_screen->programWindow()->widget(0)->findChild<QLabel *>();
    QWidget *strip = name->parentWidget();
    const QPoint onName(6, strip->height() / 2);
    QSignalSpy explained(m_screen, SIGNAL(explained(QString)));

    // Wide enough for one line.
    m_screen->resize(1024, m_screen->height());
    open("long.cnc", "; head\n" + QByteArray("G01 X1\n").repeated(600));
    QVERIFY(line->isVisible());
    QVERIFY(line->height() >= TapArea::leastHeight());
    QTest::mouseClick(strip, Qt::LeftButton, {}, onName);
    QCOMPARE(explained.size(), 0);

    line->setLeastHeight(0);
    QVERIFY(line->height() < TapArea::leastHeight());
    QTRY_COMPARE(strip->mapTo(m_screen, QPoint(0, 0)).y(), line->geometry().bottom() + 1);
    QVERIFY(line->height() + strip->height() >= TapArea::leastHeight());
    const QImage released = line->grab().toImage();
    QTest::mousePress(strip, Qt::LeftButton, {}, onName);
    QVERIFY(line->grab().toImage() != released);
    QTest::mouseRelease(strip, Qt::LeftButton, {}, onName);
    QCOMPARE(line->grab().toImage(), released);
    QCOMPARE(explained.size(), 1);
    QVERIFY(explained.at(0).at(0).toString().startsWith("602 lines"));

    // A finger that slips away means nothing.
    QTest::mousePress(strip, Qt::LeftButton, {}, onName);
    const QPoint away(6, strip->height() + 60);
    QMouseEvent move(QEvent::MouseMove, away, strip->mapToGlobal(away), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(strip, &move);
    QCOMPARE(line->grab().toImage(), released);
    QTest::mouseRelease(strip, Qt::LeftButton, {}, away);
    QCOMPARE(explained.size(), 1);

    // The read-out is the one to go to a line.
    QTest::mousePress(strip, Qt::LeftButton, {}, QPoint(strip->width() - 6, onName.y()));
    QCOMPARE(line->grab().toImage(), released);
    QTest::mouseRelease(strip, Qt::LeftButton, {}, QPoint(6, -60));

    // Without a state the strip is the name's alone.
    QTest::mouseClick(button("New"), Qt::LeftButton);
    QTRY_VERIFY(!line->isVisible());
    QTest::mouseClick(strip, Qt::LeftButton, {}, onName);
    QCOMPARE(explained.size(), 1);
}

void TestProgramScreen::questionShowsBothNumbers()
{
    open("long.cnc", "; head\n" + QByteArray("G01 X1\n").repeated(600));
    QString lines;
    ModalDriver driver;
    driver.then([&](QWidget *dialog) {
        lines = dialog->findChild<QLabel *>("lines")->text();
        dialog->close();
    });
    QTest::mouseClick(button("D/L"), Qt::LeftButton);
    QTRY_COMPARE(lines, QString("602 in the file, 600 shown"));
    QVERIFY2(driver.finished(), driver.report());
}

// As many lines, and yet another program than the one on the screen.
void TestProgramScreen::questionTellsOfOtherLines()
{
    open("coil.cnc", "G01\nG02\n");
    writeFile(programDir() + "/coil.cnc", "G01\nG03\n");
    QString lines;
    ModalDriver driver;
    driver.then([&](QWidget *dialog) {
        lines = dialog->findChild<QLabel *>("lines")->text();
        dialog->close();
    });
    QTest::mouseClick(button("D/L"), Qt::LeftButton);
    QTRY_COMPARE(lines, QString("3 in the file, others shown"));
    QVERIFY2(driver.finished(), driver.report());
}

void TestProgramScreen::partIsSentByNoWay()
{
    open("coil.cnc", "G01\n");
    // The reading fails, and the editor is empty under the program's name.
    const QString path = programDir() + "/coil.cnc";
    QVERIFY(QFile::remove(path));
    QVERIFY(QDir().mkpath(path));
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        dialog->findChild<QLineEdit *>()->setText("coil.cnc");
        dialog->findChildren<QPushButton *>().first()->click();
    });
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    QTest::mouseClick(button("Open"), Qt::LeftButton);
    QTRY_VERIFY(m_screen->guard()->state().refusesDownload());
    QVERIFY2(driver.finished(), driver.report());
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    Q_EMIT m_screen->programWindow()->signal_download(path);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QVERIFY(!m_screen->programWindow()->isDownloading());
}

void TestProgramScreen::closingDuringADownloadIsRefused()
{
    writeFile(programDir() + "/coil.cnc", QByteArray(50 * PlcTransfer::pieceBytes, 'X'));
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone)));
    ModalDriver driver;
    driver.then([&](QWidget *dialog) {
        QVERIFY(!m_screen->mayClose());
        QTest::mouseClick(dialog->findChild<QPushButton *>("send"), Qt::LeftButton);
        QVERIFY(!m_screen->mayClose());
    });
    Q_EMIT m_screen->programWindow()->signal_download(programDir() + "/coil.cnc");
    QVERIFY(!m_screen->mayClose());
    QTRY_VERIFY(button("D/L")->isEnabled());
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(m_screen->mayClose());
    QCOMPARE(told.last().at(1).value<Message::Tone>(), Message::Information);
}

void TestProgramScreen::keypadGoesOnToTheNextLine()
{
    DeviceLog::acceptForNextLine("G21");
    DeviceLog::acceptWith("M30");
    button("Edit")->click();
    QTRY_COMPARE(m_screen->editor()->toPlainText(), QString("G21\nM30\n"));
}

void TestProgramScreen::keypadIsToldTheWordsInForce()
{
    CoilPreview preview(m_screen->editor()->document());
    preview.setProfile(MachineProfile::forSamples());
    ProgramReview review(&preview, m_screen->editor());
    m_screen->setReview(&review);
    m_screen->editor()->setPlainText("G90 G01 F200\nS300\nX10");
    m_screen->goTo(3, 1);
    DeviceLog::cancel();
    button("Edit")->click();
    QCOMPARE(m_screen->programWindow()->property("hmiHint").toString(),
             QString("G90 G01 F200 S300"));
    // The screen shows the review until it goes.
    delete m_screen;
    m_screen = nullptr;
}

void TestProgramScreen::findingsLeaveTheirLineInView()
{
    CoilPreview preview(m_screen->editor()->document());
    preview.setProfile(MachineProfile::forSamples());
    ProgramReview review(&preview, m_screen->editor());
    m_screen->setReview(&review);
    WGCodeEditer *editor = m_screen->editor();
    editor->setPlainText(QString("G01 X1 F100\n").repeated(200));
    m_screen->goTo(100, 1);
    QCoreApplication::processEvents();
    const QPoint lowest(1, editor->viewport()->height() - editor->fontMetrics().height());
    editor->setTextCursor(editor->cursorForPosition(lowest));
    QVERIFY(editor->viewport()->rect().contains(editor->cursorRect()));
    const int height = editor->viewport()->height();
    m_screen->showFindings();
    QCoreApplication::processEvents();
    QVERIFY(editor->viewport()->height() < height);
    QVERIFY(editor->viewport()->rect().contains(editor->cursorRect()));
    delete m_screen;
    m_screen = nullptr;
}

void TestProgramScreen::cancelledInsertionLeavesNoLine()
{
    m_screen->editor()->setPlainText("G90\nM30");
    m_screen->editor()->document()->setModified(false);
    button("Ins")->click();
    QVERIFY(m_screen->hasChanges());
    DeviceLog::cancel();
    button("Edit")->click();
    QCOMPARE(m_screen->editor()->toPlainText(), QString("G90\nM30"));
    QVERIFY(!m_screen->hasChanges());
}

void TestProgramScreen::pickerIsDressedAndTheNameOutlivesThePanel()
{
    open("coil.cnc", "G01 X1\n");
    ModalDriver driver;
    QColor ground;
    driver.then([&ground](QWidget *dialog) {
        QWidget *strip = dialog->findChild<QWidget *>("pickerStrip");
        ground = strip->grab().toImage().pixelColor(1, 1);
        static_cast<QDialog *>(dialog)->reject();
    });
    QTest::mouseClick(button("RM"), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    // What is removed is gone: the strip warns, in the colours of the look.
    QCOMPARE(ground, Look::colour(Look::Role::AlarmGround));
    delete m_screen;
    m_screen = nullptr;
    RecentPrograms recent(home() + "/hmi/recent.ini");
    QVERIFY(recent.settle(patience(5000)));
    QCOMPARE(recent.names().first(), QString("coil.cnc"));
}

void TestProgramScreen::programIsOpenedByItsPath()
{
    writeFile(programDir() + "/coil.cnc", "G01 X1\n");
    m_screen->open(programDir() + "/coil.cnc");
    QCOMPARE(m_screen->programWindow()->getCurrentFile(), programDir() + "/coil.cnc");
    QCOMPARE(m_screen->title(), QString("coil.cnc"));
    QVERIFY(!m_screen->hasChanges());
    // What is not there leaves the program as it is.
    m_screen->open(home() + "/elsewhere.cnc");
    QCOMPARE(m_screen->programWindow()->getCurrentFile(), programDir() + "/coil.cnc");
}

void TestProgramScreen::unsavedWorkIsAskedAboutBeforeAProgramIsOpened()
{
    writeFile(programDir() + "/coil.cnc", "G01 X1\n");
    m_screen->editor()->insertPlainText("G01 X9\n");
    {
        ModalDriver driver;
        driver.press(QMessageBox::Cancel);
        m_screen->open(programDir() + "/coil.cnc");
        QVERIFY2(driver.finished(), driver.report());
    }
    QCOMPARE(m_screen->programWindow()->getCurrentFile(), QString());
    QVERIFY(m_screen->editor()->toPlainText().contains("X9"));
    // The picker that is answered unseen behind the question is left alone.
    int asked = 0;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&asked] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        ++asked;
        box->button(QMessageBox::Discard)->click();
    });
    look.start(10);
    m_screen->open(programDir() + "/coil.cnc");
    look.stop();
    QCOMPARE(asked, 1);
    QCOMPARE(m_screen->programWindow()->getCurrentFile(), programDir() + "/coil.cnc");
}

void TestProgramScreen::loadOfALongProgramIsShownAndStopped()
{
    const int lines = 30000;
    writeFile(programDir() + "/long.cnc", QByteArray("G01 X1 Y2 Z3\n").repeated(lines));
    QSignalSpy ended(m_screen, SIGNAL(workEnded(QString)));
    // At its first piece, whether the load takes long here or not.
    const QMetaObject::Connection stopping =
        connect(m_screen->editor()->document(), &QTextDocument::contentsChanged, m_screen,
                [this] { m_screen->stopWork("load"); });
    m_screen->open(programDir() + "/long.cnc");
    disconnect(stopping);
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(ended.first().at(0).toString(), QString("load"));
    QVERIFY(m_screen->editor()->blockCount() < lines);
    QTRY_COMPARE(m_screen->guard()->state().kind, ProgramState::Incomplete);
}

FILARIX_TEST_MAIN(TestProgramScreen)
#include "tst_programscreen.moc"
