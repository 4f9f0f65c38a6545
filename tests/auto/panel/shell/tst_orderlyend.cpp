// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/panelkey.h"
#include "managerfixture.h"
#include "screens/connectionsscreen.h"
#include "screens/downloadquestion.h"
#include "screens/filesscreen.h"
#include "screens/historydialog.h"
#include "screens/machinedata.h"
#include "screens/programscreen.h"
#include "screens/teachscreen.h"
#include "screens/variablesscreen.h"
#include "shell/orderlyend.h"
#include "shell/questionkeeper.h"
#include "terminationsignals.h"
#include "tlistwidget.h"
#include "wfiledialog.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/gcodekeypad.h>

#include <QDirIterator>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTextDocument>
#include <QTimer>

#include <csignal>

#include <unistd.h>

namespace {

typedef QMap<QString, QByteArray> Files;

/// Every file that an operator can lose, with its bytes.
Files operatorsFiles()
{
    Files files;
    for (const QString &folder : {FilarixTest::home(), ManagerTest::stickDir()}) {
        QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next();
            // A choice is remembered, whatever becomes of it.
            if (all.fileName() == "recent.ini")
                continue;
            files[path] = FilarixTest::readFile(path);
        }
    }
    return files;
}

/// The panel's screens as the program makes them, and what asks on them.
struct Desk
{
    Desk()
        : programs(0, FilarixTest::home() + "/plc", FilarixTest::home() + "/hmi", &machine)
        , teach(QSize(800, 480), FilarixTest::home() + "/hmi", &machine)
        , variables(QSize(800, 480), FilarixTest::home() + "/hmi")
    {
        for (PanelScreen *screen : QList<PanelScreen *>{&programs, &teach, &variables}) {
            const QList<PanelKey *> screenKeys = screen->keys();
            for (PanelKey *key : screenKeys)
                key->setParent(screen);
            screen->show();
        }
    }

    void change() { programs.editor()->insertPlainText("G01 X9\n"); }
    void command(const char *name)
    {
        QMetaObject::invokeMethod(programs.programWindow(), name, Qt::DirectConnection);
    }
    void download()
    {
        Q_EMIT programs.programWindow()->signal_download(FilarixTest::programDir() + "/coil.cnc");
    }
    static void press(PanelScreen *screen, const char *text)
    {
        const QList<PanelKey *> keys = screen->findChildren<PanelKey *>();
        for (PanelKey *key : keys) {
            if (key->text() == QLatin1String(text))
                return key->click();
        }
        qWarning("no key %s", text);
    }

    MachineData machine;
    ProgramScreen programs;
    TeachScreen teach;
    VariablesScreen variables;
};

typedef std::function<void(Desk *)> Ask;

void chooseFile(const char *name)
{
    QWidget *dialog = QApplication::activeModalWidget();
    dialog->findChild<QLineEdit *>()->setText(QLatin1String(name));
    dialog->findChild<QPushButton *>()->click();
}

/// Touches \a name in the picker that comes up next, once it stands: one to remove proposes none.
void willChoose(const char *name)
{
    QTimer::singleShot(0, [name] { QTimer::singleShot(0, [name] { chooseFile(name); }); });
}

void askManager(const char *view, const char *key)
{
    Manager manager;
    if (!Manager::select(qstrcmp(view, "stick") ? manager.hmiView : manager.usbView, "coil.cnc"))
        qWarning("no coil.cnc on the %s", view);
    manager.dialog.show();
    manager.button(key)->click();
}

// With the manager in its own loop, whose end rejects the question.
void askManagerInItsLoop(const char *key)
{
    Manager manager;
    Manager::select(manager.usbView, "coil.cnc");
    QPushButton *button = manager.button(key);
    QTimer::singleShot(0, button, [button] { button->click(); });
    manager.dialog.exec();
}

} // namespace

Q_DECLARE_METATYPE(Ask)

