// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "oracleprogram.h"

#include "seededrandom.h"

#include <QList>

namespace {

/// The index of G33 among the motions.
const int synchronous = 2;

/// Writes the blocks of one program.
class Writer
{
public:
    explicit Writer(quint32 seed) : m_random(seed) {}

    QByteArray program()
    {
        begin();
        for (int blocks = m_random.between(10, 120); blocks > 0; --blocks)
            addBlock();
        add("M05");
        add("M30");
        return m_text;
    }

private:
    typedef QList<QByteArray> Words;

    void begin()
    {
        // Each of these in force, whatever a machine starts with; and a known place.
        add(m_random.inPercent(70) ? "G21" : "G20");
        add("G90");
        add("G00 X" + number(500) + " Y" + number(500) + " Z" + number(500));
        add("F" + QByteArray::number(m_random.between(1, 900)));
        add("S" + QByteArray::number(m_random.between(60, 900)) + " M03");
    }

    void addBlock()
    {
        const int kind = m_random.below(100);
        if (kind < 6)
            return add(m_random.inPercent(50) ? "" : "; only words: X5 G91");
        if (kind < 12)
            return add(modeWord());
        if (kind < 16)
            return add("S" + QByteArray::number(m_random.between(60, 900)));
        addMotion();
    }

    QByteArray modeWord()
    {
        static const char *const words[] = {"G20", "G21", "G90", "G91"};
        return words[m_random.below(4)];
    }

    void addMotion()
    {
        Words words;
        addMotionWord(&words);
        // At least one of the three.
        const int axes = m_random.between(1, 7);
        for (int axis = 0; axis < 3; ++axis) {
            if (axes & (1 << axis))
                words.append("XYZ"[axis] + number(120));
        }
        if (m_random.inPercent(15))
            words.append(modeWord());
        // A feed means nothing to a motion in step with the spindle, and the oracle takes none
        // there.
        if (m_random.inPercent(15))
            words.append((m_motion == synchronous ? "S" : "F")
                         + QByteArray::number(m_random.between(60, 900)));
        addShuffled(words);
    }

    void addMotionWord(Words *words)
    {
        static const char *const motions[][2] = {{"G00", "G0"}, {"G01", "G1"}, {"G33", "G33"}};
        const int motion = m_random.below(3);
        // The one in force need not be said again.
        if (motion != m_motion || m_random.inPercent(50))
            words->append(motions[motion][m_random.below(2)]);
        m_motion = motion;
        if (motion == synchronous)
            words->append("K" + pitch());
    }

    QByteArray pitch() { return QByteArray("0.") + QByteArray::number(m_random.between(100, 999)); }

    /// As people and programs write numbers, up to \a limit.
    QByteArray number(int limit)
    {
        QByteArray digits = QByteArray::number(m_random.below(limit));
        const int form = m_random.below(8);
        if (form == 1)
            digits.append('.');
        if (form == 2)
            digits.prepend("00");
        if (form > 2)
            digits += '.' + fraction();
        if (form == 7)
            digits = '.' + fraction();
        const int sign = m_random.below(8);
        return (sign < 3 ? "-" : sign == 7 ? "+" : "") + digits;
    }

    QByteArray fraction()
    {
        QByteArray digits;
        for (int count = m_random.between(1, 6); count > 0; --count)
            digits.append(m_random.oneOf("0123456789"));
        return digits;
    }

    void addShuffled(Words words)
    {
        QByteArray line;
        const bool isTight = m_random.inPercent(20);
        while (!words.isEmpty()) {
            if (!line.isEmpty() && !isTight)
                line.append(m_random.inPercent(10) ? '\t' : ' ');
            line.append(words.takeAt(m_random.below(words.size())));
        }
        if (m_random.inPercent(10))
            line.append(" ; G00 X0 is a comment");
        add(line);
    }

    void add(const QByteArray &line) { m_text += line + '\n'; }

    SeededRandom m_random;
    QByteArray m_text;
    /// The index of the motion in force: the first block has G00.
    int m_motion = 0;
};

} // namespace

QByteArray OracleProgram::text(quint32 seed)
{
    return Writer(seed).program();
}
