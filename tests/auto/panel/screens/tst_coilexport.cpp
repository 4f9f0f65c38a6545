// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/coilexport.h"
#include "stick/stick.h"
#include "stick/transfernames.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <atomic>

#include <sys/stat.h>

class TestCoilExport : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void allThreeAreOnTheStick();
    void aNameThatIsTakenGetsANumber();
    void whatHasTheNameStaysAsItIs();
    void namesAreSafe_data();
    void namesAreSafe();
    void withoutAStickNothingIsWritten();
    void anUnmountedStickIsNone();
    void aPulledStickIsTold_data();
    void aPulledStickIsTold();
    void aFullStickIsTold();
    void aStickThatMustNotBeWrittenIsTold();
    void aStickThatHangsIsGivenUp();
    void whatIsGivenUpChangesNothing();
    void aSecondOneWaitsForTheFirst();
    void twoPanelsCoverNothingOfOneAnother();
    void stopTakesAwayWhatThereIs();
    void nothingIsAskedOfTheStickInTheScreensThread();

private:
    CoilExport::Place place() const;
    QStringList there() const;
    QString ended(CoilExport *exporter, Message::Tone tone);

    QString m_folder;
};

namespace {

CoilExport::Contents contents(int bytes = 1000)
{
    CoilExport::Contents contents;
    contents.svg = QByteArray(bytes, 's');
    contents.png = QByteArray(bytes, 'p');
    contents.csv = QByteArray("quantity,value,unit\r\n");
    return contents;
}

} // namespace

void TestCoilExport::initTestCase()
{
    qRegisterMetaType<Message::Tone>("Message::Tone");
}

void TestCoilExport::init()
{
    FilarixTest::init();
    m_folder = home() + "/stick";
    QVERIFY(QDir().mkpath(m_folder));
}

void TestCoilExport::cleanup()
{
    emptyFolder(Stick::mountPoint());
    QFile::remove(Stick::marker());
    FilarixTest::cleanup();
}

CoilExport::Place TestCoilExport::place() const
{
    return {m_folder, [] { return true; }};
}

QStringList TestCoilExport::there() const
{
    return QDir(m_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
}

// The one word on how it ended.
QString TestCoilExport::ended(CoilExport *exporter, Message::Tone tone)
{
    QSignalSpy told(exporter, &CoilExport::told);
    for (int i = 0; i < 200 && told.isEmpty(); ++i)
        told.wait(100);
    if (told.size() != 1)
        return QString("told %1 times").arg(told.size());
    if (told.at(0).at(1).value<Message::Tone>() != tone)
        return "another tone: " + told.at(0).at(0).toString();
    return told.at(0).at(0).toString();
}

void TestCoilExport::allThreeAreOnTheStick()
{
    CoilExport exporter(place(), nullptr);
    QSignalSpy worked(&exporter, &CoilExport::worked);
    exporter.begin("stator-coil.cnc", contents());
    QVERIFY(exporter.isRunning());
    const QString text = ended(&exporter, Message::Information);
    QVERIFY2(text.contains("stator-coil-picture"), qPrintable(text));
    QVERIFY(!exporter.isRunning());
    QVERIFY(!worked.isEmpty());
    const QString folder = m_folder + "/stator-coil-picture";
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList({"stator-coil.csv", "stator-coil.png", "stator-coil.svg"}));
    QCOMPARE(readFile(folder + "/stator-coil.svg"), contents().svg);
    QCOMPARE(readFile(folder + "/stator-coil.png"), contents().png);
    QCOMPARE(readFile(folder + "/stator-coil.csv"), contents().csv);
}

void TestCoilExport::aNameThatIsTakenGetsANumber()
{
    for (int i = 0; i < 3; ++i) {
        CoilExport exporter(place(), nullptr);
        exporter.begin("coil.cnc", contents(100 + i));
        QVERIFY(ended(&exporter, Message::Information).contains("coil-picture"));
    }
    QCOMPARE(there(), QStringList({"coil-picture", "coil-picture-2", "coil-picture-3"}));
    QCOMPARE(readFile(m_folder + "/coil-picture/coil.svg").size(), 100);
    QCOMPARE(readFile(m_folder + "/coil-picture-3/coil.svg").size(), 102);
}