class TestOrderlyEnd : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nothingIsLostUnderAQuestion_data();
    void nothingIsLostUnderAQuestion();
    void everyQuestionIsAnsweredFromTheInnermost();
    void aLoadIsAborted();
    void aSecondSignalChangesNothing();
    void theSignalWaitsForAShellCommand();
    void whatWasRegisteredRunsOnceBehindTheQuestions();
    void questionsWithoutEndDoNotHoldTheProgram();
    void aMenuIsClosed();

private:
    void run(const std::function<void()> &work);
};

void TestOrderlyEnd::init()
{
    ManagerTest::init();
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // They are there until the program ends.
    allowTopLevel(GCodeKeypad::instance());
    allowTopLevel(CharacterKeypad::instance());
    plugStick();
    writeFile(programDir() + "/coil.cnc", "G01 X1\n");
    writeFile(programDir() + "/other.cnc", "G01 X2\n");
    writeFile(stickDir() + "/coil.cnc", "G01 X3\n");
    QVERIFY(QDir().mkpath(home() + "/plc"));
}

/// Runs \a work in the program's loop, as that of a touch, until the program ends.
void TestOrderlyEnd::run(const std::function<void()> &work)
{
    TerminationSignals signals;
    OrderlyEnd orderlyEnd;
    connect(&signals, &TerminationSignals::received, &orderlyEnd, &OrderlyEnd::end);
    const QuestionKeeper keeper;
    QTimer watchdog;
    bool isLate = false;
    connect(&watchdog, &QTimer::timeout, [&isLate] {
        isLate = true;
        QCoreApplication::quit();
    });
    watchdog.start(patience(20000));
    QTimer::singleShot(0, work);
    QCoreApplication::exec();
    QVERIFY2(!isLate, "the program did not end");
    QVERIFY(orderlyEnd.isEnding());
}

void TestOrderlyEnd::nothingIsLostUnderAQuestion_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<int>("number");
    const struct
    {
        const char *name;
        const char *asked;
        Ask ask;
    } questions[] = {
        {"delete on the panel", "MessageBox", [](Desk *) { askManager("panel", ">Del"); }},
        {"delete on the stick", "MessageBox", [](Desk *) { askManager("stick", "Del<"); }},
        {"delete in the manager's loop", "MessageBox", [](Desk *) { askManagerInItsLoop("Del<"); }},
        {"cover on the panel", "MessageBox", [](Desk *) { askManager("stick", "<<"); }},
        {"cover on the stick", "MessageBox", [](Desk *) { askManager("panel", ">>"); }},
        {"remove file", "QMessageBox",
         [](Desk *desk) {
             willChoose("coil.cnc");
             desk->command("remove");
         }},
        {"choose the file to remove", "WFileDialog", [](Desk *desk) { desk->command("remove"); }},
        {"new with changes", "QMessageBox",
         [](Desk *desk) {
             desk->change();
             desk->command("newFile");
         }},
        {"open with changes", "QMessageBox",
         [](Desk *desk) {
             desk->change();
             desk->command("open");
         }},
        {"download with changes", "QMessageBox",
         [](Desk *desk) {
             desk->change();
             desk->command("download");
         }},
        {"open again", "QMessageBox",
         [](Desk *desk) {
             willChoose("coil.cnc");
             desk->command("open");
             willChoose("coil.cnc");
             desk->command("open");
         }},
        {"save under a name", "WFileDialog",
         [](Desk *desk) {
             desk->change();
             desk->command("saveAs");
         }},
        {"download question", "DownloadQuestion", [](Desk *desk) { desk->download(); }},
        {"close with changes", "QMessageBox",
         [](Desk *desk) {
             desk->change();
             QVERIFY(!desk->programs.mayClose());
         }},
        {"close with taught changes", "QMessageBox",
         [](Desk *desk) {
             desk->teach.list()->clear();
             QVERIFY(!desk->teach.mayClose());
         }},
        {"close with changed variables", "QMessageBox",
         [](Desk *desk) {
             desk->variables.list()->clear();
             QVERIFY(!desk->variables.mayClose());
         }},
        {"clear the taught program", "QMessageBox",
         [](Desk *desk) { Desk::press(&desk->teach, "Clear"); }},
        {"name a taught program", "QDialog",
         [](Desk *desk) { Desk::press(&desk->teach, "Store as"); }},
        {"load a taught program", "FileDialog",
         [](Desk *desk) { Desk::press(&desk->teach, "Load"); }},
        {"load with taught changes", "QMessageBox",
         [](Desk *desk) {
             desk->teach.list()->clear();
             Desk::press(&desk->teach, "Load");
         }},
        {"G-code keypad", "QDialog", [](Desk *desk) { desk->command("softEditGcode"); }},
        {"keypad for a name", "QDialog",
         [](Desk *desk) {
             desk->change();
             QTimer::singleShot(0, [] {
                 QWidget *dialog = QApplication::activeModalWidget();
                 QTest::mousePress(dialog->findChild<QLineEdit *>(), Qt::LeftButton);
             });
             desk->command("saveAs");
         }},
        {"history", "HistoryDialog",
         [](Desk *) {
             HistoryDialog dialog((QList<ProgramVersion>()));
             QCOMPARE(dialog.exec(), int(QDialog::Rejected));
         }},
    };
    const struct
    {
        const char *name;
        int number;
    } signals[] = {{"SIGTERM", SIGTERM}, {"SIGINT", SIGINT}, {"SIGHUP", SIGHUP}};
    for (const auto &question : questions) {
        for (const auto &signal : signals)
            QTest::addRow("%s, %s", question.name, signal.name)
                << question.ask << QString(question.asked) << signal.number;
    }
}

