// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/coilexport.h"
#include "shell/workprogress.h"

#include <QAtomicInt>
#include <QDir>
#include <QSemaphore>
#include <QSignalSpy>

namespace {

/// A stick's folder, and an export to it that a WorkProgress shows and stops, as a screen does.
struct Desk
{
    explicit Desk(const CoilExport::Place &place) : exporter(place, nullptr)
    {
        QObject::connect(
            &exporter, &CoilExport::worked, &works, [this](const QString &text, int percent) {
                works.report(&exporter, QString(), text, percent, [this] { exporter.stop(); });
                ++reports;
                if (reports == stopAt)
                    works.stop();
            });
        QObject::connect(&exporter, &CoilExport::told, &works, [this](const QString &text) {
            works.end(&exporter, QString());
            told.append(text);
        });
    }

    void begin()
    {
        CoilExport::Contents contents;
        contents.svg = QByteArray(100000, 's');
        contents.png = QByteArray(100000, 'p');
        contents.csv = QByteArray(100000, 'c');
        exporter.begin("coil.cnc", contents);
    }

    WorkProgress works;
    QStringList told;
    int reports = 0;
    int stopAt = 0;
    /// Last, so that what it tells finds the others.
    CoilExport exporter;
};

} // namespace

class TestWorkProgress : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void whatGoesOnIsShown();
    void theTimeLeftComesAndGoes();
    void timesAreRounded_data();
    void timesAreRounded();
    void secondWorkStandsInFrontOfTheFirst();
    void worksOfOneOwnerAreToldApart();
    void stopIsPassedOnOnce();
    void stoppedWorkMayEndAtOnce();
    void stopWithoutWorkDoesNothing();
    void stopAtEachInstantLeavesNothingHalfDone();
    void stickThatIsPulledEndsTheWork();
    void diskThatHangsTellsNoTimeAndIsGivenUp();

private:
    QStringList there() const;

    QString m_folder;
};

void TestWorkProgress::initTestCase()
{
    qRegisterMetaType<Message::Tone>("Message::Tone");
}

void TestWorkProgress::init()
{
    FilarixTest::init();
    m_folder = home() + "/stick";
    QVERIFY(QDir().mkpath(m_folder));
}

QStringList TestWorkProgress::there() const
{
    return QDir(m_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
}

void TestWorkProgress::whatGoesOnIsShown()
{
    WorkProgress works;
    QCOMPARE(works.count(), 0);
    QCOMPARE(works.text(), QString());
    QCOMPARE(works.percent(), 0);
    QCOMPARE(works.left(), QString());
    QCOMPARE(works.number(), 0);
    QSignalSpy changes(&works, SIGNAL(changed()));
    works.report(this, "copy", "coil.cnc goes to the stick", 30, [] {});
    QCOMPARE(changes.size(), 1);
    QCOMPARE(works.text(), QString("coil.cnc goes to the stick"));
    QCOMPARE(works.percent(), 30);
    const int number = works.number();
    QVERIFY(number != 0);
    works.report(this, "copy", "coil.cnc goes to the stick", 40, [] {});
    QCOMPARE(works.percent(), 40);
    QCOMPARE(works.number(), number);
    works.end(this, "another");
    QCOMPARE(works.count(), 1);
    changes.clear();
    works.end(this, "copy");
    QCOMPARE(changes.size(), 1);
    QCOMPARE(works.text(), QString());
    works.report(this, "copy", "coil2.cnc goes to the stick", WorkProgress::lengthUnknown, [] {});
    QVERIFY(works.number() != number);
    QCOMPARE(works.percent(), -1);
}

void TestWorkProgress::theTimeLeftComesAndGoes()
{
    qint64 now = 0;
    WorkProgress works([&now] { return now; });
    works.report(this, "copy", "copying", 0, [] {});
    now = 1999;
    works.report(this, "copy", "copying", 40, [] {});
    QCOMPARE(works.left(), QString());
    now = 2000;
    QCOMPARE(works.left(), QString("3 s left"));
    // Nobody reports any more, and who looks is told so by and by.
    QSignalSpy changes(&works, SIGNAL(changed()));
    now = 10000;
    QTRY_VERIFY(changes.size() >= 2);
    QCOMPARE(works.left(), QString());
    works.end(this, "copy");
    // Without a length there is no end to tell.
    works.report(this, "list", "listing", WorkProgress::lengthUnknown, [] {});
    now = 20000;
    works.report(this, "list", "listing", WorkProgress::lengthUnknown, [] {});
    QCOMPARE(works.left(), QString());
}

void TestWorkProgress::timesAreRounded_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("unknown") << -1 << "";
    QTest::newRow("at once") << 1 << "1 s left";
    QTest::newRow("soon") << 10 << "10 s left";
    QTest::newRow("coarse") << 11 << "15 s left";
    QTest::newRow("most of a minute") << 55 << "55 s left";
    QTest::newRow("nearly a minute") << 56 << "1 min left";
    QTest::newRow("more than a minute") << 61 << "2 min left";
    QTest::newRow("hours") << 7200 << "120 min left";
}

void TestWorkProgress::timesAreRounded()
{
    QFETCH(int, seconds);
    QFETCH(QString, text);
    QCOMPARE(WorkProgress::timeText(seconds), text);
}

