// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "heldfile.h"
#include "programs/checkeddownload.h"
#include "scriptquestioner.h"
#include "signalhook.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSemaphore>
#include <QSignalSpy>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class TestCheckedDownload : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sendsWhatWasAgreedTo();
    void endsBeforeItIsTold();
    void secondStartDoesNothing();
    void failureOfTheProgramIsAWarning_data();
    void failureOfTheProgramIsAWarning();
    void failureOfThePlcIsAnAlarmUntilADownloadIsCompared();
    void refusedDownloadSendsNothing();
    void whatWasShownIsSent_data();
    void whatWasShownIsSent();
    void questionTellsHowTheEditorStands_data();
    void questionTellsHowTheEditorStands();
    void copyThatCannotBeReadAgainIsNotCompared();
    void checkIsOfTheBytesThatAreSent();
    void errorsTakeASecondTouch_data();
    void errorsTakeASecondTouch();
    void whatTheVerdictForbidsIsNotSent();
    void checkThatHangsIsNoCheck();
    void stopWhileCheckingAsksNothing();
    void stopWhileCopyingSendsNothing();
    void stopWhileComparingAsksNothing();
    void stopWhileSendingTakesTheProgramBack();
    void stopBeforeTheComparisonWarns();
    void stopDuringTheQuestionLeavesItToTheOperator();
    void hangingPlcIsToldAndTheNextDownloadRuns();
    void longCopyIsTold();
    void questionerMayEndTheDownload();
    void listenerMayEndTheDownload();

private:
    void make(Questioner *questioner);
    void start() { m_download->start(m_path); }
    QString text(int message = 0) const { return m_told->at(message).at(0).toString(); }
    int tone(int message = 0) const
    {
        return int(m_told->at(message).at(1).value<Message::Tone>());
    }
    QString cause(int message = 0) const { return m_told->at(message).at(2).toString(); }
    QStringList sent() const { return QDir(m_plc).entryList(QDir::Files | QDir::Hidden); }
    QStringList copies() const { return QDir(m_outgoing).entryList(QDir::Files | QDir::Hidden); }

    QString m_plc;
    QString m_outgoing;
    QString m_path;
    ScriptQuestioner m_questioner;
    QScopedPointer<CheckedDownload> m_download;
    QScopedPointer<QSignalSpy> m_told;
};

namespace {

const int send = 1;

QByteArray longProgram()
{
    return QByteArray("G01 X1\n").repeated(20000);
}

QByteArray numbered(int lines, const QByteArray &end = "\n")
{
    QByteArray bytes;
    for (int i = 1; i <= lines; ++i)
        bytes += "G01 X" + QByteArray::number(i) + end;
    return bytes;
}

// Runs something in the place of the operator.
class ActingQuestioner : public Questioner
{
public:
    int ask(const Question &) override { return act(); }

    std::function<int()> act;
};

// Finds what the test says.
class FixedInspection : public ProgramInspection
{
public:
    explicit FixedInspection(const ProgramVerdict &verdict) : m_verdict(verdict) {}

    bool step() override { return false; }
    ProgramVerdict verdict() const override { return m_verdict; }

private:
    const ProgramVerdict m_verdict;
};

ProgramVerdict verdict(ProgramVerdict::State state, int errors = 0, int warnings = 0)
{
    ProgramVerdict verdict;
    verdict.state = state;
    verdict.errors = errors;
    verdict.warnings = warnings;
    return verdict;
}

CheckedDownload::Inspector finding(const ProgramVerdict &verdict)
{
    return [verdict](const QString &) { return std::make_shared<FixedInspection>(verdict); };
}

} // namespace

void TestCheckedDownload::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_plc = home() + "/plc";
    m_outgoing = home() + "/hmi/outgoing";
    m_path = programDir() + "/coil.cnc";
    QVERIFY(QDir().mkpath(m_plc));
    m_questioner.asked.clear();
    m_questioner.answers.clear();
    make(&m_questioner);
}

void TestCheckedDownload::make(Questioner *questioner)
{
    m_download.reset(new CheckedDownload(m_plc, m_outgoing, questioner));
    m_told.reset(new QSignalSpy(m_download.data(), SIGNAL(told(QString, Message::Tone, QString))));
}

void TestCheckedDownload::cleanup()
{
    m_told.reset();
    m_download.reset();
    FilarixTest::cleanup();
}

