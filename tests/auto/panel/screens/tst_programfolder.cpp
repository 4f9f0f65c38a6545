// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/programfolder.h"

#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

class TestProgramFolder : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsWhatTheLibraryLists();
    void saysWhyItCannotBeRead();
    void emptyFolderHasNoNames();
    void tellsOfChangesAlone();
    void looksOnceMoreWhenAskedMeanwhile();
    void folderThatHangsStopsNothing();
    void endWhileItHangsWaitsForNothing();
};

void TestProgramFolder::listsWhatTheLibraryLists()
{
    writeFile(programDir() + "/b.cnc", "G01\n");
    writeFile(programDir() + "/a.txt", QByteArray(3000, 'x'));
    writeFile(programDir() + "/.hidden.cnc", "G01\n");
    QVERIFY(QFile::link(programDir() + "/b.cnc", programDir() + "/link.cnc"));
    QVERIFY(QDir(programDir()).mkdir("folder"));
    ProgramFolder folder(programDir());
    QVERIFY(!folder.isKnown());
    QSignalSpy changes(&folder, SIGNAL(changed()));
    folder.look();
    QTRY_COMPARE(changes.size(), 1);
    QVERIFY(folder.isKnown());
    QCOMPARE(folder.contents().error, QString());
    QCOMPARE(folder.contents().names, QStringList({"a.txt", "b.cnc"}));
    QCOMPARE(folder.contents().listing->entries().value("a.txt").size, qint64(3000));
    QVERIFY(folder.contents().listing->entries().value("b.cnc").written > 0);
}

void TestProgramFolder::saysWhyItCannotBeRead()
{
    QVERIFY(!ProgramFolder::lookAt(home() + "/nowhere").error.isEmpty());
    writeFile(home() + "/file", "x");
    const ProgramFolder::Contents contents = ProgramFolder::lookAt(home() + "/file");
    QCOMPARE(contents.error, QString("Not a directory"));
    QVERIFY(contents.names.isEmpty());
    QVERIFY(contents.listing);
}

void TestProgramFolder::emptyFolderHasNoNames()
{
    const ProgramFolder::Contents contents = ProgramFolder::lookAt(programDir());
    QCOMPARE(contents.error, QString());
    QVERIFY(contents.names.isEmpty());
}

void TestProgramFolder::tellsOfChangesAlone()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    const std::shared_ptr<QAtomicInt> looks = std::make_shared<QAtomicInt>();
    const QString dir = programDir();
    ProgramFolder folder([looks, dir] {
        const ProgramFolder::Contents contents = ProgramFolder::lookAt(dir);
        // Never in the thread of the screen.
        looks->fetchAndAddOrdered(QThread::currentThread() == qApp->thread() ? 1000 : 1);
        return contents;
    });
    QSignalSpy changes(&folder, SIGNAL(changed()));
    folder.look();
    QTRY_COMPARE(changes.size(), 1);
    folder.look();
    QTRY_COMPARE(looks->loadAcquire(), 2);
    // What it found is taken from the event loop.
    folder.look();
    QTRY_COMPARE(looks->loadAcquire(), 3);
    QCOMPARE(changes.size(), 1);
    writeFile(programDir() + "/a.cnc", "G01 X1\n");
    folder.look();
    QTRY_COMPARE(changes.size(), 2);
    QVERIFY(QFile::remove(programDir() + "/a.cnc"));
    folder.look();
    QTRY_COMPARE(changes.size(), 3);
    QVERIFY(folder.contents().names.isEmpty());
    QVERIFY(QDir(home()).rmdir("cnc"));
    folder.look();
    QTRY_COMPARE(changes.size(), 4);
    QVERIFY(!folder.contents().error.isEmpty());
}

void TestProgramFolder::looksOnceMoreWhenAskedMeanwhile()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    const std::shared_ptr<QAtomicInt> looks = std::make_shared<QAtomicInt>();
    const QString dir = programDir();
    ProgramFolder folder([gate, looks, dir] {
        looks->ref();
        gate->acquire();
        return ProgramFolder::lookAt(dir);
    });
    for (int i = 0; i < 5; ++i)
        folder.look();
    gate->release(10);
    QTRY_COMPARE(looks->loadAcquire(), 2);
    QTRY_VERIFY(folder.isKnown());
}

void TestProgramFolder::folderThatHangsStopsNothing()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>(1);
    const QString dir = programDir();
    ProgramFolder folder([gate, dir] {
        gate->acquire();
        return ProgramFolder::lookAt(dir);
    });
    folder.setPatience(50);
    folder.look();
    QTRY_VERIFY(folder.isKnown());
    folder.look();
    QTRY_VERIFY(folder.isOverdue());
    // What was known last stays known.
    QVERIFY(folder.isKnown());
    QSignalSpy changes(&folder, SIGNAL(changed()));
    gate->release();
    QTRY_VERIFY(!folder.isOverdue());
    QCOMPARE(changes.size(), 1);
}

void TestProgramFolder::endWhileItHangsWaitsForNothing()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    const std::shared_ptr<QSemaphore> begun = std::make_shared<QSemaphore>();
    {
        ProgramFolder folder([gate, begun] {
            begun->release();
            gate->acquire();
            return ProgramFolder::Contents();
        });
        folder.look();
        begun->acquire();
    }
    gate->release();
}

FILARIX_TEST_MAIN(TestProgramFolder)
#include "tst_programfolder.moc"
