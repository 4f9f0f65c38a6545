// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds UnsavedWork: what is kept of a panel that is killed at any moment.

#include "filarixtest.h"
#include "guards/programguard.h"
#include "programs/programopener.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedstore.h"
#include "programs/unsavedwork.h"
#include "screens/machinedata.h"
#include "screens/programscreen.h"
#include "screens/taughtprogram.h"
#include "screens/teachscreen.h"
#include "screens/variablesscreen.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <vector>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const int kills = 40;
const int killsOfTheLongRun = 300;
const int sideBySide = 4;
const qint64 longestLifeMs = 2500;
const qint64 mostLostMs = 2000;
const int lines = 3000;

const QLatin1String teach("teach");
const QLatin1String variables("variables");

enum Subject { Program, Teach, Variables, Subjects };

/// What a screen showed from a moment on.
struct State
{
    qint64 ms;
    qint32 subject;
    char hash[16];
};

qint64 nowMs()
{
    struct timespec time = {};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * qint64(1000) + time.tv_nsec / 1000000;
}

QByteArray hashOf(const QString &text)
{
    const QByteArray bytes(reinterpret_cast<const char *>(text.constData()), text.size() * 2);
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

QByteArray hashOf(const QList<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows)
        text += row.join(QChar(1)) + QChar(2);
    return hashOf(text);
}

/// The panel's screens, on which somebody works until the power goes.
class Panel : public QObject
{
public:
    Panel(const QString &home, unsigned seed);

private:
    int next(int below);
    void begin();
    void work();
    void changeProgram();
    void changeTaught();
    void changeVariables();
    void note(Subject subject);
    QByteArray shown(Subject subject) const;

    const QString m_home;
    unsigned m_seed;
    int m_log;
    MachineData m_machine;
    ProgramScreen m_program;
    TeachScreen m_teach;
    VariablesScreen m_variables;
    UnsavedWork m_unsaved;
    QTimer m_timer;
};

Panel::Panel(const QString &home, unsigned seed)
    : m_home(home)
    , m_seed(seed)
    , m_log(::open(QFile::encodeName(home + "/log").constData(),
                   O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600))
    , m_program(90, home + "/plc", home + "/hmi", &m_machine)
    , m_teach(QSize(480, 800), home + "/hmi", &m_machine)
    , m_variables(QSize(480, 800), home + "/hmi")
    , m_unsaved(home + "/hmi/unsaved")
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Panel::begin);
    m_timer.start(0);
}

int Panel::next(int below)
{
    m_seed = m_seed * 1103515245u + 12345u;
    return int((m_seed >> 8) % unsigned(below));
}

void Panel::begin()
{
    if (m_teach.isLoading() || m_variables.isLoading())
        return m_timer.start(1);
    if (!ProgramOpener(m_program.programWindow()).open(m_home + "/cnc/coil.cnc"))
        ::_exit(3);
    m_unsaved.watchProgram(m_program.editor()->document(), [this] {
        return UnsavedOffer::headOf(m_program.programWindow(),
                                    m_program.guard()->state().kind == ProgramState::Incomplete);
    });
    m_unsaved.watchRows(teach, &m_teach);
    m_unsaved.watchRows(variables, &m_variables);
    for (Subject subject : {Program, Teach, Variables})
        note(subject);
    disconnect(&m_timer, nullptr, this, nullptr);
    connect(&m_timer, &QTimer::timeout, this, &Panel::work);
    m_timer.start(0);
}

// One change a turn of the event loop, as an operator makes them.
void Panel::work()
{
    switch (next(10)) {
    case 0:
        changeTaught();
        note(Teach);
        break;
    case 1:
        changeVariables();
        note(Variables);
        break;
    default:
        changeProgram();
        note(Program);
    }
    m_timer.start(next(50));
}

