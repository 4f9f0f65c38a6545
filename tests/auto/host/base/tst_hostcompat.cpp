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
    void textIsReadFromWholeUtf8Alone_data();
    void textIsReadFromWholeUtf8Alone();
    void halvesOfACharacterAreFound_data();
    void halvesOfACharacterAreFound();
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

void TestHostCompat::textIsReadFromWholeUtf8Alone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isText");
    QTest::newRow("nothing") << QByteArray() << true;
    QTest::newRow("letters") << QByteArray("G01\n") << true;
    QTest::newRow("wide") << QByteArray("\xf0\x9f\x98\x80") << true;
    QTest::newRow("Latin-1") << QByteArray("sp\xfcle") << false;
    QTest::newRow("null") << QByteArray("a\0b", 3) << false;
    QTest::newRow("cut off") << QByteArray("sp\xc3") << false;
    QTest::newRow("cut off, wide") << QByteArray("a\xf0\x9f\x98") << false;
    QTest::newRow("too long for its character") << QByteArray("\xc0\xaf") << false;
    QTest::newRow("half a character") << QByteArray("\xed\xa0\x80") << false;
}

void TestHostCompat::textIsReadFromWholeUtf8Alone()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isText);
    QString text("before");
    QCOMPARE(HostCompat::fromUtf8(bytes, &text), isText);
    QCOMPARE(text, isText ? QString::fromUtf8(bytes) : QString());
}

void TestHostCompat::halvesOfACharacterAreFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isWellFormed");
    const QString high(QChar(0xd83d));
    const QString low(QChar(0xde00));
    QTest::newRow("nothing") << QString() << true;
    QTest::newRow("letters") << QString("ab") << true;
    QTest::newRow("both") << "a" + high + low + "b" << true;
    QTest::newRow("two of both") << high + low + high + low << true;
    QTest::newRow("the first") << high << false;
    QTest::newRow("the second") << low << false;
    QTest::newRow("the wrong way round") << low + high << false;
    QTest::newRow("the first twice") << high + high + low << false;
}

void TestHostCompat::halvesOfACharacterAreFound()
{
    QFETCH(QString, text);
    QFETCH(bool, isWellFormed);
    QCOMPARE(HostCompat::isWellFormed(text), isWellFormed);
}

FILARIX_TEST_MAIN(TestHostCompat)
#include "tst_hostcompat.moc"