void TestCheckedDownload::sendsWhatWasAgreedTo()
{
    writeFile(m_path, longProgram());
    QSignalSpy worked(m_download.data(), SIGNAL(worked(QString, int)));
    m_questioner.answers << send;
    start();
    QVERIFY(m_download->isRunning());
    QVERIFY(m_questioner.asked.isEmpty());
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(readFile(m_plc + "/coil.cnc"), longProgram());
    QCOMPARE(text(), QString("coil.cnc is in the PLC: 140000 bytes, compared."));
    QCOMPARE(tone(), int(Message::Information));
    QVERIFY(worked.size() > 5);
    QCOMPARE(worked.last().at(0).toString(), QString("coil.cnc goes to the PLC: 100 %"));
    QCOMPARE(m_questioner.asked.size(), 1);
    QTRY_COMPARE(copies(), QStringList());
}

void TestCheckedDownload::endsBeforeItIsTold()
{
    writeFile(m_path, "G01\n");
    QStringList order;
    SignalHook ended(m_download.data(), SIGNAL(ended()),
                     [&] { order += m_download->isRunning() ? "ended too early" : "ended"; });
    SignalHook told(m_download.data(), SIGNAL(told(QString, Message::Tone, QString)),
                    [&] { order += "told"; });
    start();
    QTRY_COMPARE(order, QStringList() << "ended"
                                      << "told");
}

void TestCheckedDownload::secondStartDoesNothing()
{
    writeFile(m_path, "G01\n");
    m_questioner.answers << send << send;
    start();
    m_download->start(programDir() + "/other.cnc");
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(sent(), QStringList("coil.cnc"));
    QCOMPARE(m_questioner.asked.size(), 1);
}

void TestCheckedDownload::failureOfTheProgramIsAWarning_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("part");
    QTest::newRow("never saved") << QString() << "Save it under a name first";
    QTest::newRow("gone") << "/nowhere/coil.cnc"
                          << "gone from the panel";
    QTest::newRow("folder") << "/tmp"
                            << "no program file";
}

void TestCheckedDownload::failureOfTheProgramIsAWarning()
{
    QFETCH(QString, path);
    QFETCH(QString, part);
    m_download->start(path);
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(tone(), int(Message::Warning));
    QCOMPARE(cause(), QString());
    QVERIFY2(text().contains(part) || part == "no program file", qPrintable(text()));
    QVERIFY(m_questioner.asked.isEmpty());
    QVERIFY(!m_download->isRunning());
}

void TestCheckedDownload::failureOfThePlcIsAnAlarmUntilADownloadIsCompared()
{
    writeFile(m_path, "G01\n");
    QSignalSpy ends(m_download.data(), SIGNAL(causeEnded(QString)));
    QVERIFY(QDir().rename(m_plc, m_plc + ".away"));
    m_questioner.answers << send << send;
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(tone(), int(Message::Alarm));
    QCOMPARE(cause(), CheckedDownload::plcCause());
    QCOMPARE(ends.size(), 0);
    QVERIFY(QDir().rename(m_plc + ".away", m_plc));
    start();
    QTRY_COMPARE(m_told->size(), 2);
    QCOMPARE(tone(1), int(Message::Information));
    QCOMPARE(ends.size(), 1);
    QCOMPARE(ends.first().first().toString(), CheckedDownload::plcCause());
}

void TestCheckedDownload::refusedDownloadSendsNothing()
{
    writeFile(m_path, "G01\n");
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(text(), QString("Nothing was sent. The PLC keeps what it had."));
    QCOMPARE(tone(), int(Message::Information));
    QCOMPARE(sent(), QStringList());
    QTRY_COMPARE(copies(), QStringList());
}

void TestCheckedDownload::whatWasShownIsSent_data()
{
    QTest::addColumn<bool>("duringTheQuestion");
    QTest::addColumn<bool>("isRemoved");
    QTest::addColumn<QString>("part");
    QTest::newRow("saved again during the question") << true << false << "has changed";
    QTest::newRow("removed during the question") << true << true << "is gone";
    QTest::newRow("saved again during the transfer") << false << false << "has changed";
    QTest::newRow("removed during the transfer") << false << true << "is gone";
}