void Panel::changeProgram()
{
    WGCodeEditer *editor = m_program.editor();
    QTextCursor cursor(editor->document());
    cursor.setPosition(next(editor->document()->characterCount()));
    editor->setTextCursor(cursor);
    switch (next(12)) {
    case 0:
        return editor->undo();
    case 1:
        return editor->redo();
    case 2:
        return editor->deleteLine();
    case 3:
        return editor->insertLine(QString::fromLatin1("G01 X%1").arg(next(1000)));
    case 4:
        return editor->updateGCode(QString::fromLatin1("G02 X%1").arg(next(1000)));
    case 5:
        cursor.setPosition(next(editor->document()->characterCount()), QTextCursor::KeepAnchor);
        cursor.insertText(QString::fromLatin1("G00\n").repeated(next(500)));
        return;
    default:
        cursor.insertText(QString(QChar(next(8) ? 0x41 + next(26) : 0x4e00 + next(100))));
    }
}

void Panel::changeTaught()
{
    m_teach.insert(TaughtProgram::command(QString::number(next(1000))));
    if (next(2))
        m_teach.removeChosen();
}

void Panel::changeVariables()
{
    QList<QStringList> rows = m_variables.rows();
    rows[next(rows.size())].last() = QString::number(next(1000));
    m_variables.setRows(rows);
}

QByteArray Panel::shown(Subject subject) const
{
    if (subject == Teach)
        return hashOf(m_teach.rows());
    if (subject == Variables)
        return hashOf(m_variables.rows());
    const QTextDocument *document = m_program.editor()->document();
    return hashOf(document->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n')));
}

// A write is the system's by the time it returns: no kill takes it back.
void Panel::note(Subject subject)
{
    State state = {nowMs(), subject, {}};
    std::memcpy(state.hash, shown(subject).constData(), sizeof state.hash);
    if (::write(m_log, &state, sizeof state) != ssize_t(sizeof state))
        ::_exit(4);
}

/// Becomes a panel program, and never comes back.
void runPanel(const char *home, unsigned seed)
{
    ::setenv("HOME", home, 1);
    int count = 1;
    char name[] = "panel";
    char *arguments[] = {name, nullptr};
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication application(count, arguments);
    // Its windows are not shown, and its dialogs come and go.
    QApplication::setQuitOnLastWindowClosed(false);
    Panel panel(QFile::decodeName(home), seed);
    ::_exit(QApplication::exec());
}

struct Order
{
    char home[200];
    unsigned seed;
};

// A program with threads and a display cannot be forked, so this one forks for it: it has neither.
int runNursery(int orders)
{
    std::signal(SIGCHLD, SIG_IGN);
    Order order = {};
    while (::read(orders, &order, sizeof order) == ssize_t(sizeof order)) {
        const pid_t child = ::fork();
        if (child == 0) {
            ::close(orders);
            std::signal(SIGCHLD, SIG_DFL);
            runPanel(order.home, order.seed);
        }
        if (::write(orders, &child, sizeof child) != ssize_t(sizeof child))
            return 1;
    }
    return 0;
}

int nursery = -1;

} // namespace

class TestUnsavedKill : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void killTakesTwoSecondsAtTheMost();

private:
    struct Run
    {
        QString home;
        pid_t child = -1;
        qint64 killAt = 0;
        bool wasAlive = false;
    };

    static Run start(int number);
    static bool isOver(Run *run, int number);
    void judge(const QString &home, qint64 killed);

    qint64 m_longest = 0;
    int m_recovered = 0;
    int m_lost = 0;
};

TestUnsavedKill::Run TestUnsavedKill::start(int number)
{
    Run run;
    run.home = home() + "/run" + QString::number(number);
    writeFile(run.home + "/cnc/coil.cnc", QByteArray("G01 X1 Y2\n").repeated(lines));
    Order order = {};
    qstrncpy(order.home, QFile::encodeName(run.home).constData(), sizeof order.home);
    order.seed = unsigned(number) * 2654435761u + 1;
    if (::write(nursery, &order, sizeof order) != ssize_t(sizeof order)
        || ::read(nursery, &run.child, sizeof run.child) != ssize_t(sizeof run.child))
        run.child = -1;
    return run;
}

