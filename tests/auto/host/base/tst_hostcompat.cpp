// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/hostcompat.h"
#include "filarixtest.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QRegExp>
#include <QScopedPointer>
#include <QStringList>

class TestHostCompat : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void callsComeFromTheEventLoopInOrder();
    void callComesAfterItsTime();
    void contextThatIsGoneIsNotCalled();
    void callMayEndItsContext();
    void callMayRunAnEventLoop();
    void utcTimeIsTheMoment();
    void sleepingTakesItsTime();
    void namesAreUnique();
    void blockedSignalsAreLeftAsTheyWere();
};

void TestHostCompat::callsComeFromTheEventLoopInOrder()
{
    QStringList calls;
    HostCompat::callLater(this, [&calls] { calls.append("first"); });
    HostCompat::callLater(this, [&calls] { calls.append("second"); });
    QVERIFY(calls.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(calls, QStringList() << "first"
                                  << "second");
    // Once, and nothing of them is left.
    QTRY_VERIFY(children().isEmpty());
    QCOMPARE(calls.size(), 2);
}

void TestHostCompat::callComesAfterItsTime()
{
    bool isCalled = false;
    QElapsedTimer time;
    time.start();
    HostCompat::callAfter(50, this, [&isCalled] { isCalled = true; });
    QTRY_VERIFY(isCalled);
    // The toolkit's timers may be a twentieth early.
    QVERIFY(time.elapsed() >= 47);
    QTRY_VERIFY(children().isEmpty());
}

void TestHostCompat::contextThatIsGoneIsNotCalled()
{
    int calls = 0;
    QScopedPointer<QObject> context(new QObject);
    HostCompat::callLater(context.data(), [&calls] { ++calls; });
    HostCompat::callAfter(1, context.data(), [&calls] { ++calls; });
    context.reset();
    bool isLater = false;
    HostCompat::callAfter(20, this, [&isLater] { isLater = true; });
    QTRY_VERIFY(isLater);
    QCOMPARE(calls, 0);
}

void TestHostCompat::callMayEndItsContext()
{
    QScopedPointer<QObject> context(new QObject);
    bool isEnded = false;
    HostCompat::callLater(context.data(), [&context, &isEnded] {
        context.reset();
        isEnded = true;
    });
    QTRY_VERIFY(isEnded);
    QVERIFY(!context);
}

void TestHostCompat::callMayRunAnEventLoop()
{
    bool isInner = false;
    bool isOuter = false;
    HostCompat::callLater(this, [this, &isInner, &isOuter] {
        QEventLoop loop;
        HostCompat::callLater(this, [&loop, &isInner] {
            isInner = true;
            loop.quit();
        });
        loop.exec();
        isOuter = true;
    });
    QTRY_VERIFY(isOuter);
    QVERIFY(isInner);
}

void TestHostCompat::utcTimeIsTheMoment()
{
    const QDateTime time = HostCompat::utcTime(Q_INT64_C(1772627460123));
    QCOMPARE(time.timeSpec(), Qt::UTC);
    QCOMPARE(time.toString("yyyy-MM-dd HH:mm:ss.zzz"), QString("2026-03-04 12:31:00.123"));
}

void TestHostCompat::sleepingTakesItsTime()
{
    QElapsedTimer time;
    time.start();
    HostCompat::sleep(30);
    QVERIFY(time.elapsed() >= 29);
}

void TestHostCompat::namesAreUnique()
{
    QStringList names;
    for (int i = 0; i < 1000; ++i) {
        const QString name = HostCompat::uniqueName();
        QVERIFY2(QRegExp("[0-9a-f]{32}").exactMatch(name), qPrintable(name));
        names.append(name);
    }
    QCOMPARE(names.removeDuplicates(), 0);
}

void TestHostCompat::blockedSignalsAreLeftAsTheyWere()
{
    QObject object;
    {
        const HostCompat::SignalBlocker blocker(&object);
        QVERIFY(object.signalsBlocked());
        {
            const HostCompat::SignalBlocker again(&object);
            QVERIFY(object.signalsBlocked());
        }
        QVERIFY(object.signalsBlocked());
    }
    QVERIFY(!object.signalsBlocked());
}

FILARIX_TEST_MAIN(TestHostCompat)
#include "tst_hostcompat.moc"