void TestCoilExport::whatHasTheNameStaysAsItIs()
{
    writeFile(m_folder + "/coil-picture", "a file");
    QVERIFY(QFile::link("/nowhere", m_folder + "/coil-picture-2"));
    CoilExport exporter(place(), nullptr);
    exporter.begin("coil.cnc", contents());
    QVERIFY(ended(&exporter, Message::Information).contains("coil-picture-3"));
    QCOMPARE(readFile(m_folder + "/coil-picture"), QByteArray("a file"));
    QCOMPARE(QFile::symLinkTarget(m_folder + "/coil-picture-2"), QString("/nowhere"));
}

void TestCoilExport::namesAreSafe_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("a blank") << "my coil.cnc";
    QTest::newRow("a command") << "$(reboot);.cnc";
    QTest::newRow("a way up") << "../../etc/coil.cnc";
    QTest::newRow("a program that was never saved") << "";
    QTest::newRow("in Chinese") << QString::fromUtf8("\xe7\xba\xbf\xe5\x9c\x88.cnc");
    QTest::newRow("a dot") << ".cnc";
}

void TestCoilExport::namesAreSafe()
{
    QFETCH(QString, program);
    CoilExport exporter(place(), nullptr);
    exporter.begin(program, contents());
    ended(&exporter, Message::Information);
    QCOMPARE(there().size(), 1);
    QVERIFY2(TransferNames::isSafe(there().first()), qPrintable(there().first()));
    const QStringList files = QDir(m_folder + '/' + there().first()).entryList(QDir::Files);
    QCOMPARE(files.size(), 3);
    for (const QString &file : files)
        QVERIFY2(TransferNames::isSafe(file), qPrintable(file));
}

void TestCoilExport::withoutAStickNothingIsWritten()
{
    CoilExport exporter({m_folder, [] { return false; }}, nullptr);
    exporter.begin("coil.cnc", contents());
    QVERIFY(ended(&exporter, Message::Warning).contains("no stick"));
    QCOMPARE(there(), QStringList());
}

// The mount point is still a folder, of the panel's own.
void TestCoilExport::anUnmountedStickIsNone()
{
    QVERIFY(QFileInfo(Stick::mountPoint()).isDir());
    CoilExport exporter;
    exporter.begin("coil.cnc", contents());
    QVERIFY(ended(&exporter, Message::Warning).contains("no stick"));
    QCOMPARE(QDir(Stick::mountPoint()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList());
}

void TestCoilExport::aPulledStickIsTold_data()
{
    QTest::addColumn<int>("looks");
    QTest::newRow("behind the folder") << 1;
    QTest::newRow("behind the first file") << 2;
    QTest::newRow("behind the last file") << 4;
}

void TestCoilExport::aPulledStickIsTold()
{
    QFETCH(int, looks);
    const std::shared_ptr<std::atomic<int>> left = std::make_shared<std::atomic<int>>(looks);
    CoilExport exporter({m_folder, [left] { return (*left)-- > 0; }}, nullptr);
    exporter.begin("coil.cnc", contents());
    const QString text = ended(&exporter, Message::Alarm);
    QVERIFY2(text.contains("pulled out"), qPrintable(text));
    // What went to whatever is there now is taken away again.
    QCOMPARE(there(), QStringList());
}

void TestCoilExport::aFullStickIsTold()
{
    m_folder = Stick::mountPoint();
    CoilExport exporter(place(), nullptr);
    exporter.begin("coil.cnc", contents(200 * 1024));
    const QString text = ended(&exporter, Message::Alarm);
    QVERIFY2(text.contains("No space left"), qPrintable(text));
    QCOMPARE(there(), QStringList());
    // With room it works, by the same key.
    exporter.begin("coil.cnc", contents());
    QVERIFY(ended(&exporter, Message::Information).contains("coil-picture"));
}

void TestCoilExport::aStickThatMustNotBeWrittenIsTold()
{
    QCOMPARE(::chmod(QFile::encodeName(m_folder).constData(), 0500), 0);
    CoilExport exporter(place(), nullptr);
    exporter.begin("coil.cnc", contents());
    const QString text = ended(&exporter, Message::Alarm);
    QCOMPARE(::chmod(QFile::encodeName(m_folder).constData(), 0700), 0);
    QVERIFY2(text.contains("Permission denied"), qPrintable(text));
    QCOMPARE(there(), QStringList());
}

void TestCoilExport::aStickThatHangsIsGivenUp()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    CoilExport exporter({m_folder,
                         [gate] {
                             gate->acquire();
                             return true;
                         }},
                        nullptr);
    exporter.setStallTime(50);
    exporter.begin("coil.cnc", contents());
    const QString text = ended(&exporter, Message::Alarm);
    gate->release(100);
    QVERIFY2(text.contains("does not answer"), qPrintable(text));
    QVERIFY(!exporter.isRunning());
}

