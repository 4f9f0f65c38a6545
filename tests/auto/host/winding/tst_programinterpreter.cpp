// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "winding/programinterpreter.h"

class TestProgramInterpreter : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void beginsAtZeroInMillimetres();
    void motionsHoldUntilTheNext();
    void relativePositions();
    void inches();
    void inchesLeaveTensionAlone();
    void pitchHoldsForItsBlock();
    void dwellTakesItsLetter();
    void feedOfTheDwellsBlockStays();
    void spindle();
    void spindleWordsThatContradict();
    void speedComesBeforeTheMove();
    void wireIsClampedAndCut();
    void nothingHappensBehindTheEnd();
    void wordsAreUsedOrUnknown();
    void lastOfTwoWordsCounts();
    void negativeFeedAndSpeedAreNone();
    void toolIsTaken();
    void positionsStayWithinReach();
    void windingNeedsATurningSpindleAndAWay();
    void emptyProfileUsesNothing();
};

/// A program that is performed line by line.
class Performance
{
public:
    explicit Performance(const MachineProfile &profile = MachineProfile::forSamples())
        : m_interpreter(profile)
    {}

    const WindingStep &run(const char *line)
    {
        return m_interpreter.add(m_reader.read(QString::fromLatin1(line)));
    }
    const ModalState &state() const { return m_interpreter.state(); }
    double at(MachineAxis::Role role) const { return m_interpreter.position(role); }

private:
    BlockReader m_reader;
    ProgramInterpreter m_interpreter;
};

void TestProgramInterpreter::beginsAtZeroInMillimetres()
{
    Performance program;
    QCOMPARE(program.state().spindle, 0);
    QCOMPARE(program.state().tool, -1);
    QVERIFY(!program.state().isInches);
    QVERIFY(!program.state().isRelative);
    QVERIFY(!program.state().isEnded);
    QCOMPARE(program.at(MachineAxis::Traverse), 0.0);
    // Without a motion in force an axis has nowhere to go.
    const WindingStep &step = program.run("X5");
    QCOMPARE(int(step.motion), int(MachineFunction::Ignored));
    QCOMPARE(step.axesGiven, 1u << MachineAxis::Traverse);
    QCOMPARE(program.at(MachineAxis::Traverse), 0.0);
}

void TestProgramInterpreter::motionsHoldUntilTheNext()
{
    Performance program;
    const WindingStep &step = program.run("G01 X5 Y8 F200");
    QCOMPARE(int(step.motion), int(MachineFunction::FeedMotion));
    QCOMPARE(step.line, 1);
    QCOMPARE(step.from[MachineAxis::Traverse], 0.0);
    QCOMPARE(step.to[MachineAxis::Traverse], 5.0);
    QCOMPARE(step.to[MachineAxis::GuideDistance], 8.0);
    QCOMPARE(step.feed, 200.0);
    program.run("x7.5");
    QCOMPARE(int(step.motion), int(MachineFunction::FeedMotion));
    QCOMPARE(step.line, 2);
    QCOMPARE(step.from[MachineAxis::Traverse], 5.0);
    QCOMPARE(step.to[MachineAxis::Traverse], 7.5);
    QVERIFY(!step.moves(MachineAxis::GuideDistance));
    QCOMPARE(step.feed, 200.0);
    program.run("S300");
    QCOMPARE(int(step.motion), int(MachineFunction::Ignored));
    QCOMPARE(step.from[MachineAxis::Traverse], 7.5);
    program.run("G00X0");
    QCOMPARE(int(step.motion), int(MachineFunction::RapidMotion));
    QCOMPARE(step.feed, 0.0);
}

void TestProgramInterpreter::relativePositions()
{
    Performance program;
    program.run("G00 X10 Y5");
    program.run("G91 X2");
    program.run("X-0.5 Y1");
    QCOMPARE(program.at(MachineAxis::Traverse), 11.5);
    QCOMPARE(program.at(MachineAxis::GuideDistance), 6.0);
    program.run("G90 X1");
    QCOMPARE(program.at(MachineAxis::Traverse), 1.0);
}

