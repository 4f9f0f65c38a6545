// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/programguard.h"
#include "guards/windowprogram.h"
#include "modaldriver.h"
#include "programs/programdirectory.h"
#include "programs/programhistory.h"
#include "programwindow.h"
#include "scriptquestioner.h"

#include <QDir>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <algorithm>

#include <sys/stat.h>

/// What a host does with the program in the library's window.
class TestWindowProgram : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void editorOfAWindowIsFound();
    void openedProgramIsTheWindowsOwn_data();
    void openedProgramIsTheWindowsOwn();
    void otherSpellingsLeadToTheSameProgram_data();
    void otherSpellingsLeadToTheSameProgram();
    void whatIsNoProgramLeavesTheWindowAsItIs_data();
    void whatIsNoProgramLeavesTheWindowAsItIs();
    void guardComparesAndKeepsAsEver();
    void guardMayRefuse();
    void nothingIsOpenedBehindADialog();
    void nothingIsOpenedWhileAProgramLoads();
    void windowMayGoMeanwhile();
    void lineOfTheFileIsShown();
    void lineOfTheFileIsFoundBehindDroppedComments();
    void lineOfAnotherProgramIsNotGuessed();
    void lineIsNotShownOnceTheWindowHasGone();
};

namespace {

QString pathOf(const QString &name)
{
    return FilarixTest::programDir() + QLatin1Char('/') + name;
}

/// Whether the history has these bytes as a version of that program.
bool isHeld(const ProgramHistory &history, const QString &name, const QByteArray &bytes)
{
    const QList<ProgramVersion> versions = history.versions();
    return std::any_of(versions.begin(), versions.end(), [&](const ProgramVersion &version) {
        return version.name == name
               && FilarixTest::readFile(version.path).mid(int(version.offset)) == bytes;
    });
}

/// What is done once, as soon as the editor has some lines.
class WhenLoading : public QObject
{
    Q_OBJECT

public:
    WhenLoading(WGCodeEditer *editor, const std::function<void()> &action) : m_action(action)
    {
        connect(editor, SIGNAL(blockCountChanged(int)), SLOT(run(int)));
    }

private Q_SLOTS:
    void run(int lines)
    {
        const std::function<void()> action = m_action;
        if (lines < 100 || !action)
            return;
        m_action = std::function<void()>();
        action();
    }

private:
    std::function<void()> m_action;
};

} // namespace

void TestWindowProgram::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestWindowProgram::editorOfAWindowIsFound()
{
    ProgramWindow host;
    QVERIFY(host.editor());
    QCOMPARE(WindowProgram::editorOf(host.window()), host.editor());
    QCOMPARE(WindowProgram::editorOf(nullptr), static_cast<WGCodeEditer *>(nullptr));
    QWidget other;
    QCOMPARE(WindowProgram::editorOf(&other), static_cast<WGCodeEditer *>(nullptr));
    WGCodeEditer *const editor = new WGCodeEditer(&other);
    QCOMPARE(WindowProgram::editorOf(&other), editor);
}

void TestWindowProgram::openedProgramIsTheWindowsOwn_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("short, in a window that is shown") << QByteArray("G01 X1\nM2\n") << true;
    QTest::newRow("before the window is shown") << QByteArray("G01 X1\nM2\n") << false;
    QTest::newRow("long") << QByteArray("G01 X1\n").repeated(2000) << true;
}

void TestWindowProgram::openedProgramIsTheWindowsOwn()
{
    QFETCH(QByteArray, program);
    QFETCH(bool, isShown);
    writeFile(pathOf("coil.cnc"), program);
    ProgramWindow host;
    if (isShown) {
        host.window()->show();
        QVERIFY(TestCompat::waitForExposed(host.window()));
    }
    QVERIFY(WindowProgram::openProgram(host.window(), pathOf("coil.cnc")));
    QCOMPARE(host.window()->getCurrentFile(), pathOf("coil.cnc"));
    QCOMPARE(host.editor()->toPlainText().trimmed(), QString::fromLatin1(program).trimmed());
    QVERIFY(host.window()->windowTitle().startsWith("coil.cnc"));
    QVERIFY(!host.isModified());
    QSignalSpy downloads(host.window(), SIGNAL(signal_download(QString)));
    host.press("D/L");
    QCOMPARE(downloads.size(), 1);
    QCOMPARE(downloads.first().first().toString(), pathOf("coil.cnc"));
}

