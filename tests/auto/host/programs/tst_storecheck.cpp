// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/storecheck.h"
#include "scriptquestioner.h"
#include "storage/filetaskqueue.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTextCursor>
#include <QTextDocument>

#include <sys/stat.h>

class TestStoreCheck : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void storedProgramAsksNothing();
    void missedSaveModifiesTheDocument();
    void laterLeavesItNotStored();
    void tryAgainWritesItSafely();
    void whatWasTypedMeanwhileIsNotStored();
    void failedTryAsksAgain();
    void stickIsOfferedWhereThereIsOne();
    void stickThatIsOutIsTold();
    void stickCoversNothing();
    void writeIsThePlainWay();
    void storageThatHangsIsAMiss();

private:
    bool run();
    QString lastText() const { return m_questioner->asked.last().plainText(); }

    QString m_path;
    QScopedPointer<QTextDocument> m_document;
    QScopedPointer<FileTaskQueue> m_jobs;
    QScopedPointer<ScriptQuestioner> m_questioner;
    QScopedPointer<StoreCheck> m_check;
    QScopedPointer<QSignalSpy> m_missed;
    QScopedPointer<QSignalSpy> m_ended;
    QString m_stick;
};

enum Answer { Later, TryAgain, SaveToTheStick };

Q_DECLARE_METATYPE(StoreCheck::Outcome)

static const char text[] = "G01\nG02\n";

void TestStoreCheck::init()
{
    FilarixTest::init();
    qRegisterMetaType<StoreCheck::Outcome>("StoreCheck::Outcome");
    m_path = programDir() + "/coil.cnc";
    m_stick.clear();
    m_document.reset(new QTextDocument(text));
    m_document->setModified(false);
    m_jobs.reset(new FileTaskQueue);
    m_questioner.reset(new ScriptQuestioner);
    m_check.reset(new StoreCheck(m_document.data(), m_jobs.data(), m_questioner.data()));
    m_missed.reset(new QSignalSpy(m_check.data(), SIGNAL(missed())));
    m_ended.reset(new QSignalSpy(m_check.data(), SIGNAL(ended(StoreCheck::Outcome))));
}

void TestStoreCheck::cleanup()
{
    ::chmod(QFile::encodeName(programDir()).constData(), 0755);
    m_check.reset();
    m_jobs.reset();
    FilarixTest::cleanup();
}

/// Whether the check ends, once.
bool TestStoreCheck::run()
{
    m_check->check(m_path, text);
    for (int waited = 0; m_ended->isEmpty() && waited < patience(5000); waited += 5)
        QTest::qWait(5);
    return m_ended->size() == 1 && !m_check->isRunning();
}

static int outcome(const QSignalSpy &ended)
{
    return int(ended.last().at(0).value<StoreCheck::Outcome>());
}

void TestStoreCheck::storedProgramAsksNothing()
{
    writeFile(m_path, text);
    QVERIFY(run());
    QCOMPARE(outcome(*m_ended), int(StoreCheck::Stored));
    QVERIFY(m_questioner->asked.isEmpty());
    QVERIFY(m_missed->isEmpty());
    QVERIFY(!m_document->isModified());
    QVERIFY(m_check->stamp() == FileStamp::of(m_path));
    QVERIFY(m_check->isFaithful());
    QCOMPARE(m_check->text(), QString(text));
}

void TestStoreCheck::missedSaveModifiesTheDocument()
{
    writeFile(m_path, "G01\n");
    QVERIFY(run());
    QCOMPARE(m_missed->size(), 1);
    QVERIFY(m_document->isModified());
    QVERIFY(!m_check->reason().isEmpty());
    QVERIFY(lastText().contains("coil.cnc is not stored"));
}

void TestStoreCheck::laterLeavesItNotStored()
{
    writeFile(m_path, "G01\n");
    QVERIFY(run());
    QCOMPARE(outcome(*m_ended), int(StoreCheck::NotStored));
    QCOMPARE(m_questioner->asked.size(), 1);
    QCOMPARE(m_questioner->asked.first().answers.size(), 2);
    QCOMPARE(readFile(m_path), QByteArray("G01\n"));
}

