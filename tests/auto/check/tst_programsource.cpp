// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programsource.h"
#include "winding/programreading.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class TestProgramSource : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsReadWhole();
    void linkIsFollowed();
    void whatIsNoProgramIsRefused_data();
    void whatIsNoProgramIsRefused();
    void namedPipeIsRefusedWithoutWaiting();
    void pipeOfAShellIsRead();
    void standardInputIsRead();
    void hugeFileIsRefused();
};

static QByteArray pathTo(const char *name)
{
    return QFile::encodeName(FilarixTest::home() + '/' + name);
}

/// Lines of the program; why it is refused otherwise.
static QByteArray readFrom(const QByteArray &name)
{
    ProgramReading reading(MachineProfile::forSamples());
    QByteArray error;
    if (!ProgramSource::read(name, &reading, &error))
        return error;
    return QByteArray::number(reading.model().totals().lines);
}

void TestProgramSource::fileIsReadWhole()
{
    // Larger than a piece, with a line across each border.
    writeFile(home() + "/a.cnc", QByteArray("G00 X1 Y2 ; seventeen\n").repeated(20000) + "M30");
    QCOMPARE(readFrom(pathTo("a.cnc")), QByteArray("20001"));
    writeFile(home() + "/empty.cnc", "");
    QCOMPARE(readFrom(pathTo("empty.cnc")), QByteArray("0"));
}

void TestProgramSource::linkIsFollowed()
{
    writeFile(home() + "/a.cnc", "M30\n");
    QVERIFY(QFile::link(home() + "/a.cnc", home() + "/link.cnc"));
    QCOMPARE(readFrom(pathTo("link.cnc")), QByteArray("1"));
}

void TestProgramSource::whatIsNoProgramIsRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("error");
    QTest::newRow("missing") << QByteArray("/nowhere/a.cnc")
                             << QByteArray("No such file or directory");
    QTest::newRow("folder") << QByteArray("/tmp") << QByteArray("is a folder");
    QTest::newRow("endless device") << QByteArray("/dev/zero") << QByteArray("is a device");
    QTest::newRow("empty device") << QByteArray("/dev/null") << QByteArray("is a device");
    QTest::newRow("name too long") << QByteArray(5000, 'a') << QByteArray("File name too long");
}

void TestProgramSource::whatIsNoProgramIsRefused()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, error);
    QCOMPARE(readFrom(name), error);
}

/// Nobody writes to it: a plain open() would never come back.
void TestProgramSource::namedPipeIsRefusedWithoutWaiting()
{
    const QByteArray pipe = pathTo("pipe.cnc");
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    QCOMPARE(readFrom(pipe), QByteArray("is a pipe; \"-\" reads from one"));
    QVERIFY(QFile::link(home() + "/pipe.cnc", home() + "/link.cnc"));
    QCOMPARE(readFrom(pathTo("link.cnc")), QByteArray("is a pipe; \"-\" reads from one"));
}

/// As of `filarix-check <(generate)`.
void TestProgramSource::pipeOfAShellIsRead()
{
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    QCOMPARE(int(::write(ends[1], "G21\nM30\n", 8)), 8);
    ::close(ends[1]);
    QCOMPARE(readFrom("/dev/fd/" + QByteArray::number(ends[0])), QByteArray("2"));
    ::close(ends[0]);
}

void TestProgramSource::standardInputIsRead()
{
    writeFile(home() + "/a.cnc", "G21\nG90\nM30\n");
    const int kept = ::dup(STDIN_FILENO);
    const int file = ::open(pathTo("a.cnc").constData(), O_RDONLY);
    ::dup2(file, STDIN_FILENO);
    ::close(file);
    const QByteArray lines = readFrom("-");
    const int folder = ::open("/tmp", O_RDONLY);
    ::dup2(folder, STDIN_FILENO);
    ::close(folder);
    const QByteArray refusal = readFrom("-");
    ::dup2(kept, STDIN_FILENO);
    ::close(kept);
    QCOMPARE(lines, QByteArray("3"));
    QCOMPARE(refusal, QByteArray("is a folder"));
}

/// It takes no room on the disk.
void TestProgramSource::hugeFileIsRefused()
{
    writeFile(home() + "/huge.cnc", "G21\n");
    QCOMPARE(::truncate(pathTo("huge.cnc").constData(), ProgramSource::mostBytes + 1), 0);
    QCOMPARE(readFrom(pathTo("huge.cnc")), QByteArray("is too large for a program"));
}

FILARIX_TEST_MAIN(TestProgramSource)
#include "tst_programsource.moc"