void TestCoilExport::whatIsGivenUpChangesNothing()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    const std::shared_ptr<QSemaphore> passed = std::make_shared<QSemaphore>();
    {
        CoilExport exporter({m_folder,
                             [gate, passed] {
                                 gate->acquire();
                                 passed->release();
                                 return true;
                             }},
                            nullptr);
        exporter.setStallTime(50);
        exporter.begin("coil.cnc", contents());
        QVERIFY(ended(&exporter, Message::Alarm).contains("does not answer"));
        gate->release(100);
        QVERIFY(passed->tryAcquire(1, patience(5000)));
        // The next one begins in a thread of its own, and ends behind the one that hung.
        exporter.begin("coil.cnc", contents());
        QVERIFY(ended(&exporter, Message::Information).contains("coil-picture"));
    }
    QCOMPARE(there(), QStringList("coil-picture"));
}

void TestCoilExport::aSecondOneWaitsForTheFirst()
{
    CoilExport exporter(place(), nullptr);
    exporter.begin("one.cnc", contents());
    exporter.begin("two.cnc", contents());
    ended(&exporter, Message::Information);
    QCOMPARE(there(), QStringList("one-picture"));
}

void TestCoilExport::twoPanelsCoverNothingOfOneAnother()
{
    CoilExport one(place(), nullptr);
    CoilExport other(place(), nullptr);
    QSignalSpy told(&one, &CoilExport::told);
    QSignalSpy otherTold(&other, &CoilExport::told);
    one.begin("coil.cnc", contents(111));
    other.begin("coil.cnc", contents(222));
    QTRY_COMPARE(told.size() + otherTold.size(), 2);
    QCOMPARE(there(), QStringList({"coil-picture", "coil-picture-2"}));
    const int sizes = readFile(m_folder + "/coil-picture/coil.svg").size()
                      + readFile(m_folder + "/coil-picture-2/coil.svg").size();
    QCOMPARE(sizes, 333);
}

void TestCoilExport::stopTakesAwayWhatThereIs()
{
    CoilExport exporter(place(), nullptr);
    // The first word of progress: by then there is a folder.
    connect(&exporter, &CoilExport::worked, &exporter, &CoilExport::stop);
    exporter.begin("coil.cnc", contents());
    QVERIFY(ended(&exporter, Message::Warning).contains("stopped"));
    QTRY_COMPARE(there(), QStringList());
}

void TestCoilExport::nothingIsAskedOfTheStickInTheScreensThread()
{
    const std::shared_ptr<std::atomic<bool>> isHere = std::make_shared<std::atomic<bool>>(false);
    CoilExport exporter({m_folder,
                         [isHere] {
                             if (QThread::currentThread() == qApp->thread())
                                 *isHere = true;
                             return true;
                         }},
                        nullptr);
    exporter.begin("coil.cnc", contents());
    ended(&exporter, Message::Information);
    QVERIFY(!*isHere);
}

FILARIX_TEST_MAIN(TestCoilExport)
#include "tst_coilexport.moc"