/// Kills it when its time has come; a time at random, from the first change on.
bool TestUnsavedKill::isOver(Run *run, int number)
{
    if (run->killAt == 0) {
        if (QFileInfo(run->home + "/log").size() < int(Subjects * sizeof(State)))
            return false;
        const unsigned random = unsigned(number + 1) * 40503u * 69069u;
        run->killAt = nowMs() + qint64((random >> 8) % unsigned(patience(int(longestLifeMs))));
    }
    if (nowMs() < run->killAt)
        return false;
    run->killAt = nowMs();
    // One that ended by itself proves nothing.
    run->wasAlive = ::kill(run->child, SIGKILL) == 0;
    while (::kill(run->child, 0) == 0 || errno != ESRCH)
        ::usleep(500);
    return true;
}

void TestUnsavedKill::judge(const QString &home, qint64 killed)
{
    const QByteArray log = readFile(home + "/log");
    QCOMPARE(log.size() % int(sizeof(State)), 0);
    std::vector<State> states(size_t(log.size()) / sizeof(State));
    std::memcpy(states.data(), log.constData(), size_t(log.size()));

    const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(home + "/hmi/unsaved");
    QVERIFY(sessions.size() <= 1);
    const QStringList names{UnsavedWork::program(), teach, variables};
    for (int subject = 0; subject < Subjects; ++subject) {
        std::vector<State> own;
        std::copy_if(states.begin(), states.end(), std::back_inserter(own),
                     [subject](const State &state) { return state.subject == subject; });
        QVERIFY(!own.empty());
        // What was not kept is what it was at the start.
        QByteArray hash(own.front().hash, sizeof own.front().hash);
        KeptWork work;
        const UnsavedStore::Reading reading =
            sessions.isEmpty() ? UnsavedStore::Nothing
                               : UnsavedStore::read(*sessions.first(), names.at(subject), &work);
        QVERIFY(reading != UnsavedStore::Broken);
        if (reading == UnsavedStore::Whole) {
            hash = subject == Program ? hashOf(work.text) : hashOf(work.rows);
            ++m_recovered;
        }
        int last = int(own.size()) - 1;
        while (last >= 0 && std::memcmp(own[size_t(last)].hash, hash.constData(), 16) != 0)
            --last;
        // Nothing that was never on the screen.
        QVERIFY2(last >= 0, qPrintable(home + ' ' + names.at(subject)));
        if (last + 1 == int(own.size()))
            continue;
        const qint64 lost = killed - own[size_t(last) + 1].ms;
        m_longest = qMax(m_longest, lost);
        ++m_lost;
        QVERIFY2(
            lost <= patience(int(mostLostMs)),
            qPrintable(QString::fromLatin1("%1 %2: %3 ms").arg(home, names.at(subject)).arg(lost)));
    }
}

void TestUnsavedKill::killTakesTwoSecondsAtTheMost()
{
    const int all = scaled(isLongRun() ? killsOfTheLongRun : kills, 20);
    int started = 0;
    int ended = 0;
    std::vector<Run> runs;
    std::vector<int> numbers;
    while (ended < all) {
        while (started < all && int(runs.size()) < sideBySide) {
            numbers.push_back(started);
            runs.push_back(start(started++));
            QVERIFY(runs.back().child > 0);
        }
        for (size_t i = 0; i < runs.size(); ++i) {
            if (!isOver(&runs[i], numbers[i]))
                continue;
            QVERIFY(runs[i].wasAlive);
            judge(runs[i].home, runs[i].killAt);
            QDir(runs[i].home).removeRecursively();
            runs.erase(runs.begin() + int(i));
            numbers.erase(numbers.begin() + int(i));
            ++ended;
            break;
        }
        if (QTest::currentTestFailed()) {
            for (const Run &run : runs)
                ::kill(run.child, SIGKILL);
            return;
        }
        ::usleep(1000);
    }
    qInfo("%d kills: %d works kept, changes missing %d times, %lld ms at the most", all,
          m_recovered, m_lost, static_cast<long long>(m_longest));
    // It was not the start alone that came back.
    QVERIFY(m_recovered > all / 2);
}

int main(int argc, char **argv)
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        return 97;
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        ::_exit(runNursery(ends[1]));
    }
    ::close(ends[1]);
    nursery = ends[0];
    int result = 0;
    {
        QApplication application(argc, argv);
        TestUnsavedKill test;
        result = filarixTestMain(&test, argc, argv);
    }
    ::close(nursery);
    ::waitpid(child, nullptr, 0);
    return result;
}

#include "tst_unsavedkill.moc"