void TestProgramInterpreter::inches()
{
    Performance program;
    const WindingStep &step = program.run("G20 G01 X1 F10");
    QCOMPARE(step.to[MachineAxis::Traverse], 25.4);
    QCOMPARE(step.feed, 254.0);
    program.run("S100 M03 G33 X2 K0.01");
    QCOMPARE(step.to[MachineAxis::Traverse], 50.8);
    QCOMPARE(step.pitch, 0.254);
    program.run("G21 G33 X10 K0.25");
    QCOMPARE(step.to[MachineAxis::Traverse], 10.0);
    QCOMPARE(step.pitch, 0.25);
}

void TestProgramInterpreter::inchesLeaveTensionAlone()
{
    Performance program;
    const WindingStep &step = program.run("G20 G01 U2.5 F100");
    QCOMPARE(step.to[MachineAxis::Tension], 2.5);
    QCOMPARE(step.feed, 100.0);
}

void TestProgramInterpreter::pitchHoldsForItsBlock()
{
    Performance program;
    const WindingStep &step = program.run("G33 X5 K0.25");
    QCOMPARE(step.pitch, 0.25);
    program.run("X6");
    QCOMPARE(int(step.motion), int(MachineFunction::SynchronousMotion));
    QCOMPARE(step.pitch, 0.0);
}

void TestProgramInterpreter::dwellTakesItsLetter()
{
    Performance program;
    const WindingStep &step = program.run("G04 F0.2");
    QCOMPARE(step.dwellSeconds, 0.2);
    QVERIFY(step.does(MachineFunction::Dwell));
    QCOMPARE(int(step.motion), int(MachineFunction::Ignored));
    program.run("F0.3 G04");
    QCOMPARE(step.dwellSeconds, 0.3);
    program.run("G04 F-1");
    QCOMPARE(step.dwellSeconds, 0.0);
    program.run("S5");
    QCOMPARE(step.dwellSeconds, 0.0);

    QByteArray text = MachineProfile::sampleText();
    text.replace("dwell = F", "dwell = P").replace("dwell unit = s", "dwell unit = ms");
    QStringList errors;
    Performance other(MachineProfile::fromText(text, "p", &errors));
    QCOMPARE(errors, QStringList());
    QCOMPARE(other.run("G04 P250").dwellSeconds, 0.25);
    // Without a dwell the letter means nothing.
    const WindingStep &alone = other.run("P250");
    QCOMPARE(alone.usedWords, 0u);
    QCOMPARE(alone.unknownWords, 0u);
}

void TestProgramInterpreter::feedOfTheDwellsBlockStays()
{
    Performance program;
    program.run("G01 X5 F200");
    program.run("G04 F0.2");
    QCOMPARE(program.state().feed, 200.0);
    // A dwell is no motion: the one before goes on.
    QCOMPARE(int(program.run("X6").motion), int(MachineFunction::FeedMotion));
}

void TestProgramInterpreter::spindle()
{
    Performance program;
    program.run("S300");
    QCOMPARE(program.state().turning(), 0.0);
    program.run("M03");
    QCOMPARE(program.state().turning(), 300.0);
    program.run("S450");
    QCOMPARE(program.state().turning(), 450.0);
    program.run("M04");
    QCOMPARE(program.state().turning(), -450.0);
    program.run("M05");
    QCOMPARE(program.state().turning(), 0.0);
    QCOMPARE(program.state().speed, 450.0);
}

void TestProgramInterpreter::spindleWordsThatContradict()
{
    Performance program;
    program.run("M03 M05 S300");
    QCOMPARE(program.state().spindle, 0);
}

void TestProgramInterpreter::speedComesBeforeTheMove()
{
    Performance program;
    const WindingStep &step = program.run("G33 X5 K0.5 M03 S300");
    QCOMPARE(step.state.turning(), 300.0);
    QVERIFY(step.isWinding());
}

void TestProgramInterpreter::wireIsClampedAndCut()
{
    Performance program;
    QVERIFY(!program.state().isClamped);
    program.run("M10");
    QVERIFY(program.state().isClamped);
    program.run("M12");
    QVERIFY(!program.state().isClamped);
}

