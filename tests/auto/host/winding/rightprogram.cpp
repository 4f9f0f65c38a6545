// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "rightprogram.h"

#include "seededrandom.h"

#include <cmath>

namespace {

// What the machine of profile() takes, in mm, N and 1/min, with some room left.
const double bobbinWidth = 20;
const double wireDiameter = 0.25;
const int mostLayers = 60;
const double clearance = 8;
const double gentleJump = 1.5;
const double leastTension = 1;
const double mostTension = 6;
const int slowest = 60;
const int fastest = 1800;

const double inch = 25.4;

/// Writes the lines of one program.
class Writer
{
public:
    Writer(quint32 seed, int atMost) : m_random(seed), m_atMost(atMost)
    {
        m_isInInches = m_random.inPercent(15);
        m_prefersRelative = m_random.inPercent(20);
        m_isTight = m_random.inPercent(10);
        m_hasRemarks = m_random.inPercent(60);
        m_leadingZeros = m_random.inPercent(70);
        m_endurance = m_random.inPercent(40) ? 100 : m_random.between(10, 95);
    }

    ProgramLines program()
    {
        addHead();
        do
            addCoil();
        while (m_random.inPercent(m_endurance) && roomFor(linesOfASmallCoil));
        add(ProgramLine::End, m_random.inPercent(80) ? "M30" : "M02");
        return m_lines;
    }

private:
    /// Head, start, two layers and end, with all that may be between.
    enum { linesOfASmallCoil = 60, linesOfALayer = 24 };

    void addHead()
    {
        remark("A generated program.");
        add(ProgramLine::Mode, m_isInInches ? "G20" : "G21");
        add(ProgramLine::Mode, "G90");
        add(ProgramLine::Mode, "T" + QByteArray::number(m_random.between(1, 4)));
        if (m_random.inPercent(50))
            add(ProgramLine::Mode, code('M', 5));
    }

    void addCoil()
    {
        remark("The next coil");
        begin();
        const int layers = m_random.between(2, mostLayers);
        for (int layer = 0; layer < layers && roomFor(linesOfALayer); ++layer)
            addLayer(layer);
        end();
    }

    void begin()
    {
        travel("X" + position(-6) + " Y" + position(40));
        add(ProgramLine::Travel, code('G', 0) + " U0");
        m_tension = 0;
        add(ProgramLine::Clamp, "M10");
        m_x = wireDiameter / 2;
        travel("X" + position(m_x) + " Y" + position(clearance));
        goToTension(m_random.between(20, 50) / 10.0);
        m_turnsRight = m_random.inPercent(80);
        startSpindle();
        setRelative(m_prefersRelative);
    }

    void addLayer(int layer)
    {
        if (layer > 0)
            addStepOutwards(layer);
        const bool goesOut = layer % 2 == 0;
        const double end = goesOut ? bobbinWidth - wireDiameter / 2 : wireDiameter / 2;
        const double begin = m_x;
        const int sections = m_random.between(1, 8);
        for (int section = 1; section <= sections; ++section) {
            addSpeed();
            wind(section == sections ? end : begin + (end - begin) * section / sections);
        }
        if (m_random.inPercent(50))
            add(ProgramLine::Dwell, code('G', 4) + " F0." + digit());
        if (m_random.inPercent(5))
            addTape();
    }

    void addStepOutwards(int layer)
    {
        remark("Layer " + QByteArray::number(layer + 1));
        const double y = clearance + layer * wireDiameter;
        add(ProgramLine::Feed, code('G', 1) + " Y" + to(y, y - wireDiameter) + feed());
        if (m_random.inPercent(30))
            goToTension(
                qBound(leastTension, m_tension + m_random.between(-10, 10) / 10.0, mostTension));
    }

    /// The machine stands while somebody lays tape.
    void addTape()
    {
        add(ProgramLine::Stop, code('M', 5));
        add(ProgramLine::Mode, code('M', 0));
        startSpindle();
    }

    void startSpindle()
    {
        const QByteArray speed = "S" + QByteArray::number(m_random.between(slowest, fastest));
        const QByteArray turn = code('M', m_turnsRight ? 3 : 4);
        if (m_random.inPercent(50)) {
            add(ProgramLine::Start, speed + " " + turn);
            return;
        }
        add(ProgramLine::Speed, speed);
        add(ProgramLine::Start, turn);
    }

    void addSpeed()
    {
        if (m_random.inPercent(60))
            add(ProgramLine::Speed, "S" + QByteArray::number(m_random.between(slowest, fastest)));
    }

    void wind(double x)
    {
        // Where the guide is, as the numbers of the program say.
        const double target = std::floor(x * 100 + 0.5) / 100;
        QByteArray line = code('G', 33) + " X" + to(target, m_x) + " K" + length(wireDiameter);
        m_x = target;
        if (m_random.inPercent(20))
            line += " S" + QByteArray::number(m_random.between(slowest, fastest));
        add(ProgramLine::Wind, line);
    }

    void end()
    {
        add(ProgramLine::Stop, code('M', 5));
        setRelative(false);
        goToTension(0);
        travel("X" + position(-6) + " Y" + position(40));
        add(ProgramLine::Cut, "M12");
        if (m_random.inPercent(30))
            add(ProgramLine::Mode, code('M', 0));
    }