void TestWindowProgram::otherSpellingsLeadToTheSameProgram_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a doubled slash") << programDir() + "//coil.cnc";
    QTest::newRow("up and down") << programDir() + "/../cnc/./coil.cnc";
}

void TestWindowProgram::otherSpellingsLeadToTheSameProgram()
{
    QFETCH(QString, path);
    writeFile(pathOf("coil.cnc"), "M2\n");
    ProgramWindow host;
    QVERIFY(WindowProgram::openProgram(host.window(), path));
    QCOMPARE(host.window()->getCurrentFile(), pathOf("coil.cnc"));
}

void TestWindowProgram::whatIsNoProgramLeavesTheWindowAsItIs_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << QString();
    QTest::newRow("missing") << programDir() + "/none.cnc";
    QTest::newRow("a folder") << programDir() + "/more";
    QTest::newRow("a pipe") << programDir() + "/pipe.cnc";
    QTest::newRow("below the folder") << programDir() + "/more/one.cnc";
    QTest::newRow("elsewhere") << home() + "/elsewhere/one.cnc";
    QTest::newRow("the folder itself") << programDir();
    QTest::newRow("all folders") << QString("/");
}

void TestWindowProgram::whatIsNoProgramLeavesTheWindowAsItIs()
{
    QFETCH(QString, path);
    writeFile(pathOf("first.cnc"), "G99\n");
    writeFile(pathOf("more/one.cnc"), "G01\n");
    writeFile(home() + "/elsewhere/one.cnc", "G01\n");
    QCOMPARE(mkfifo(QFile::encodeName(pathOf("pipe.cnc")).constData(), 0600), 0);
    ProgramWindow host;
    QVERIFY(WindowProgram::openProgram(host.window(), pathOf("first.cnc")));
    ModalDriver driver;
    QVERIFY(!WindowProgram::openProgram(host.window(), path));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(host.window()->getCurrentFile(), pathOf("first.cnc"));
    QCOMPARE(host.editor()->toPlainText(), QString("G99\n"));
    QVERIFY(!WindowProgram::openProgram(nullptr, pathOf("first.cnc")));
}

void TestWindowProgram::guardComparesAndKeepsAsEver()
{
    writeFile(pathOf("coil.cnc"), "G01 X1\nM2\n");
    writeFile(pathOf("long.cnc"), "; layer\n" + QByteArray("G01 X1\n").repeated(600));
    ProgramWindow host;
    ScriptQuestioner questioner;
    ProgramHistory history(programDir(), home() + "/history");
    ProgramGuard guard(host.window(), ProgramDirectory::path(), &questioner);
    guard.setHistory(&history);
    QVERIFY(WindowProgram::openProgram(host.window(), pathOf("long.cnc"), &guard));
    QTRY_VERIFY(!guard.isBusy());
    QCOMPARE(int(guard.state().kind), int(ProgramState::Cleaned));
    QVERIFY(WindowProgram::openProgram(host.window(), pathOf("coil.cnc"), &guard));
    QTRY_VERIFY(!guard.isBusy());
    QCOMPARE(int(guard.state().kind), int(ProgramState::Plain));
    host.editor()->insertLine("G01 X2");
    QSignalSpy saved(&guard, SIGNAL(saveEnded(bool)));
    guard.save();
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(saved.first().first().toBool());
    QTRY_VERIFY(isHeld(history, "coil.cnc", "G01 X1\nM2\n"));
}

void TestWindowProgram::guardMayRefuse()
{
    writeFile(pathOf("coil.cnc"), "G01 X1\nM2\n");
    ProgramWindow host;
    ScriptQuestioner questioner;
    ProgramGuard guard(host.window(), ProgramDirectory::path(), &questioner);
    host.editor()->insertPlainText("not saved");
    ModalDriver driver;
    driver.press(QMessageBox::Cancel);
    QVERIFY(!WindowProgram::openProgram(host.window(), pathOf("coil.cnc"), &guard));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(host.editor()->toPlainText(), QString("not saved"));
}

void TestWindowProgram::nothingIsOpenedBehindADialog()
{
    writeFile(pathOf("coil.cnc"), "G01 X1\nM2\n");
    ProgramWindow host;
    bool isOpened = true;
    ModalDriver driver;
    driver.then([&](QWidget *dialog) {
        isOpened = WindowProgram::openProgram(host.window(), pathOf("coil.cnc"));
        dialog->close();
    });
    host.press("Open");
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!isOpened);
    QCOMPARE(host.window()->getCurrentFile(), QString());
}

