// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "terminationsignals.h"

#include <QSignalSpy>

#include <csignal>

class TestTerminationSignals : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void signalOfTheSystemIsPassedOn_data();
    void signalOfTheSystemIsPassedOn();
};

void TestTerminationSignals::signalOfTheSystemIsPassedOn_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("Ctrl+C") << SIGINT;
    QTest::newRow("end of the session") << SIGTERM;
    QTest::newRow("terminal closed") << SIGHUP;
}

void TestTerminationSignals::signalOfTheSystemIsPassedOn()
{
    QFETCH(int, number);
    TerminationSignals signals;
    QSignalSpy received(&signals, SIGNAL(received()));
    QCOMPARE(std::raise(number), 0);
    QCOMPARE(received.size(), 0);
    QTRY_COMPARE(received.size(), 1);
    for (int i = 0; i < 100; ++i)
        std::raise(number);
    QTRY_COMPARE(received.size(), 2);
}

FILARIX_TEST_MAIN(TestTerminationSignals)
#include "tst_terminationsignals.moc"