    /// In steps that the wire bears.
    void goToTension(double tension)
    {
        while (tension != m_tension) {
            const double step = qBound(-gentleJump, tension - m_tension, gentleJump);
            const double next = qAbs(tension - m_tension) < gentleJump ? tension : m_tension + step;
            add(ProgramLine::Tension,
                code('G', 1) + " U" + number(m_isRelative ? next - m_tension : next, 2) + feed());
            m_tension = next;
        }
    }

    void setRelative(bool relative)
    {
        if (relative != m_isRelative)
            add(ProgramLine::Mode, relative ? "G91" : "G90");
        m_isRelative = relative;
    }

    void travel(const QByteArray &words) { add(ProgramLine::Travel, code('G', 0) + " " + words); }

    QByteArray feed() { return " F" + QByteArray::number(m_random.between(5, 800)); }
    QByteArray digit() { return QByteArray::number(m_random.between(1, 9)); }

    QByteArray code(char letter, int value)
    {
        QByteArray digits = QByteArray::number(value);
        return letter + (m_leadingZeros && value < 10 ? "0" + digits : digits);
    }

    /// A length in mm in the program's unit. In inches it takes more digits.
    QByteArray length(double mm) { return m_isInInches ? number(mm / inch, 5) : number(mm, 3); }
    QByteArray position(double mm) { return length(mm); }
    /// A place as the program has to name it, coming from another one.
    QByteArray to(double mm, double from) { return length(m_isRelative ? mm - from : mm); }

    /// As people and programs write it.
    QByteArray number(double value, int decimals)
    {
        QByteArray text = QByteArray::number(value, 'f', decimals);
        const int form = m_random.below(10);
        if (form < 6) {
            while (text.endsWith('0'))
                text.chop(1);
            if (form < 5 && text.endsWith('.'))
                text.chop(1);
        }
        if (form == 9 && value > 0)
            text.prepend('+');
        return text == "-0" || text.isEmpty() ? QByteArray("0") : text;
    }

    bool roomFor(int lines) const { return m_lines.size() + lines + linesOfASmallCoil < m_atMost; }

    void remark(const QByteArray &text)
    {
        if (m_hasRemarks)
            append(ProgramLine::Remark, "; " + text);
        if (m_random.inPercent(10))
            append(ProgramLine::Remark, "");
    }

    void add(ProgramLine::Role role, QByteArray text)
    {
        if (m_isTight)
            text.replace(' ', "");
        else if (m_random.inPercent(3))
            text.replace(' ', "  ");
        if (m_hasRemarks && m_random.inPercent(10))
            text += "  ; G01 X999 is a remark here";
        append(role, text);
    }

    void append(ProgramLine::Role role, const QByteArray &text)
    {
        const ProgramLine line = {text, role};
        m_lines.append(line);
    }

    SeededRandom m_random;
    const int m_atMost;
    ProgramLines m_lines;
    bool m_isInInches;
    bool m_prefersRelative;
    bool m_isTight;
    bool m_hasRemarks;
    bool m_leadingZeros;
    /// How likely another coil follows, in percent.
    int m_endurance;
    bool m_isRelative = false;
    bool m_turnsRight = true;
    double m_x = 0;
    double m_tension = 0;
};

} // namespace

ProgramLines RightProgram::lines(quint32 seed, int atMost)
{
    return Writer(seed, atMost).program();
}

QByteArray RightProgram::text(const ProgramLines &lines)
{
    QByteArray text;
    for (const ProgramLine &line : lines)
        text += line.text + '\n';
    return text;
}

QByteArray RightProgram::profile()
{
    return "[profile]\n"
           "name = Machine of the generated programs\n"
           "[axes]\n"
           "X = traverse, mm, -10, 40\n"
           "Y = guide distance, mm, 0, 60\n"
           "U = tension, N, 0, 12\n"
           "[functions]\n"
           "G0 = rapid, motion\n"
           "G1 = feed, motion\n"
           "G4 = dwell, motion\n"
           "G20 = inches, units\n"
           "G21 = millimetres, units\n"
           "G33 = synchronous, motion\n"
           "G90 = absolute, positions\n"
           "G91 = relative, positions\n"
           "M0 = pause, stop\n"
           "M2 = end, stop\n"
           "M3 = spindle forward, spindle\n"
           "M4 = spindle reverse, spindle\n"
           "M5 = spindle stop, spindle\n"
           "M10 = clamp wire, wire\n"
           "M12 = cut wire, wire\n"
           "M30 = end, stop\n"
           "[words]\n"
           "F = feed\n"
           "S = speed\n"
           "K = pitch\n"
           "T = tool\n"
           "N = number\n"
           "dwell = F\n"
           "dwell unit = s\n"
           "[tools]\n"
           "1 = 0.25\n"
           "2 = 0.30\n"
           "3 = 0.40\n"
           "4 = 0.60\n"
           "[wire]\n"
           "diameter = 0.25\n"
           "metal = copper\n"
           "[bobbin]\n"
           "core = 20\n"
           "width = 20\n"
           "left = 0\n"
           "flange = 60\n"
           "[limits]\n"
           "speed = 2000\n"
           "tension = 8\n"
           "tension jump = 2\n"
           "pitch = 2\n"
           "[rules]\n"
           "clamp = required\n"
           "cut = required\n"
           "end = required\n"
           "errors = forbid\n"
           "[motion]\n"
           "rapid = 6000\n"
           "spindle ramp = 600\n"
           "[layers]\n"
           "growth = guide\n";
}