void TestWindowProgram::nothingIsOpenedWhileAProgramLoads()
{
    writeFile(pathOf("coil.cnc"), "M2\n");
    writeFile(pathOf("long.cnc"), QByteArray("G01 X1\n").repeated(2000));
    ProgramWindow host;
    bool isOpened = true;
    const WhenLoading second(host.editor(), [&] {
        isOpened = WindowProgram::openProgram(host.window(), pathOf("coil.cnc"));
    });
    QVERIFY(WindowProgram::openProgram(host.window(), pathOf("long.cnc")));
    QVERIFY(!isOpened);
    QCOMPARE(host.window()->getCurrentFile(), pathOf("long.cnc"));
}

void TestWindowProgram::windowMayGoMeanwhile()
{
    writeFile(pathOf("long.cnc"), QByteArray("G01 X1\n").repeated(2000));
    ProgramWindow host;
    WMMainWindow *window = host.window();
    const WhenLoading gone(host.editor(), [window] { window->deleteLater(); });
    QPointer<WMMainWindow> watched(window);
    QVERIFY(!WindowProgram::openProgram(window, pathOf("long.cnc")));
    QVERIFY(!watched);
}

void TestWindowProgram::lineOfTheFileIsShown()
{
    writeFile(pathOf("coil.cnc"), "; start\n\nG01 X1\nM2\n");
    ProgramWindow host;
    QVERIFY(WindowProgram::openProgram(host.window(), pathOf("coil.cnc")));
    QVERIFY(WindowProgram::goToFileLine(host.window(), 4));
    QCOMPARE(host.editor()->curLineText(), QString("M2"));
    QVERIFY(!WindowProgram::goToFileLine(host.window(), 0));
    QVERIFY(!WindowProgram::goToFileLine(host.window(), 6));
    QCOMPARE(host.editor()->curLineText(), QString("M2"));
}

void TestWindowProgram::lineOfTheFileIsFoundBehindDroppedComments()
{
    // A comment before each 20 lines of code.
    QByteArray program;
    for (int i = 1; i <= 600; ++i)
        program += i % 20 == 1 ? QByteArray("; layer\n") : "G01 X" + QByteArray::number(i) + "\n";
    writeFile(pathOf("long.cnc"), program);
    ProgramWindow host;
    QVERIFY(WindowProgram::openProgram(host.window(), pathOf("long.cnc")));
    QVERIFY(WindowProgram::goToFileLine(host.window(), 600));
    QCOMPARE(host.editor()->curLineText(), QString("G01 X600"));
    QVERIFY(WindowProgram::goToFileLine(host.window(), 42));
    QCOMPARE(host.editor()->curLineText(), QString("G01 X42"));
    QVERIFY(WindowProgram::goToFileLine(host.window(), 41)); // a comment
    QCOMPARE(host.editor()->curLineText(), QString("G01 X40"));
    QVERIFY(WindowProgram::goToFileLine(host.window(), 1));
    QCOMPARE(host.editor()->curLineText(), QString("G01 X2"));
}

void TestWindowProgram::lineOfAnotherProgramIsNotGuessed()
{
    writeFile(pathOf("coil.cnc"), "G01 X1\nM2\n");
    ProgramWindow host;
    QVERIFY(!WindowProgram::goToFileLine(nullptr, 1));
    QVERIFY(!WindowProgram::goToFileLine(host.window(), 1));
    QVERIFY(WindowProgram::openProgram(host.window(), pathOf("coil.cnc")));
    host.editor()->insertLine("G01 X2");
    QVERIFY(!WindowProgram::goToFileLine(host.window(), 2));
    QVERIFY(QFile::remove(pathOf("coil.cnc")));
    QVERIFY(!WindowProgram::goToFileLine(host.window(), 2));
}

void TestWindowProgram::lineIsNotShownOnceTheWindowHasGone()
{
    writeFile(pathOf("coil.cnc"), "G01 X1\nM2\n");
    ProgramWindow host;
    WMMainWindow *window = host.window();
    QVERIFY(WindowProgram::openProgram(window, pathOf("coil.cnc")));
    QPointer<WMMainWindow> watched(window);
    window->deleteLater();
    QVERIFY(!WindowProgram::goToFileLine(window, 1));
    QVERIFY(!watched);
}

FILARIX_TEST_MAIN(TestWindowProgram)
#include "tst_windowprogram.moc"
