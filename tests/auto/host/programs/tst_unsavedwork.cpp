// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds UnsavedRows, too.

#include "devicelog.h"
#include "filarixtest.h"
#include "modaldriver.h"
#include "programs/programopener.h"
#include "programs/unsavedstore.h"
#include "programs/unsavedwork.h"
#include "programwindow.h"
#include "somerows.h"
#include "storage/filestamp.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTextDocument>
#include <QTimer>

#include <csignal>
#include <ctime>

#include <sys/resource.h>

class TestUnsavedWork : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyKindOfEditIsKept_data();
    void everyKindOfEditIsKept();
    void editsOverAndOverAreKept();
    void cleanProgramLeavesNothing();
    void longProgramThatIsOpenedLeavesNothing();
    void savedProgramIsDropped();
    void programThatIsNotSurelyStoredStays();
    void undoneProgramIsDropped();
    void newProgramAfterDiscardIsDropped();
    void idlePanelWritesNothing();
    void typingWritesLittle();
    void changeIsOnTheDiskInTime();
    void longProgramHoldsNobodyUp();
    void rowsAreKept();
    void fullDiskIsToldOnceAndOvercome();
    void flushKeepsWhatWasJustTyped();
    void givenUpWorkLeavesNothing();

private:
    void open(const QByteArray &bytes);
    KeptWork kept(const QString &subject = QString("program")) const;
    bool isKept() const;
    QStringList sessions() const;
    QString text() const { return m_program->text(); }
    void type(const QString &text);
    void replaceAll(const QString &from, const QString &to);

    QString m_folder;
    QScopedPointer<ProgramWindow> m_program;
    WMMainWindow *m_window = nullptr;
    WGCodeEditer *m_editor = nullptr;
    UnsavedWork *m_work = nullptr;
    bool m_mayDrop = true;
};

// Most tests need not wait for as long as an operator's typing goes on.
static const int soon = 20;

void TestUnsavedWork::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_folder = home() + "/hmi/unsaved";
    m_mayDrop = true;
    m_program.reset(new ProgramWindow);
    m_window = m_program->window();
    m_editor = m_program->editor();
    m_work = new UnsavedWork(m_folder);
    m_work->watchProgram(
        m_editor->document(),
        [this] {
            KeptHead head;
            head.path = m_window->getCurrentFile();
            head.cursor = m_editor->textCursor().position();
            return head;
        },
        [this] { return m_mayDrop; });
    m_work->setDelay(soon);
}

void TestUnsavedWork::cleanup()
{
    delete m_work;
    m_program.reset();
    FilarixTest::cleanup();
}

// As the window does when the operator opens it.
void TestUnsavedWork::open(const QByteArray &bytes)
{
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, bytes);
    QVERIFY(ProgramOpener(m_window).open(path));
    QCOMPARE(m_window->getCurrentFile(), path);
    QTRY_VERIFY(m_work->isSettled());
}

