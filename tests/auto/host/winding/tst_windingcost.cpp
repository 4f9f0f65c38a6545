// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds what a program of a million lines costs to read and to wind. Nothing else runs here: the
// most memory that a process ever had tells only once.

#include "filarixtest.h"
#include "winding/programreading.h"

#include <ctime>

#include <sys/resource.h>

class TestWindingCost : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void memoryOfAMillionLines();
    void timeOfAMillionLines();
    void timeOfAHundredThousandLines();
    void picturesComeSoon();
};

/// A program of so many lines, a piece at a time: coils of 190 layers with a speed for each
/// section, as the longest sample has them.
class LongProgram
{
public:
    explicit LongProgram(int lines) : m_lines(lines) {}

    void feed(ProgramReading *reading)
    {
        const int linesPerPiece = 4000;
        add("G21\nG90\nT1\nG00 X0 Y60 U0\nM10\nG01 U2.00 F200\nS300 M03\n");
        while (m_done < m_lines) {
            for (int i = 0; i < linesPerPiece && m_done < m_lines; i += linesPerLayer)
                addLayer();
            reading->addBytes(m_piece.constData(), m_piece.size());
            m_piece.resize(0);
        }
        reading->finish();
    }

private:
    static const int linesPerLayer = 21;

    void add(const char *lines)
    {
        m_piece += lines;
        m_done += int(QByteArray(lines).count('\n'));
    }
    void addLayer()
    {
        char line[80];
        ++m_layer;
        qsnprintf(line, sizeof line, "; Layer %d\nG01 Y%.2f U%.2f F800\n", m_layer,
                  12 + m_layer % 190 * 0.22, 6 - m_layer % 190 * 0.01);
        add(line);
        for (int section = 1; section <= 18; ++section) {
            const int forth = section * 200 + m_layer % 7 * 3;
            qsnprintf(line, sizeof line, "G33 X%.2f K0.22 S%d\n",
                      (m_layer % 2 ? 3800 - forth : forth) / 100.0,
                      300 + (section * 37 + m_layer * 11) % 600);
            add(line);
        }
        add("G04 F0.2\n");
    }

    const int m_lines;
    QByteArray m_piece;
    int m_done = 0;
    int m_layer = 0;
};

/// The most that the process ever had in memory, in bytes.
static qint64 mostMemory()
{
    struct rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * qint64(1024);
}

/// Processor time in ms.
static double now()
{
    struct timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
}

/// The program as it would lie on a disk.
static QByteArray bytesOf(int lines)
{
    QByteArray bytes = "G21\nG90\nT1\nG00 X0 Y60 U0\nM10\nG01 U2.00 F200\nS300 M03\n";
    bytes.reserve(lines * 20);
    for (int line = 7; line < lines; ++line) {
        const int layer = line / 20;
        const int place = line % 20;
        const int section = layer % 2 ? 19 - place : place;
        char text[60];
        if (place == 0)
            qsnprintf(text, sizeof text, "G01 Y%.2f U%.2f F800\n", 12 + layer % 190 * 0.22,
                      6 - layer % 190 * 0.01);
        else
            qsnprintf(text, sizeof text, "G33 X%.2f K0.22 S%d\n", section * 2.0,
                      300 + (section * 37 + layer * 11) % 600);
        bytes += text;
    }
    return bytes;
}

/// The least of three: the machine may be busy with other things.
static double msToRead(const QByteArray &program)
{
    double least = 0;
    for (int i = 0; i < 3; ++i) {
        const double begin = now();
        ProgramReading reading(MachineProfile::forSamples());
        const int piece = 256 * 1024;
        for (int at = 0; at < program.size(); at += piece)
            reading.addBytes(program.constData() + at, qMin(piece, int(program.size()) - at));
        reading.finish();
        const double ms = now() - begin;
        least = i == 0 ? ms : qMin(least, ms);
    }
    return least;
}

void TestWindingCost::memoryOfAMillionLines()
{
    const int lines = scaled(1000000, 50000);
    const qint64 before = mostMemory();
    ProgramReading reading(MachineProfile::forSamples());
    LongProgram(lines).feed(&reading);
    const WindingModel model = reading.model();
    const qint64 taken = mostMemory() - before;
    QVERIFY(model.totals().lines >= lines);
    QVERIFY(model.totals().layers >= lines / 22);
    const qint64 most = 64 * 1024 * 1024;
    // The sanitizers' runtime keeps what was freed.
    const qint64 allowed = isSanitized() ? 4 * most : most;
    QVERIFY2(taken <= allowed, qPrintable(QString("%1 KB").arg(taken / 1024)));
    qDebug("%d lines: %d KB", lines, int(taken / 1024));
}

void TestWindingCost::timeOfAMillionLines()
{
    const int lines = scaled(1000000, 50000);
    const double ms = msToRead(bytesOf(lines));
    // Half of the second within which a million lines are read, wound and checked.
    const double most = double(patience(500)) * lines / 1000000;
    qDebug("%d lines: %.1f ms", lines, ms);
    QVERIFY2(ms <= most, qPrintable(QString("%1 ms").arg(ms)));
}

void TestWindingCost::timeOfAHundredThousandLines()
{
    const int lines = scaled(100000, 10000);
    const double ms = msToRead(bytesOf(lines));
    const double most = double(patience(60)) * lines / 100000;
    QVERIFY2(ms <= most, qPrintable(QString("%1 ms").arg(ms)));
}

void TestWindingCost::picturesComeSoon()
{
    const QByteArray program = bytesOf(scaled(1000000, 50000));
    ProgramReading reading(MachineProfile::forSamples());
    reading.addBytes(program.constData(), program.size());
    reading.finish();
    const WindingModel &model = reading.model();
    const double begin = now();
    const int points = 800;
    QCOMPARE(model.plot(WindingModel::Speed, WindingModel::Turns, points).size(), points);
    QCOMPARE(model.plot(WindingModel::TraversePosition, WindingModel::Time, points).size(), points);
    QVERIFY(model.path(points).size() <= points);
    QVERIFY(model.lineAt(model.layers().size() / 2, 5) > 0);
    const double ms = now() - begin;
    qDebug("plots and path: %.1f ms", ms);
    QVERIFY2(ms <= patience(50), qPrintable(QString("%1 ms").arg(ms)));
}

FILARIX_TEST_MAIN(TestWindingCost)
#include "tst_windingcost.moc"