void TestOrderlyEnd::nothingIsLostUnderAQuestion()
{
    QFETCH(Ask, ask);
    QFETCH(QString, asked);
    QFETCH(int, number);
    QString seen;
    QTimer look;
    connect(&look, &QTimer::timeout, [&] {
        const QWidget *waiting = QApplication::activeModalWidget();
        if (!waiting || waiting->metaObject()->className() != asked)
            return;
        seen = asked;
        look.stop();
        kill(getpid(), number);
    });
    {
        Desk desk;
        // What is cleared has come from its file.
        QTRY_VERIFY(!desk.teach.isLoading() && !desk.variables.isLoading());
        desk.programs.editor()->document()->setModified(false);
        const Files before = operatorsFiles();
        look.start(5);
        run([&] { ask(&desk); });
        QCOMPARE(seen, asked);
        // The copy that waited for the question goes beside the event loop.
        QTRY_COMPARE(operatorsFiles(), before);
    }
}

// A question on a question's dialog, each in a loop of its own.
void TestOrderlyEnd::everyQuestionIsAnsweredFromTheInnermost()
{
    QStringList order;
    run([&order] {
        QDialog outer;
        QTimer::singleShot(0, [&] {
            QDialog inner;
            QTimer::singleShot(0, [&] {
                QTimer::singleShot(0, [] { kill(getpid(), SIGTERM); });
                const int answer = QMessageBox::question(&inner, "Innermost", "Go on?",
                                                         QMessageBox::Yes | QMessageBox::No);
                order.append(answer == QMessageBox::Yes ? "yes" : "no");
                // What asked goes on, and asks again.
                QMessageBox again(QMessageBox::Question, "Again", "And now?",
                                  QMessageBox::Yes | QMessageBox::No);
                order.append(again.exec() == QMessageBox::No ? "no" : "yes");
            });
            order.append(inner.exec() == QDialog::Rejected ? "inner" : "accepted");
        });
        order.append(outer.exec() == QDialog::Rejected ? "outer" : "accepted");
    });
    QCOMPARE(order, QStringList({"no", "no", "inner", "outer"}));
}