void TestCheckedDownload::whatWasShownIsSent()
{
    QFETCH(bool, duringTheQuestion);
    QFETCH(bool, isRemoved);
    QFETCH(QString, part);
    writeFile(m_path, longProgram());
    const auto touch = [&] {
        if (isRemoved)
            QFile::remove(m_path);
        else
            writeFile(m_path, "another\n");
    };
    ActingQuestioner questioner;
    questioner.act = [&] {
        if (duringTheQuestion)
            touch();
        return send;
    };
    make(&questioner);
    SignalHook sending(m_download->transfer(), SIGNAL(progress(int)), [&](int) {
        if (!duringTheQuestion)
            touch();
    });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(readFile(m_plc + "/coil.cnc"), longProgram());
    QCOMPARE(tone(), int(Message::Warning));
    QVERIFY2(text().contains(part), qPrintable(text()));
}

void TestCheckedDownload::questionTellsHowTheEditorStands_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("standing");
    QTest::addColumn<QString>("lines");
    QTest::newRow("another program is shown")
        << QByteArray("G01\nG02\n") << QString() << int(DownloadFacts::NotShown) << "3";
    QTest::newRow("all of it") << QByteArray("G01\nG02\n") << "G01\nG02\n"
                               << int(DownloadFacts::Same) << "3";
    QTest::newRow("without lines of comment")
        << "; head\n" + numbered(600) << QString(numbered(600)).trimmed()
        << int(DownloadFacts::Cleaned) << "602 in the file, 600 shown";
    QTest::newRow("without comments in lines")
        << numbered(600, " ; tail\n").trimmed()
        << QString(numbered(600, " \n").left(numbered(600, " \n").size() - 1))
        << int(DownloadFacts::Cleaned) << "600 in the file, comments not shown";
    QTest::newRow("the front part")
        << numbered(600) << QString(numbered(25)).trimmed() << int(DownloadFacts::Incomplete)
        << "601 in the file, 25 shown";
    QTest::newRow("something else, of as many lines")
        << QByteArray("G01\nG02\n") << "G01\nG03\n"
        << int(DownloadFacts::Different) << "3 in the file, others shown";
    QTest::newRow("something else, of more lines")
        << QByteArray("G01\n") << "G01\nG02\nG03\n"
        << int(DownloadFacts::Different) << "2 in the file, 4 shown";
    QTest::newRow("characters that cannot be shown")
        << QByteArray("G01 \xff\n") << QString::fromUtf8("G01 \xef\xbf\xbd\n")
        << int(DownloadFacts::Different) << "2 in the file, others shown";
}

void TestCheckedDownload::questionTellsHowTheEditorStands()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, shown);
    QFETCH(QString, lines);
    writeFile(m_path, file);
    QString asked;
    m_download->setShown([&](const QString &path, QString *text) {
        asked = path;
        *text = shown;
        return !shown.isNull();
    });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(asked, m_path);
    QTEST(int(m_download->facts().standing), "standing");
    QCOMPARE(m_questioner.asked.size(), 1);
    QCOMPARE(m_questioner.asked.first().facts.at(1).value, lines);
}

void TestCheckedDownload::copyThatCannotBeReadAgainIsNotCompared()
{
    writeFile(m_path, "G01\n");
    m_download->setShown([&](const QString &, QString *text) {
        *text = "G01\n";
        return QFile::remove(m_download->snapshot()->copyPath());
    });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(int(m_download->facts().standing), int(DownloadFacts::NotCompared));
    QCOMPARE(m_questioner.asked.first().facts.at(1).value, QString("2 in the file, not compared"));
}

void TestCheckedDownload::checkIsOfTheBytesThatAreSent()
{
    writeFile(m_path, "G01\n");
    QByteArray checked;
    m_download->setInspector([&](const QString &path) {
        checked = readFile(path);
        // Whoever writes it now writes what is not sent.
        writeFile(m_path, "G02\n");
        return std::make_shared<FixedInspection>(verdict(ProgramVerdict::Checked, 0, 1));
    });
    m_questioner.answers << send;
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(checked, QByteArray("G01\n"));
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("G01\n"));
    QCOMPARE(m_questioner.asked.size(), 1);
    QCOMPARE(m_questioner.asked.first().facts.last().value, QString("Errors: 0, warnings: 1"));
}