void TestProgramInterpreter::nothingHappensBehindTheEnd()
{
    Performance program;
    const WindingStep &step = program.run("G00 X5 M30");
    QCOMPARE(step.to[MachineAxis::Traverse], 5.0);
    QVERIFY(step.does(MachineFunction::ProgramEnd));
    QVERIFY(!step.isBehindEnd);
    QVERIFY(program.state().isEnded);
    program.run("G01 X9 S500 M03 Q5");
    QVERIFY(step.isBehindEnd);
    QCOMPARE(step.actions, 0u);
    QCOMPARE(step.usedWords, 0u);
    QCOMPARE(step.unknownWords, 1u << 4);
    QCOMPARE(step.axesGiven, 0u);
    QCOMPARE(int(step.motion), int(MachineFunction::Ignored));
    QCOMPARE(program.at(MachineAxis::Traverse), 5.0);
    QCOMPARE(program.state().spindle, 0);
}

void TestProgramInterpreter::wordsAreUsedOrUnknown()
{
    Performance program;
    const WindingStep &step = program.run("N10 G01 X5 G77 Q3 M99 G1.55 F100");
    QCOMPARE(step.usedWords, (1u << 1) | (1u << 2) | (1u << 7));
    QCOMPARE(step.unknownWords, (1u << 3) | (1u << 4) | (1u << 5) | (1u << 6));
    program.run("; nothing");
    QCOMPARE(step.usedWords, 0u);
    QCOMPARE(step.unknownWords, 0u);
}

void TestProgramInterpreter::lastOfTwoWordsCounts()
{
    Performance program;
    QCOMPARE(program.run("G01 X5 X6 F100 F200").to[MachineAxis::Traverse], 6.0);
    QCOMPARE(program.state().feed, 200.0);
}

void TestProgramInterpreter::negativeFeedAndSpeedAreNone()
{
    Performance program;
    const WindingStep &step = program.run("G01 X5 F-100 S-300 M03");
    QCOMPARE(step.feed, 0.0);
    QCOMPARE(step.state.turning(), 0.0);
    program.run("G33 X6 K-0.5");
    QCOMPARE(step.pitch, 0.0);
}

void TestProgramInterpreter::toolIsTaken()
{
    Performance program;
    program.run("T2");
    QCOMPARE(program.state().tool, 2);
    program.run("T900000000");
    QCOMPARE(program.state().tool, 2);
    program.run("T-1");
    QCOMPARE(program.state().tool, 2);
}

void TestProgramInterpreter::positionsStayWithinReach()
{
    Performance program;
    program.run("G20 G91 G00");
    for (int i = 0; i < 1000; ++i)
        program.run("X999999999");
    QVERIFY(program.at(MachineAxis::Traverse) <= 1e12);
    for (int i = 0; i < 2000; ++i)
        program.run("X-999999999");
    QVERIFY(program.at(MachineAxis::Traverse) >= -1e12);
}

void TestProgramInterpreter::windingNeedsATurningSpindleAndAWay()
{
    Performance program;
    QVERIFY(!program.run("G33 X5 K0.5").isWinding());
    QVERIFY(!program.run("S300 M03").isWinding());
    QVERIFY(program.run("G33 X6 K0.5").isWinding());
    QVERIFY(!program.run("G33 X6 K0.5").isWinding());
    QVERIFY(!program.run("G33 Y6 K0.5").isWinding());
    QVERIFY(program.run("G01 X7 F100").isWinding());
    QVERIFY(!program.run("G00 X8").isWinding());
}

void TestProgramInterpreter::emptyProfileUsesNothing()
{
    Performance program((MachineProfile()));
    const WindingStep &step = program.run("G01 X5 F100 M03");
    QCOMPARE(step.usedWords, 0u);
    QCOMPARE(step.unknownWords, 15u);
    QCOMPARE(step.actions, 0u);
}

FILARIX_TEST_MAIN(TestProgramInterpreter)
#include "tst_programinterpreter.moc"