void TestOrderlyEnd::aLoadIsAborted()
{
    const int lines = 200000;
    const QByteArray line = "G01 X1\n";
    writeFile(programDir() + "/long.cnc", line.repeated(lines));
    Desk desk;
    QTRY_VERIFY(!desk.teach.isLoading() && !desk.variables.isLoading());
    const Files before = operatorsFiles();
    int lastLines = 0;
    bool isSignalled = false;
    bool hasLoaderReturned = false;
    QTextDocument *document = desk.programs.editor()->document();
    connect(document, &QTextDocument::blockCountChanged, [&](int count) {
        lastLines = count;
        if (count > 1000 && !isSignalled) {
            isSignalled = true;
            kill(getpid(), SIGTERM);
        }
    });
    run([&] {
        willChoose("long.cnc");
        desk.command("open");
        hasLoaderReturned = true;
    });
    QVERIFY(isSignalled);
    QVERIFY(hasLoaderReturned);
    QVERIFY2(lastLines < lines, QByteArray::number(lastLines).constData());
    QCOMPARE(operatorsFiles(), before);
}

void TestOrderlyEnd::aSecondSignalChangesNothing()
{
    int ended = 0;
    TerminationSignals signals;
    OrderlyEnd orderlyEnd;
    connect(&signals, &TerminationSignals::received, &orderlyEnd, &OrderlyEnd::end);
    const QuestionKeeper keeper;
    orderlyEnd.beforeEnd([&ended] { ++ended; });
    int first = 0;
    int second = 0;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [] { kill(getpid(), SIGTERM); });
        first = QMessageBox::question(nullptr, "First", "?", QMessageBox::Yes | QMessageBox::No);
        kill(getpid(), SIGINT);
        second = QMessageBox::warning(
            nullptr, "Second", "?", QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        kill(getpid(), SIGTERM);
    });
    QCoreApplication::exec();
    QVERIFY(first != QMessageBox::Yes);
    QCOMPARE(second, int(QMessageBox::Cancel));
    QCOMPARE(ended, 1);
}

// The import manager's commands hold the event loop. The one in hand does its work.
void TestOrderlyEnd::theSignalWaitsForAShellCommand()
{
    Files before = operatorsFiles();
    run([] {
        QTimer::singleShot(0, [] {
            QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            // The answer was given before the signal came.
            kill(getpid(), SIGTERM);
            box->button(QMessageBox::Yes)->click();
        });
        askManager("stick", "Del<");
    });
    QVERIFY(before.remove(stickDir() + "/coil.cnc"));
    QCOMPARE(operatorsFiles(), before);
}

void TestOrderlyEnd::whatWasRegisteredRunsOnceBehindTheQuestions()
{
    QStringList order;
    OrderlyEnd orderlyEnd;
    orderlyEnd.beforeEnd([&order] { order.append("first"); });
    orderlyEnd.beforeEnd([&order, &orderlyEnd] {
        QVERIFY(!QApplication::activeModalWidget());
        orderlyEnd.end();
        order.append("second");
    });
    const QuestionKeeper keeper;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, &orderlyEnd, &OrderlyEnd::end);
        QMessageBox::question(nullptr, "Question", "?");
        order.append("answered");
    });
    QCoreApplication::exec();
    QCOMPARE(order, QStringList({"answered", "first", "second"}));
}

void TestOrderlyEnd::questionsWithoutEndDoNotHoldTheProgram()
{
    int yes = 0;
    int asked = 0;
    bool isStopped = false;
    QElapsedTimer time;
    run([&] {
        QTimer::singleShot(0, [] { kill(getpid(), SIGTERM); });
        time.start();
        while (!isStopped) {
            ++asked;
            if (QMessageBox::question(nullptr, "Again", "Again?") == QMessageBox::Yes)
                ++yes;
            // The program's loops have ended once they end of themselves.
            isStopped = time.elapsed() > patience(OrderlyEnd::patienceMs + 2000);
        }
    });
    QCOMPARE(yes, 0);
    QVERIFY(asked > 10);
}

void TestOrderlyEnd::aMenuIsClosed()
{
    QAction *chosen = nullptr;
    QMenu menu;
    menu.addAction("Delete");
    run([&] {
        QTimer::singleShot(0, [] { kill(getpid(), SIGTERM); });
        chosen = menu.exec(QPoint(10, 10));
    });
    QCOMPARE(chosen, static_cast<QAction *>(nullptr));
}

FILARIX_TEST_MAIN(TestOrderlyEnd)
#include "tst_orderlyend.moc"