void TestWorkProgress::secondWorkStandsInFrontOfTheFirst()
{
    WorkProgress works;
    QObject other;
    QStringList stopped;
    works.report(this, "copy", "copying", 30, [&] { stopped.append("copy"); });
    const int first = works.number();
    works.report(&other, "check", "checking", 50, [&] { stopped.append("check"); });
    QCOMPARE(works.count(), 2);
    QVERIFY(works.number() != first);
    QVERIFY2(works.text().startsWith("checking") && works.text().contains("1"),
             qPrintable(works.text()));
    // What is reported of the one behind changes nothing in front.
    works.report(this, "copy", "copying", 90, [] {});
    QCOMPARE(works.percent(), 50);
    works.stop();
    QCOMPARE(stopped, QStringList("check"));
    works.end(&other, "check");
    QCOMPARE(works.number(), first);
    QCOMPARE(works.text(), QString("copying"));
    QCOMPARE(works.percent(), 90);
    QVERIFY(!works.isStopping());
    works.stop();
    QCOMPARE(stopped, QStringList({"check", "copy"}));
    works.end(this, "copy");
    QCOMPARE(works.count(), 0);
}

void TestWorkProgress::worksOfOneOwnerAreToldApart()
{
    WorkProgress works;
    works.report(this, "copy", "copying", 30, [] {});
    works.report(this, "check", "checking", 50, [] {});
    works.end(this, "copy");
    QCOMPARE(works.count(), 1);
    QCOMPARE(works.text(), QString("checking"));
}

void TestWorkProgress::stopIsPassedOnOnce()
{
    WorkProgress works;
    int stops = 0;
    works.report(this, "copy", "copying", 30, [&stops] { ++stops; });
    works.stop();
    works.stop();
    QCOMPARE(stops, 1);
    QVERIFY(works.isStopping());
    QCOMPARE(works.text(), QString("Stopping ..."));
    // The step in hand ends first.
    works.report(this, "copy", "copying", 40, [&stops] { ++stops; });
    QVERIFY(works.isStopping());
    works.stop();
    QCOMPARE(stops, 1);
    works.end(this, "copy");
    works.report(this, "copy", "copying", 0, [&stops] { ++stops; });
    QVERIFY(!works.isStopping());
}

void TestWorkProgress::stoppedWorkMayEndAtOnce()
{
    WorkProgress works;
    works.report(this, "copy", "copying", 30, [&works, this] { works.end(this, "copy"); });
    works.stop();
    QCOMPARE(works.count(), 0);
    QVERIFY(!works.isStopping());
}

void TestWorkProgress::stopWithoutWorkDoesNothing()
{
    WorkProgress works;
    QSignalSpy changes(&works, SIGNAL(changed()));
    works.stop();
    works.end(this, "copy");
    QCOMPARE(changes.size(), 0);
}

void TestWorkProgress::stopAtEachInstantLeavesNothingHalfDone()
{
    int atEnd = 0;
    for (int stopAt = 1; atEnd == 0; ++stopAt) {
        QVERIFY2(stopAt < 20, "the work never comes to its end");
        Desk desk({m_folder, [] { return true; }});
        desk.stopAt = stopAt;
        desk.begin();
        QTRY_COMPARE(desk.told.size(), 1);
        QCOMPARE(desk.works.count(), 0);
        if (desk.reports < stopAt) {
            atEnd = stopAt;
            QCOMPARE(there(), QStringList("coil-picture"));
            QCOMPARE(QDir(m_folder + "/coil-picture").entryList(QDir::Files).size(), 3);
        } else {
            QVERIFY2(desk.told.first().contains("stopped"), qPrintable(desk.told.first()));
            QTRY_COMPARE(there(), QStringList());
        }
    }
    // Before each file, and after the last.
    QVERIFY(atEnd >= 5);
}

void TestWorkProgress::stickThatIsPulledEndsTheWork()
{
    const std::shared_ptr<QAtomicInt> looks = std::make_shared<QAtomicInt>();
    Desk desk({m_folder, [looks] { return looks->fetchAndAddOrdered(1) < 2; }});
    desk.begin();
    QTRY_COMPARE(desk.told.size(), 1);
    QVERIFY2(desk.told.first().contains("pulled out"), qPrintable(desk.told.first()));
    QVERIFY(desk.reports > 0);
    QCOMPARE(desk.works.count(), 0);
    QCOMPARE(there(), QStringList());
}

void TestWorkProgress::diskThatHangsTellsNoTimeAndIsGivenUp()
{
    // The disk answers twice.
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>(2);
    const std::shared_ptr<QAtomicInt> looks = std::make_shared<QAtomicInt>(0);
    Desk desk({m_folder, [gate, looks] {
                   looks->fetchAndAddOrdered(1);
                   gate->acquire();
                   return true;
               }});
    desk.exporter.setStallTime(patience(200));
    desk.begin();
    QTRY_COMPARE(looks->loadAcquire(), 3);
    QVERIFY(desk.reports > 0);
    QCOMPARE(desk.works.left(), QString());
    // Whoever presses Stop meanwhile sees that it was heard.
    desk.works.stop();
    QVERIFY(desk.works.isStopping());
    QTRY_COMPARE(desk.told.size(), 1);
    QVERIFY2(desk.told.first().contains("does not answer"), qPrintable(desk.told.first()));
    QCOMPARE(desk.works.count(), 0);
    gate->release(100);
}

FILARIX_TEST_MAIN(TestWorkProgress)
#include "tst_workprogress.moc"
