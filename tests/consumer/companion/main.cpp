// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// A host that has the companion between its operator and the library.

#include <base/questioner.h>
#include <guards/finddialogguide.h>
#include <guards/finddialogkeypad.h>
#include <guards/lineentry.h>
#include <guards/programguard.h>
#include <guards/programwalk.h>
#include <guards/windowprogram.h>
#include <programs/checkeddownload.h>
#include <programs/plctransfer.h>
#include <programs/programdirectory.h>
#include <programs/programhistory.h>
#include <programs/programsnapshot.h>
#include <programs/unsavedwork.h>
#include <stick/importguard.h>
#include <stick/transfernames.h>
#include <storage/durablefile.h>
#include <storage/filethread.h>

#include <wmmainwindow.h>

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <QTranslator>

#include <cstdio>

namespace {

int failures = 0;

void check(bool condition, const char *what)
{
    if (condition)
        return;
    std::fprintf(stderr, "companion: not so: %s\n", what);
    ++failures;
}

/// Runs the event loop until quit() is called.
class Wait : public QEventLoop
{
public:
    Wait()
    {
        m_patience.setSingleShot(true);
        connect(&m_patience, SIGNAL(timeout()), SLOT(quit()));
    }

    Wait(QObject *sender, const char *signal) : Wait() { connect(sender, signal, SLOT(quit())); }

    /// False when nobody calls it.
    bool isOver()
    {
        m_patience.start(30000);
        exec();
        return m_patience.isActive();
    }

private:
    QTimer m_patience;
};

/// A host's own questions.
class HarmlessAnswers : public Questioner
{
public:
    int ask(const Question &question) override
    {
        check(!question.answers.isEmpty(), "a question brings its answers");
        return 0;
    }
};

const char program[] = "G01 X1 Y2\nG01 X1 Y3\n";

QString storedProgram()
{
    const QString folder = ProgramDirectory::path();
    check(QDir().mkpath(folder), "the program directory");
    const QString path = folder + QLatin1String("/coil.cnc");
    DurableFile file(path);
    check(file.open() && file.write(program) && file.commit(), "a file is written as a whole");
    return path;
}

void workInAThread()
{
    FileThread thread;
    Wait answered;
    int sum = 0;
    thread.post([&sum] { sum = 42; }, [&answered] { answered.quit(); });
    check(answered.isOver() && sum == 42, "work is done in a thread, its answer comes back");
}

void sendAProgram(const QString &path)
{
    ProgramSnapshot snapshot(QDir::home().filePath(QLatin1String("snapshots")));
    Wait taken(&snapshot, SIGNAL(taken()));
    snapshot.take(path);
    check(taken.isOver(), "a program is copied before it is sent");
    check(snapshot.facts().lines == 3 && snapshot.facts().bytes == qint64(sizeof program) - 1,
          "an operator is told what is sent");
    const QString drop = QDir::home().filePath(QLatin1String("plc"));
    check(QDir().mkpath(drop), "the folder of the PLC");
    PlcTransfer transfer(drop);
    Wait sent(&transfer, SIGNAL(finished(QString, qint64)));
    transfer.start(path, snapshot.copyPath(), snapshot.facts().hash);
    check(sent.isOver() && QFile::exists(drop + QLatin1String("/coil.cnc")), "it is sent");
}

void keepVersions(const QString &path)
{
    ProgramHistory history(ProgramDirectory::path(),
                           QDir::home().filePath(QLatin1String("history")));
    Wait settled;
    history.whenSettled(&settled, [&settled] { settled.quit(); });
    check(settled.isOver() && history.isKept(QFileInfo(path).fileName()), "a version is kept");
}

void guardAWindow()
{
    HarmlessAnswers questioner;
    WMMainWindow window(nullptr, 0);
    new FindDialogKeypad(&window);
    new LineEntry(&window, &window);
    new FindDialogGuide(WindowProgram::editorOf(&window));
    const ProgramWalk walk(&window);
    check(walk.text().isEmpty(), "no line was asked for");
    ProgramGuard guard(&window, ProgramDirectory::path(), &questioner);
    ImportGuard importGuard(ProgramDirectory::path(), QLatin1String("/mnt/Storage"), &questioner);
    UnsavedWork work(QDir::home().filePath(QLatin1String("unsaved")));
    check(!guard.isBusy() && !importGuard.isBusy() && work.isSettled(), "the guards stand");
    check(guard.mayDownload(QLatin1String("/a.cnc")), "what is shown is what is stored");
}

void nameFiles()
{
    check(!TransferNames::isSafe(QLatin1String("a b;c.cnc")), "a name that a shell mistakes");
    check(TransferNames::proposal(QLatin1String("a b.cnc"), QStringList())
              == QLatin1String("a_b.cnc"),
          "a better one is proposed");
}

#ifdef TRANSLATIONS
void useTranslations()
{
    QTranslator german;
    check(german.load(QLatin1String("filarixhost_de"), QLatin1String(TRANSLATIONS)),
          "the translations are where the package says");
    QCoreApplication::installTranslator(&german);
    const char text[] = "The download was stopped. The PLC keeps what it had.";
    check(CheckedDownload::tr(text) != QLatin1String(text), "the companion speaks German");
    QCoreApplication::removeTranslator(&german);
}
#endif

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QString path = storedProgram();
    workInAThread();
    sendAProgram(path);
    keepVersions(path);
    guardAWindow();
    nameFiles();
#ifdef TRANSLATIONS
    useTranslations();
#endif
    return failures ? 1 : 0;
}