QStringList TestUnsavedWork::sessions() const
{
    return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

// The session is held by the work, and so is read from a copy.
KeptWork TestUnsavedWork::kept(const QString &subject) const
{
    KeptWork work;
    const QStringList names = sessions();
    const UnsavedSession::Pointer copy = UnsavedSession::make(home() + "/copy");
    if (names.size() != 1 || !copy)
        return work;
    const QDir session(QDir(m_folder).filePath(names.first()));
    const QStringList files = session.entryList(QDir::Files);
    for (const QString &file : files)
        QFile::copy(session.filePath(file), copy->filePath(file));
    UnsavedStore::read(*copy, subject, &work);
    copy->remove();
    return work;
}

bool TestUnsavedWork::isKept() const
{
    return kept().text == text() && !kept().subject.isEmpty();
}

void TestUnsavedWork::type(const QString &text)
{
    for (const QChar &c : text)
        m_editor->insertPlainText(QString(c));
}

void TestUnsavedWork::replaceAll(const QString &from, const QString &to)
{
    QTextCursor cursor(m_editor->document());
    cursor.beginEditBlock();
    for (QTextCursor found = m_editor->document()->find(from); !found.isNull();
         found = m_editor->document()->find(from, found))
        found.insertText(to);
    cursor.endEditBlock();
}

void TestUnsavedWork::everyKindOfEditIsKept_data()
{
    QTest::addColumn<QString>("edit");
    for (const char *edit :
         {"type", "type at the end", "delete line", "insert line", "insert before", "tag", "edit",
          "paste", "undo", "undo all but one", "redo", "replace", "replace all",
          "select all, delete", "select all, type", "last character", "join lines",
          "wide characters", "line separator"})
        QTest::newRow(edit) << QString(edit);
}

void TestUnsavedWork::everyKindOfEditIsKept()
{
    QFETCH(QString, edit);
    open("G01 X1\nG01 X2\nG01 X3\nG01 X4\n");
    // The first change makes the copy, those that follow the journal.
    for (int round = 0; round < 3; ++round) {
        if (edit == "type") {
            type("G04\nF1");
        } else if (edit == "type at the end") {
            m_editor->moveCursor(QTextCursor::End);
            type("\nM30");
        } else if (edit == "delete line") {
            QMetaObject::invokeMethod(m_window, "deleteRow");
        } else if (edit == "insert line") {
            QMetaObject::invokeMethod(m_window, "insertRow");
        } else if (edit == "insert before") {
            QMetaObject::invokeMethod(m_window, "insertBefore");
        } else if (edit == "tag") {
            m_window->insertLine("G01 X7");
        } else if (edit == "edit") {
            m_window->updateGcode("G02 X" + QString::number(round));
        } else if (edit == "paste") {
            m_editor->copiedText = QString("G05\n").repeated(10);
            m_editor->paste();
        } else if (edit == "undo" || edit == "redo" || edit == "undo all but one") {
            m_window->insertLine("G01 X8");
            m_window->insertLine("G01 X9");
            m_window->insertLine("G01 X10");
            QTRY_VERIFY(isKept());
            m_editor->undo();
            if (edit == "undo all but one")
                m_editor->undo();
            if (edit == "redo") {
                QTRY_VERIFY(isKept());
                m_editor->redo();
            }
        } else if (edit == "replace") {
            m_editor->moveCursor(QTextCursor::Start);
            if (m_editor->find("X"))
                m_editor->insertPlainText("longer ");
        } else if (edit == "replace all") {
            replaceAll(round % 2 ? "G22" : "G01", round % 2 ? "G01" : "G22");
        } else if (edit == "select all, delete") {
            m_editor->selectAll();
            m_editor->textCursor().removeSelectedText();
            type(QString::number(round));
        } else if (edit == "select all, type") {
            m_editor->selectAll();
            type("G0" + QString::number(round));
        } else if (edit == "last character") {
            m_editor->moveCursor(QTextCursor::End);
            m_editor->textCursor().deletePreviousChar();
        } else if (edit == "join lines") {
            m_editor->moveCursor(QTextCursor::Start);
            m_editor->moveCursor(QTextCursor::EndOfLine);
            m_editor->textCursor().deleteChar();
        } else if (edit == "wide characters") {
            type(QString::fromUtf8("\xf0\x9f\x98\x80\u4e2d"));
        } else {
            m_editor->insertPlainText(QString("a") + QChar(0x2028) + "b" + QChar(0xa0));
        }
        QVERIFY(m_editor->document()->isModified());
        QTRY_VERIFY(isKept());
        QCOMPARE(kept().head.path, m_window->getCurrentFile());
        QCOMPARE(kept().head.cursor, m_editor->textCursor().position());
    }
}

// In any rhythm, also while something is written.
void TestUnsavedWork::editsOverAndOverAreKept()
{
    open(QByteArray("G01 X1 Y2\n").repeated(400));
    unsigned seed = 3;
    const auto next = [&seed](int below) {
        seed = seed * 1103515245u + 12345u;
        return int((seed >> 8) % unsigned(below));
    };
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < (isLongRun() ? 4000 : 1500)) {
        switch (next(6)) {
        case 0:
            m_editor->undo();
            break;
        case 1:
            m_editor->redo();
            break;
        case 2:
            m_editor->deleteLine();
            break;
        default:
            QTextCursor cursor(m_editor->document());
            cursor.setPosition(next(m_editor->document()->characterCount()));
            m_editor->setTextCursor(cursor);
            type(QString("G%1\n").arg(next(100)));
        }
        QTest::qWait(next(30));
    }
    if (!m_editor->document()->isModified())
        type("x");
    QTRY_VERIFY(isKept());
}

void TestUnsavedWork::cleanProgramLeavesNothing()
{
    open("G01 X1\n");
    QVERIFY(!QFileInfo(m_folder).exists());
}

void TestUnsavedWork::longProgramThatIsOpenedLeavesNothing()
{
    open(QByteArray("G01 X1 Y2\n").repeated(scaled(isLongRun() ? 300000 : 60000, 20000)));
    QVERIFY(!m_editor->document()->isModified());
    QVERIFY(!QFileInfo(m_folder).exists());
    // And its first change is kept.
    type("x");
    QTRY_VERIFY_WITH_TIMEOUT(isKept(), patience(5000));
}