void TestStoreCheck::tryAgainWritesItSafely()
{
    writeFile(m_path, "G01\n");
    m_questioner->answers << TryAgain;
    QVERIFY(run());
    QCOMPARE(outcome(*m_ended), int(StoreCheck::Stored));
    QCOMPARE(readFile(m_path), QByteArray(text));
    QVERIFY(!m_document->isModified());
    QVERIFY(m_check->stamp() == FileStamp::of(m_path));
}

void TestStoreCheck::whatWasTypedMeanwhileIsNotStored()
{
    writeFile(m_path, "G01\n");
    m_questioner->answers << TryAgain;
    m_check->check(m_path, text);
    QTextCursor(m_document.data()).insertText("x");
    QTRY_COMPARE(m_ended->size(), 1);
    QCOMPARE(outcome(*m_ended), int(StoreCheck::Stored));
    QCOMPARE(readFile(m_path), QByteArray(text));
    QVERIFY(m_document->isModified());
}

void TestStoreCheck::failedTryAsksAgain()
{
    writeFile(m_path, "G01\n");
    QCOMPARE(::chmod(QFile::encodeName(programDir()).constData(), 0555), 0);
    m_questioner->answers << TryAgain << TryAgain << Later;
    QVERIFY(run());
    QCOMPARE(m_questioner->asked.size(), 3);
    QVERIFY2(lastText().contains("Permission denied"), qPrintable(lastText()));
    QCOMPARE(outcome(*m_ended), int(StoreCheck::NotStored));
    QCOMPARE(readFile(m_path), QByteArray("G01\n"));
}

void TestStoreCheck::stickIsOfferedWhereThereIsOne()
{
    writeFile(m_path, "G01\n");
    const QString stick = home() + "/stick";
    QVERIFY(QDir().mkpath(stick));
    m_check->setOtherPlace([stick] { return stick; });
    m_questioner->answers << SaveToTheStick;
    QVERIFY(run());
    QCOMPARE(m_questioner->asked.first().answers.size(), 3);
    QCOMPARE(outcome(*m_ended), int(StoreCheck::StoredElsewhere));
    QCOMPARE(m_check->otherPath(), QString(stick + "/coil.cnc"));
    QCOMPARE(readFile(stick + "/coil.cnc"), QByteArray(text));
    // The program itself is still as it was.
    QVERIFY(m_document->isModified());
}

// It stood in the question, and was pulled before the press.
void TestStoreCheck::stickThatIsOutIsTold()
{
    writeFile(m_path, "G01\n");
    const QString stick = home() + "/stick";
    QVERIFY(QDir().mkpath(stick));
    const std::shared_ptr<int> looks = std::make_shared<int>(0);
    m_check->setOtherPlace([stick, looks] { return ++*looks == 1 ? stick : QString(); });
    m_questioner->answers << SaveToTheStick << Later;
    QVERIFY(run());
    QCOMPARE(m_questioner->asked.size(), 2);
    QVERIFY2(lastText().contains("is out"), qPrintable(lastText()));
    QVERIFY(QDir(stick).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void TestStoreCheck::stickCoversNothing()
{
    writeFile(m_path, "G01\n");
    const QString stick = home() + "/stick";
    writeFile(stick + "/coil.cnc", "somebody's");
    m_check->setOtherPlace([stick] { return stick; });
    m_questioner->answers << SaveToTheStick;
    QVERIFY(run());
    QCOMPARE(m_check->otherPath(), QString(stick + "/coil_2.cnc"));
    QCOMPARE(readFile(stick + "/coil.cnc"), QByteArray("somebody's"));
}

void TestStoreCheck::writeIsThePlainWay()
{
    m_check->write(m_path, text);
    QVERIFY(m_check->isRunning());
    QTRY_COMPARE(m_ended->size(), 1);
    QCOMPARE(outcome(*m_ended), int(StoreCheck::Stored));
    QCOMPARE(readFile(m_path), QByteArray(text));
}

// A pipe keeps whoever opens it waiting, as storage that hangs does.
void TestStoreCheck::storageThatHangsIsAMiss()
{
    QCOMPARE(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    m_jobs->setStallTime(50);
    QVERIFY(run());
    QCOMPARE(outcome(*m_ended), int(StoreCheck::NotStored));
    QVERIFY2(lastText().contains("stopped answering"), qPrintable(lastText()));
    QVERIFY(m_document->isModified());
}

FILARIX_TEST_MAIN(TestStoreCheck)
#include "tst_storecheck.moc"