void TestCheckedDownload::errorsTakeASecondTouch_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("errors");
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("asked");
    QTest::addColumn<bool>("sent");
    const int checked = ProgramVerdict::Checked;
    const int unfinished = ProgramVerdict::Unfinished;
    QTest::newRow("no error") << checked << 0 << 0 << 1 << true;
    QTest::newRow("error, second thoughts") << checked << 2 << 0 << 2 << false;
    QTest::newRow("error, sent all the same") << checked << 2 << send << 2 << true;
    QTest::newRow("unfinished, second thoughts") << unfinished << 0 << 0 << 2 << false;
    QTest::newRow("unfinished, sent all the same") << unfinished << 0 << send << 2 << true;
}

void TestCheckedDownload::errorsTakeASecondTouch()
{
    QFETCH(int, state);
    QFETCH(int, errors);
    QFETCH(int, second);
    QFETCH(bool, sent);
    writeFile(m_path, "G01\n");
    m_download->setInspector(finding(verdict(ProgramVerdict::State(state), errors)));
    m_questioner.answers << send << second;
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QTEST(int(m_questioner.asked.size()), "asked");
    QCOMPARE(QFile::exists(m_plc + "/coil.cnc"), sent);
}

// A questioner of a host's own may answer what it was not asked.
void TestCheckedDownload::whatTheVerdictForbidsIsNotSent()
{
    writeFile(m_path, "G01\n");
    ProgramVerdict forbidden = verdict(ProgramVerdict::Checked, 1);
    forbidden.forbidsSending = true;
    m_download->setInspector(finding(forbidden));
    m_questioner.answers << send << send;
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(text(), QString("Nothing was sent. The PLC keeps what it had."));
    QCOMPARE(m_questioner.asked.size(), 1);
    QCOMPARE(m_questioner.asked.first().answers, QStringList("Cancel"));
    QCOMPARE(sent(), QStringList());
}

void TestCheckedDownload::checkThatHangsIsNoCheck()
{
    class Hanging : public FixedInspection
    {
    public:
        explicit Hanging(const std::shared_ptr<QSemaphore> &gate)
            : FixedInspection(::verdict(ProgramVerdict::Checked)), m_gate(gate)
        {}
        bool step() override
        {
            m_gate->acquire();
            return false;
        }

    private:
        const std::shared_ptr<QSemaphore> m_gate;
    };
    writeFile(m_path, "G01\n");
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    m_download->setStallTime(200);
    m_download->setInspector([&](const QString &) { return std::make_shared<Hanging>(gate); });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    gate->release();
    QCOMPARE(m_questioner.asked.size(), 1);
    QCOMPARE(int(m_download->facts().verdict.state), int(ProgramVerdict::Unfinished));
    QCOMPARE(sent(), QStringList());
}

void TestCheckedDownload::stopWhileCheckingAsksNothing()
{
    writeFile(m_path, "G01\n");
    m_questioner.answers << send;
    m_download->setInspector([&](const QString &) {
        QMetaObject::invokeMethod(m_download.data(), "stop", Qt::QueuedConnection);
        return std::make_shared<FixedInspection>(verdict(ProgramVerdict::Checked));
    });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(text(), QString("The download was stopped. The PLC keeps what it had."));
    QVERIFY(m_questioner.asked.isEmpty());
}

void TestCheckedDownload::stopWhileCopyingSendsNothing()
{
    writeFile(m_path, longProgram());
    m_questioner.answers << send;
    SignalHook copying(m_download->snapshot(), SIGNAL(progress(int)),
                       [&](int) { m_download->stop(); });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(text(), QString("The download was stopped. The PLC keeps what it had."));
    QVERIFY(m_questioner.asked.isEmpty());
    QCOMPARE(sent(), QStringList());
}

void TestCheckedDownload::stopWhileComparingAsksNothing()
{
    writeFile(m_path, longProgram());
    m_questioner.answers << send << send;
    m_download->setShown([&](const QString &, QString *text) {
        *text = "G01\n";
        QMetaObject::invokeMethod(m_download.data(), "stop", Qt::QueuedConnection);
        return true;
    });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(text(), QString("The download was stopped. The PLC keeps what it had."));
    QVERIFY(m_questioner.asked.isEmpty());
    // The next one is not stopped by it.
    m_download->setShown(CheckedDownload::Shown());
    start();
    QTRY_COMPARE(m_told->size(), 2);
    QCOMPARE(sent(), QStringList("coil.cnc"));
}

