// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "hearer.h"

class TestProgramReading : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void piecesOfAnySizeGiveTheSame_data();
    void piecesOfAnySizeGiveTheSame();
    void longLineIsNotKept();
    void linesOfADocument();
    void listenerHearsEachBlockInOrder();
};

void TestProgramReading::piecesOfAnySizeGiveTheSame_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<int>("lines");
    QTest::newRow("plain") << smallProgram() << 8;
    QTest::newRow("no end of line at the end") << smallProgram().trimmed() << 8;
    QTest::newRow("line ends of another system") << smallProgram().replace("\n", "\r\n") << 8;
    QTest::newRow("empty lines") << "\n\n" + smallProgram().replace("\n", "\n\n") << 18;
    QTest::newRow("tape marks") << "%\n" + smallProgram() + "%" << 10;
    QTest::newRow("comments") << "(coil) ; \xc3\xa4\n" + smallProgram() << 9;
}

void TestProgramReading::piecesOfAnySizeGiveTheSame()
{
    QFETCH(QByteArray, program);
    QFETCH(int, lines);
    for (int size = 1; size <= program.size(); ++size) {
        Hearer hearer;
        ProgramReading reading(MachineProfile::forSamples(), &hearer);
        for (int begin = 0; begin < program.size(); begin += size)
            reading.addBytes(program.constData() + begin, qMin(size, program.size() - begin));
        reading.finish();
        QCOMPARE(reading.lines(), lines);
        QCOMPARE(hearer.blocks, lines);
        QCOMPARE(reading.model().totals().turns, 40.0);
        QCOMPARE(reading.model().totals().layers, 2);
    }
}

void TestProgramReading::longLineIsNotKept()
{
    class Faults : public BlockListener
    {
    public:
        void add(const GCodeBlock &block, const WindingStep &, const WindingModel &) override
        {
            for (int i = 0; i < block.faultCount; ++i)
                lines.append(block.faults[i].kind == BlockFault::LineTooLong ? block.line : -1);
        }
        void finish(const WindingModel &) override {}

        QList<int> lines;
    };
    QByteArray line(3 * BlockReader::longestLine, ' ');
    // What may be half of a line's end is none with more behind it.
    line[BlockReader::longestLine] = '\r';
    for (int size : {1000, 1 << 16, 1 << 20}) {
        Faults faults;
        ProgramReading reading(MachineProfile::forSamples(), &faults);
        const QByteArray program = "G21\n" + line + "\nX1\n" + line;
        for (int begin = 0; begin < program.size(); begin += size)
            reading.addBytes(program.constData() + begin, qMin(size, program.size() - begin));
        reading.finish();
        QCOMPARE(faults.lines, QList<int>() << 2 << 4);
    }
}

void TestProgramReading::linesOfADocument()
{
    ProgramReading reading(MachineProfile::forSamples());
    const QString text = smallProgram();
    reading.addLines(text.left(4));
    reading.addLines(text.mid(4));
    const QString last = "; the last";
    reading.addLine(last.constData(), last.size());
    reading.finish();
    QCOMPARE(reading.lines(), 9);
    QCOMPARE(reading.model().totals().turns, 40.0);
}

void TestProgramReading::listenerHearsEachBlockInOrder()
{
    Hearer hearer;
    ProgramReading reading(MachineProfile::forSamples(), &hearer);
    const QByteArray program = smallProgram();
    reading.addBytes(program.constData(), program.size());
    QCOMPARE(hearer.finished, 0);
    reading.finish();
    QVERIFY(hearer.isInOrder);
    QCOMPARE(hearer.blocks, 8);
    QCOMPARE(hearer.words, 17);
    QCOMPARE(hearer.finished, 1);
    QCOMPARE(hearer.turns, 40.0);
}

FILARIX_TEST_MAIN(TestProgramReading)
#include "tst_programreading.moc"
