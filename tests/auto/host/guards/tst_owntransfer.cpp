// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/owntransfer.h"
#include "guards/windowprogram.h"
#include "programwindow.h"

#include <QDir>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <memory>

/// A host whose machine takes no files.
class TestOwnTransfer : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void programIsSentAsItIsStored();
    void keyIsOffUntilTheEnd();
    void refusalIsTold();
    void programWithoutAFileIsNotSent();
    void copyIsGoneAfterwards();
    void nobodyWaitsForAMachineThatHangs();
    void windowMayGoMeanwhile();
};

namespace {

/// What a machine got, shared with the thread that sends.
struct Machine
{
    QString refusal;
    QByteArray taken;
    qint64 lines = 0;
    bool wasInThread = false;
    QSemaphore begun;
    QSemaphore mayEnd;
};

typedef std::shared_ptr<Machine> MachinePointer;

OwnTransfer::Send sendTo(const MachinePointer &machine)
{
    return [machine](const QString &copy, const ProgramFacts &facts) {
        machine->wasInThread = QThread::currentThread() != QCoreApplication::instance()->thread();
        machine->taken = FilarixTest::readFile(copy);
        machine->lines = facts.lines;
        machine->begun.release();
        machine->mayEnd.acquire();
        return machine->refusal;
    };
}

/// A window with the program, and its way to the machine.
class Desk
{
public:
    explicit Desk(const MachinePointer &machine)
        : transfer(window.window(), FilarixTest::home() + "/outgoing", sendTo(machine))
        , told(&transfer, SIGNAL(told(QString, Message::Tone, QString)))
    {}

    void open(const QByteArray &program)
    {
        const QString path = FilarixTest::programDir() + "/coil.cnc";
        FilarixTest::writeFile(path, program);
        QVERIFY(WindowProgram::openProgram(window.window(), path));
    }
    QString text(int number) const { return told.at(number).at(0).toString(); }
    Message::Tone tone(int number) const { return told.at(number).at(1).value<Message::Tone>(); }

    ProgramWindow window;
    OwnTransfer transfer;
    QSignalSpy told;
};

} // namespace

void TestOwnTransfer::init()
{
    FilarixTest::init();
    // The older toolkit's spies keep what they know by name.
    qRegisterMetaType<Message::Tone>("Message::Tone");
}

void TestOwnTransfer::programIsSentAsItIsStored()
{
    const MachinePointer machine = std::make_shared<Machine>();
    const QByteArray program = "; layer\n" + QByteArray("G01 X1\n").repeated(600);
    Desk desk(machine);
    desk.open(program);
    machine->mayEnd.release();
    desk.window.press("D/L");
    QTRY_COMPARE(desk.told.size(), 1);
    QCOMPARE(machine->taken, program);
    QCOMPARE(machine->lines, qint64(602));
    QVERIFY(machine->wasInThread);
    QCOMPARE(desk.text(0), QString("coil.cnc is in the machine."));
    QCOMPARE(int(desk.tone(0)), int(Message::Information));
}

void TestOwnTransfer::keyIsOffUntilTheEnd()
{
    const MachinePointer machine = std::make_shared<Machine>();
    Desk desk(machine);
    desk.open("M2\n");
    desk.window.press("D/L");
    QTRY_COMPARE(machine->begun.available(), 1);
    QVERIFY(desk.transfer.isRunning());
    QVERIFY(desk.window.window()->isDownloading());
    const QString path = programDir() + "/coil.cnc";
    QVERIFY(
        QMetaObject::invokeMethod(desk.window.window(), "signal_download", Q_ARG(QString, path)));
    machine->mayEnd.release();
    QTRY_COMPARE(desk.told.size(), 1);
    QVERIFY(!desk.transfer.isRunning());
    QVERIFY(!desk.window.window()->isDownloading());
    QCOMPARE(machine->begun.available(), 1);
}

void TestOwnTransfer::refusalIsTold()
{
    const MachinePointer machine = std::make_shared<Machine>();
    machine->refusal = "The machine is winding.";
    Desk desk(machine);
    desk.open("M2\n");
    machine->mayEnd.release();
    desk.window.press("D/L");
    QTRY_COMPARE(desk.told.size(), 1);
    QCOMPARE(desk.text(0), machine->refusal);
    QCOMPARE(int(desk.tone(0)), int(Message::Warning));
    QVERIFY(!desk.window.window()->isDownloading());
}

void TestOwnTransfer::programWithoutAFileIsNotSent()
{
    const MachinePointer machine = std::make_shared<Machine>();
    Desk desk(machine);
    desk.window.press("D/L");
    QTRY_COMPARE(desk.told.size(), 1);
    QVERIFY(!desk.text(0).isEmpty());
    QCOMPARE(machine->begun.available(), 0);
    QVERIFY(!desk.window.window()->isDownloading());
}

void TestOwnTransfer::copyIsGoneAfterwards()
{
    const MachinePointer machine = std::make_shared<Machine>();
    Desk desk(machine);
    desk.open("M2\n");
    desk.window.press("D/L");
    QTRY_COMPARE(machine->begun.available(), 1);
    const QDir copies(home() + "/outgoing");
    QVERIFY(!copies.entryList(QDir::Files | QDir::Hidden).isEmpty());
    machine->mayEnd.release();
    QTRY_COMPARE(desk.told.size(), 1);
    QTRY_VERIFY(copies.entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void TestOwnTransfer::nobodyWaitsForAMachineThatHangs()
{
    const MachinePointer machine = std::make_shared<Machine>();
    Desk desk(machine);
    desk.open("M2\n");
    desk.window.press("D/L");
    QTRY_COMPARE(machine->begun.available(), 1);
    desk.transfer.setStallTime(1);
    QTRY_COMPARE(desk.told.size(), 1);
    QVERIFY(desk.text(0).contains("coil.cnc"));
    QCOMPARE(int(desk.tone(0)), int(Message::Alarm));
    QVERIFY(!desk.window.window()->isDownloading());
    // Two at a time would mix two programs in the machine.
    desk.window.press("D/L");
    QCOMPARE(desk.told.size(), 2);
    QCOMPARE(machine->begun.available(), 1);
    desk.transfer.setStallTime(OwnTransfer::longestMs);
    machine->mayEnd.release(2);
    const auto isSentAnew = [&] {
        desk.window.press("D/L");
        return desk.transfer.isRunning();
    };
    QTRY_VERIFY(isSentAnew());
    QTRY_VERIFY(!desk.transfer.isRunning());
    QCOMPARE(machine->begun.available(), 2);
    QCOMPARE(int(desk.tone(desk.told.size() - 1)), int(Message::Information));
}

void TestOwnTransfer::windowMayGoMeanwhile()
{
    const MachinePointer machine = std::make_shared<Machine>();
    Desk desk(machine);
    desk.open("M2\n");
    desk.window.press("D/L");
    QTRY_COMPARE(machine->begun.available(), 1);
    delete desk.window.window();
    machine->mayEnd.release();
    QTRY_COMPARE(desk.told.size(), 1);
}

FILARIX_TEST_MAIN(TestOwnTransfer)
#include "tst_owntransfer.moc"
