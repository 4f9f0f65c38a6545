// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "stick/transferreport.h"

#include <QDir>

class TestTransferReport : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void copyIsCompared_data();
    void copyIsCompared();
    void deletionIsSeen_data();
    void deletionIsSeen();
    void onlyPanelsProgramsNeedTheHistory();

private:
    QString m_programs;
    QString m_stick;
};

void TestTransferReport::init()
{
    FilarixTest::init();
    m_programs = programDir();
    m_stick = home() + "/stick";
    QDir().mkpath(m_stick);
}

void TestTransferReport::copyIsCompared_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<TransferReport::Outcome>("outcome");
    const QByteArray program(600 * 1024, 'G');
    QByteArray other = program;
    other[other.size() - 1] = 'X';
    QTest::newRow("new") << QByteArray() << program << TransferReport::Copied;
    QTest::newRow("over another") << QByteArray("G02") << program << TransferReport::Copied;
    QTest::newRow("cut off") << QByteArray() << program.left(8192) << TransferReport::Different;
    QTest::newRow("one byte") << QByteArray() << other << TransferReport::Different;
    QTest::newRow("empty") << QByteArray("G02") << QByteArray("") << TransferReport::Different;
    QTest::newRow("none") << QByteArray() << QByteArray() << TransferReport::NotCopied;
    QTest::newRow("lost") << QByteArray("G02") << QByteArray() << TransferReport::Lost;
}

Q_DECLARE_METATYPE(TransferReport::Outcome)

void TestTransferReport::copyIsCompared()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(TransferReport::Outcome, outcome);
    const QByteArray program(600 * 1024, 'G');
    for (bool isToStick : {true, false}) {
        const QString source = (isToStick ? m_programs : m_stick) + "/coil.cnc";
        const QString target = (isToStick ? m_stick : m_programs) + "/coil.cnc";
        writeFile(source, program);
        QFile::remove(target);
        if (!before.isNull())
            writeFile(target, before);
        TransferReport report(isToStick ? TransferReport::CopyToStick : TransferReport::CopyToPanel,
                              m_programs, m_stick, "coil.cnc");
        report.lookBefore();
        if (!before.isNull())
            QCOMPARE(report.judge(), TransferReport::Nothing);
        QFile::remove(target);
        if (!after.isNull())
            writeFile(target, after);
        QCOMPARE(report.judge(), outcome);
        QFile::remove(source);
    }
}

void TestTransferReport::deletionIsSeen_data()
{
    QTest::addColumn<int>("command");
    QTest::newRow("panel") << int(TransferReport::DeleteFromPanel);
    QTest::newRow("stick") << int(TransferReport::DeleteFromStick);
}

void TestTransferReport::deletionIsSeen()
{
    QFETCH(int, command);
    const QString folder = command == TransferReport::DeleteFromPanel ? m_programs : m_stick;
    TransferReport report(TransferReport::Command(command), m_programs, m_stick, "coil.cnc");
    report.lookBefore();
    QCOMPARE(report.judge(), TransferReport::Nothing);
    writeFile(folder + "/coil.cnc", "G01");
    report.lookBefore();
    QCOMPARE(report.judge(), TransferReport::Nothing);
    QVERIFY(QFile::remove(folder + "/coil.cnc"));
    QCOMPARE(report.judge(), TransferReport::Deleted);
}

void TestTransferReport::onlyPanelsProgramsNeedTheHistory()
{
    const auto made = [this](TransferReport::Command command) {
        return TransferReport(command, m_programs, m_stick, "coil.cnc");
    };
    QVERIFY(made(TransferReport::CopyToPanel).changesPrograms());
    QVERIFY(made(TransferReport::DeleteFromPanel).changesPrograms());
    QVERIFY(!made(TransferReport::CopyToStick).changesPrograms());
    QVERIFY(!made(TransferReport::DeleteFromStick).changesPrograms());
    QVERIFY(!made(TransferReport::DeleteFromPanel).needsStick());
    QVERIFY(made(TransferReport::CopyToPanel).needsStick());
}

FILARIX_TEST_MAIN(TestTransferReport)
#include "tst_transferreport.moc"
