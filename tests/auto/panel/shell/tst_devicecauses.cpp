// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "shell/devicecauses.h"

#include <memory>

class TestDeviceCauses : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void plcThatAnswersAgainEndsItsCause();
    void plcThatAnswersAllTheTimeEndsNothing();
    void plcThatWasNotKnownAnswersAgain();
    void stickThatComesOrGoesEndsItsCause();
    void storageWithMoreRoomEndsItsCause();
    void whatIsNotKnownEndsNothing();

private:
    void take(bool plc, bool stick, qint64 freeBytes);
    QStringList ended();

    std::unique_ptr<DeviceCauses> m_causes;
    QStringList m_ended;
};

static const qint64 megabyte = 1024 * 1024;

void TestDeviceCauses::init()
{
    m_causes.reset(new DeviceCauses);
    connect(m_causes.get(), &DeviceCauses::ended, this,
            [this](const QString &cause) { m_ended.append(cause); });
    take(true, false, 100 * megabyte);
    m_ended.clear();
}

void TestDeviceCauses::take(bool plc, bool stick, qint64 freeBytes)
{
    DeviceState state;
    state.isKnown = true;
    state.plcReachable = plc;
    state.stickIn = stick;
    state.freeBytes = freeBytes;
    m_causes->take(state);
}

QStringList TestDeviceCauses::ended()
{
    const QStringList ended = m_ended;
    m_ended.clear();
    return ended;
}

void TestDeviceCauses::plcThatAnswersAgainEndsItsCause()
{
    take(false, false, 100 * megabyte);
    QCOMPARE(ended(), QStringList());
    take(true, false, 100 * megabyte);
    QCOMPARE(ended(), QStringList("plc"));
}

// A download may have failed although the PLC is there: its disk may be full.
void TestDeviceCauses::plcThatAnswersAllTheTimeEndsNothing()
{
    take(true, false, 99 * megabyte);
    QCOMPARE(ended(), QStringList());
}

void TestDeviceCauses::plcThatWasNotKnownAnswersAgain()
{
    m_causes->take(DeviceState());
    QCOMPARE(ended(), QStringList());
    take(true, false, 100 * megabyte);
    QCOMPARE(ended(), QStringList("plc"));
}

void TestDeviceCauses::stickThatComesOrGoesEndsItsCause()
{
    take(true, true, 100 * megabyte);
    QCOMPARE(ended(), QStringList("stick"));
    take(true, true, 99 * megabyte);
    QCOMPARE(ended(), QStringList());
    take(true, false, 99 * megabyte);
    QCOMPARE(ended(), QStringList("stick"));
}

void TestDeviceCauses::storageWithMoreRoomEndsItsCause()
{
    take(true, false, 10 * megabyte);
    take(true, false, 0);
    QCOMPARE(ended(), QStringList());
    take(true, false, 10 * megabyte);
    QCOMPARE(ended(), QStringList("storage"));
    take(true, false, 11 * megabyte);
    QCOMPARE(ended(), QStringList());
    take(true, false, 100 * megabyte);
    QCOMPARE(ended(), QStringList("storage"));
}

void TestDeviceCauses::whatIsNotKnownEndsNothing()
{
    take(true, true, 0);
    ended();
    take(true, true, -1);
    QCOMPARE(ended(), QStringList());
    m_causes->take(DeviceState());
    QCOMPARE(ended(), QStringList());
    take(true, true, 0);
    QCOMPARE(ended(), QStringList("plc"));
}

FILARIX_TEST_MAIN(TestDeviceCauses)
#include "tst_devicecauses.moc"