void TestUnsavedWork::savedProgramIsDropped()
{
    open("G01 X1\n");
    for (int i = 0; i < 2; ++i) {
        type("x");
        QTRY_VERIFY(isKept());
        QMetaObject::invokeMethod(m_window, "save");
        QTRY_VERIFY(sessions().isEmpty());
    }
    QTRY_VERIFY(m_work->isSettled());
}

void TestUnsavedWork::programThatIsNotSurelyStoredStays()
{
    open("G01 X1\n");
    type("x");
    QTRY_VERIFY(isKept());
    m_mayDrop = false;
    QMetaObject::invokeMethod(m_window, "save");
    QVERIFY(!m_editor->document()->isModified());
    QTest::qWait(20 * soon);
    QVERIFY(isKept());
    m_mayDrop = true;
    QTRY_VERIFY(sessions().isEmpty());
}

void TestUnsavedWork::undoneProgramIsDropped()
{
    open("G01 X1\n");
    m_editor->insertPlainText("x");
    QTRY_VERIFY(isKept());
    m_editor->undo();
    QVERIFY(!m_editor->document()->isModified());
    QTRY_VERIFY(sessions().isEmpty());
    m_editor->redo();
    QTRY_VERIFY(isKept());
}

void TestUnsavedWork::newProgramAfterDiscardIsDropped()
{
    open("G01 X1\n");
    type("x");
    QTRY_VERIFY(isKept());
    ModalDriver driver;
    driver.press(QMessageBox::Discard);
    QMetaObject::invokeMethod(m_window, "newFile");
    QVERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(sessions().isEmpty());
    type("G02");
    QTRY_VERIFY(isKept());
    QVERIFY(kept().head.path.isEmpty());
}

static qint64 bytesOfThisProcess()
{
    QFile file("/proc/self/io");
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("wchar:"))
            return line.mid(7).toLongLong();
    }
    return -1;
}

// Event descriptors of threads are written to as well, a few bytes each.
void TestUnsavedWork::idlePanelWritesNothing()
{
    SomeRows list;
    list.show({"one", "two"});
    m_work->watchRows("teach", &list);
    open("G01 X1\n");
    type("x");
    QTRY_VERIFY(isKept());
    QTRY_VERIFY(!kept("teach").subject.isEmpty());
    QTRY_VERIFY(m_work->isSettled());
    const qint64 before = bytesOfThisProcess();
    QVERIFY(before > 0);
    // Long enough for the rows to be looked at fifty times.
    QTest::qWait(50 * soon);
    const qint64 written = bytesOfThisProcess() - before;
    QVERIFY2(written < 1000, qPrintable(QString::number(written)));
}

// A letter every 20 ms, in a program that is twenty times as long as what may be written.
void TestUnsavedWork::typingWritesLittle()
{
    m_work->setDelay(UnsavedWork::delayMs);
    open(QByteArray("G01 X1 Y2\n").repeated(scaled(20000, 2000)));
    type("x");
    QTRY_VERIFY(isKept());
    QTRY_VERIFY(m_work->isSettled());
    // Not what the program writes as a whole: Qt 4 draws through a socket.
    const QString session = m_folder + '/' + sessions().first();
    const FileStamp whole = FileStamp::of(session + "/program.kept");
    const qint64 before = QFileInfo(session + "/program.changes").size();
    QVERIFY(whole.isValid());
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < 2000) {
        type("G");
        QTest::qWait(20);
    }
    QTRY_VERIFY(m_work->isSettled());
    const qint64 written = QFileInfo(session + "/program.changes").size() - before;
    qDebug("%lld bytes in a minute of typing", static_cast<long long>(written * 30));
    QVERIFY2(written > 0 && written < 10000, qPrintable(QString::number(written)));
    QVERIFY(FileStamp::of(session + "/program.kept") == whole);
    QVERIFY(isKept());
}

void TestUnsavedWork::changeIsOnTheDiskInTime()
{
    m_work->setDelay(UnsavedWork::delayMs);
    open("G01 X1\n");
    qint64 longest = 0;
    for (int i = 0; i < 2; ++i) {
        QElapsedTimer time;
        time.start();
        type(QString::number(i));
        while (!isKept() && time.elapsed() < patience(10000))
            QTest::qWait(5);
        longest = qMax(longest, time.elapsed());
    }
    qDebug("on the disk after %lld ms", static_cast<long long>(longest));
    QVERIFY(longest < patience(2000));
}

static double threadMs()
{
    struct timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
}