void TestCheckedDownload::stopWhileSendingTakesTheProgramBack()
{
    writeFile(m_path, longProgram());
    m_questioner.answers << send;
    SignalHook sending(m_download->transfer(), SIGNAL(progress(int)),
                       [&](int) { m_download->stop(); });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(tone(), int(Message::Information));
    QTRY_COMPARE(sent(), QStringList());
    QTRY_COMPARE(copies(), QStringList());
}

void TestCheckedDownload::stopBeforeTheComparisonWarns()
{
    writeFile(m_path, longProgram());
    QSignalSpy ends(m_download.data(), SIGNAL(causeEnded(QString)));
    m_questioner.answers << send;
    SignalHook sending(m_download->transfer(), SIGNAL(progress(int)), [&](int percent) {
        if (percent >= 60)
            m_download->stop();
    });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(tone(), int(Message::Warning));
    QCOMPARE(cause(), CheckedDownload::plcCause());
    QCOMPARE(ends.size(), 0);
    QVERIFY(text().contains("Download it once more"));
}

void TestCheckedDownload::stopDuringTheQuestionLeavesItToTheOperator()
{
    writeFile(m_path, "G01\n");
    ActingQuestioner questioner;
    questioner.act = [&] {
        m_download->stop();
        return send;
    };
    make(&questioner);
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(sent(), QStringList("coil.cnc"));
    QCOMPARE(tone(), int(Message::Information));
}

void TestCheckedDownload::hangingPlcIsToldAndTheNextDownloadRuns()
{
    // A PLC whose folder hangs when what arrived is opened: nobody writes into the pipe.
    writeFile(m_path, "G01\n");
    const QString target = m_plc + "/coil.cnc";
    const QByteArray pipe = QFile::encodeName(target);
    m_download->setStallTime(patience(300));
    m_questioner.answers << send << send;
    {
        SignalHook sending(m_download->transfer(), SIGNAL(progress(int)), [&](int) {
            if (QFileInfo(target).isFile() && QFile::remove(target))
                ::mkfifo(pipe.constData(), 0600);
        });
        start();
        QTRY_COMPARE(m_told->size(), 1);
    }
    QCOMPARE(tone(), int(Message::Alarm));
    QCOMPARE(cause(), CheckedDownload::plcCause());
    QVERIFY(text().contains("Check the PLC"));
    QVERIFY(!m_download->isRunning());
    ::close(::open(pipe.constData(), O_WRONLY | O_NONBLOCK));
    QVERIFY(QFile::remove(target));
    start();
    QTRY_COMPARE(m_told->size(), 2);
    QCOMPARE(tone(1), int(Message::Information));
}

void TestCheckedDownload::longCopyIsTold()
{
    writeFile(m_path, longProgram());
    QSignalSpy worked(m_download.data(), SIGNAL(worked(QString, int)));
    // A disk that takes a moment for its first piece.
    bool isFirst = true;
    SignalHook copying(m_download->snapshot(), SIGNAL(progress(int)), [&](int) {
        if (isFirst)
            QTest::qSleep(320);
        isFirst = false;
    });
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(worked.size() > 0);
    QVERIFY(worked.first().at(0).toString().startsWith("The program is made ready: "));
}

void TestCheckedDownload::questionerMayEndTheDownload()
{
    writeFile(m_path, "G01\n");
    ActingQuestioner questioner;
    bool isAsked = false;
    questioner.act = [&] {
        isAsked = true;
        m_download.reset();
        return send;
    };
    make(&questioner);
    start();
    QTRY_VERIFY(isAsked);
    QCoreApplication::processEvents();
    QCOMPARE(m_told->size(), 0);
    QCOMPARE(sent(), QStringList());
    QTRY_COMPARE(copies(), QStringList());
}

void TestCheckedDownload::listenerMayEndTheDownload()
{
    writeFile(m_path, "G01\n");
    SignalHook ended(m_download.data(), SIGNAL(ended()), [&] { m_download.reset(); });
    start();
    QTRY_VERIFY(!m_download);
    QCOMPARE(m_told->size(), 0);
}

FILARIX_TEST_MAIN(TestCheckedDownload)
#include "tst_checkeddownload.moc"