// By the processor's clock: what other programs do is no fault of this one's.
void TestUnsavedWork::longProgramHoldsNobodyUp()
{
    const int lines = scaled(isLongRun() ? 1000000 : 200000, 20000);
    m_editor->setPlainText(QString("G01 X1.000 Y2.000 F120\n").repeated(lines));
    QTRY_VERIFY_WITH_TIMEOUT(m_work->isSettled(), patience(10000));
    QElapsedTimer time;
    time.start();
    double longestTurn = 0;
    double longestEdit = 0;
    double begin = threadMs();
    // The older toolkit waits for one more event behind those that were posted.
    QTimer beat;
    beat.start(10);
    m_editor->moveCursor(QTextCursor::Start);
    QCoreApplication::processEvents();
    for (int i = 0; i < 100; ++i) {
        begin = threadMs();
        m_editor->document()->setModified(true);
        QTextCursor(m_editor->document()).insertText("x");
        longestEdit = qMax(longestEdit, threadMs() - begin);
        while (!m_work->isSettled() && i % 50 == 0) {
            begin = threadMs();
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            longestTurn = qMax(longestTurn, threadMs() - begin);
            QVERIFY(time.elapsed() < patience(20000));
        }
    }
    qDebug("%d lines: longest turn %.1f ms, longest edit %.2f ms", lines, longestTurn, longestEdit);
    QVERIFY2(longestTurn < patience(40), qPrintable(QString::number(longestTurn)));
    QTRY_VERIFY_WITH_TIMEOUT(m_work->isSettled(), patience(10000));
    QVERIFY(isKept());
}

void TestUnsavedWork::rowsAreKept()
{
    SomeRows list;
    list.show({"one", "two"});
    list.store();
    list.path = "/somewhere/program.teach";
    m_work->watchRows("teach", &list);
    QElapsedTimer time;
    for (const QStringList &values : {QStringList{"one", "2"}, QStringList{"1", "2", "3"}}) {
        time.start();
        list.show(values);
        QTRY_COMPARE(kept("teach").rows, list.rows());
        QVERIFY(time.elapsed() < patience(2000));
        QCOMPARE(kept("teach").head.path, list.path);
    }
    list.store();
    QTRY_VERIFY(sessions().isEmpty());
    list.show({});
    QTRY_VERIFY(!kept("teach").subject.isEmpty());
    QVERIFY(kept("teach").rows.isEmpty());
}

void TestUnsavedWork::fullDiskIsToldOnceAndOvercome()
{
    open("G01 X1\n");
    QSignalSpy told(m_work, SIGNAL(told(QString, Message::Tone, QString)));
    QSignalSpy causeEnded(m_work, SIGNAL(causeEnded(QString)));
    m_work->setPause(200);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit none = {1, before.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &none), 0);
    type("x");
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(!m_work->isSettled());
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QVERIFY(told.at(0).at(0).toString().contains("File too large"));
    type("y");
    QVERIFY(!m_work->flush(300));
    QVERIFY(!m_work->flush(300));
    QCOMPARE(told.size(), 1);
    QVERIFY(causeEnded.isEmpty());
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    QTRY_VERIFY_WITH_TIMEOUT(isKept(), 15000);
    QTRY_COMPARE(causeEnded.size(), 1);
    QCOMPARE(causeEnded.at(0).at(0), told.at(0).at(2));
    QVERIFY(m_work->isSettled());
}

void TestUnsavedWork::flushKeepsWhatWasJustTyped()
{
    SomeRows list;
    m_work->watchRows("teach", &list);
    list.store();
    open(QByteArray("G01 X1\n").repeated(50000));
    m_work->setDelay(60 * 1000);
    type("x");
    list.show({"one"});
    QVERIFY(m_work->flush(patience(2000)));
    QVERIFY(isKept());
    QCOMPARE(kept("teach").rows, list.rows());
    type("y");
    QVERIFY(m_work->flush(patience(2000)));
    QVERIFY(isKept());
}

void TestUnsavedWork::givenUpWorkLeavesNothing()
{
    SomeRows list;
    m_work->watchRows("teach", &list);
    open("G01 X1\n");
    type("x");
    list.show({"one"});
    QTRY_VERIFY(isKept());
    QTRY_VERIFY(!kept("teach").subject.isEmpty());
    type("y");
    m_work->giveUp(patience(2000));
    QVERIFY(sessions().isEmpty());
    type("z");
    QTest::qWait(20 * soon);
    QVERIFY(sessions().isEmpty());
}

FILARIX_TEST_MAIN(TestUnsavedWork)
#include "tst_unsavedwork.moc"
