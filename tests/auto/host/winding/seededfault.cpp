// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "seededfault.h"

#include "seededrandom.h"

namespace {

const int nowhere = -1;

/// Where the comment begins, or the end.
int codeEnd(const QByteArray &text)
{
    const int comment = text.indexOf(';');
    return comment < 0 ? text.size() : comment;
}

/// Index of the word's letter; nowhere if the line has none.
int wordAt(const QByteArray &text, char letter)
{
    const int at = text.indexOf(letter);
    return at < codeEnd(text) ? at : nowhere;
}

bool has(const QByteArray &text, char letter)
{
    return wordAt(text, letter) != nowhere;
}

/// Index behind the word's last digit.
int wordEnd(const QByteArray &text, int at)
{
    int end = at + 1;
    while (end < text.size() && QByteArray("0123456789.+-").contains(text.at(end)))
        ++end;
    return end;
}

double valueOf(const QByteArray &text, char letter)
{
    const int at = wordAt(text, letter);
    return text.mid(at + 1, wordEnd(text, at) - at - 1).toDouble();
}

/// Puts \a word in place of the one with this letter; an empty one deletes it.
QByteArray withWord(QByteArray text, char letter, const QByteArray &word)
{
    const int at = wordAt(text, letter);
    return text.replace(at, wordEnd(text, at) - at, word);
}

/// Behind the last word, before a comment.
QByteArray withMore(QByteArray text, const QByteArray &more)
{
    return text.insert(codeEnd(text), " " + more + " ");
}

/// Plants one fault, and tells the index of its line.
class Planter
{
public:
    Planter(const ProgramLines &program, quint32 seed) : lines(program), random(seed) {}

    /// Index of a line of that role, with all of these letters and with none of those; nowhere if
    /// the program has none.
    int pick(ProgramLine::Role role, const char *letters = "", const char *without = "")
    {
        QList<int> places;
        for (int i = 0; i < lines.size(); ++i) {
            if (lines.at(i).role == role && hasAll(lines.at(i).text, letters)
                && hasNone(lines.at(i).text, without))
                places.append(i);
        }
        return places.isEmpty() ? nowhere : places.at(random.below(places.size()));
    }

    /// The next line of that role behind \a index; nowhere if there is none before the coil's end.
    int next(int index, ProgramLine::Role role) const
    {
        for (int i = index + 1; index != nowhere && i < lines.size(); ++i) {
            if (lines.at(i).role == role)
                return i;
            if (lines.at(i).role == ProgramLine::Cut)
                return nowhere;
        }
        return nowhere;
    }

    int last(ProgramLine::Role role) const
    {
        for (int i = lines.size() - 1; i >= 0; --i) {
            if (lines.at(i).role == role)
                return i;
        }
        return nowhere;
    }

    int first(ProgramLine::Role role) const
    {
        for (int i = 0; i < lines.size(); ++i) {
            if (lines.at(i).role == role)
                return i;
        }
        return nowhere;
    }

    QByteArray &text(int index) { return lines[index].text; }

    int set(int index, char letter, const QByteArray &word)
    {
        if (index != nowhere)
            text(index) = withWord(text(index), letter, word);
        return index;
    }

    int append(int index, const QByteArray &more)
    {
        if (index != nowhere)
            text(index) = withMore(text(index), more);
        return index;
    }

    /// Deletes the line; \a found is the index where the fault shows then.
    int remove(int index, int found)
    {
        if (index == nowhere || found == nowhere)
            return nowhere;
        lines.removeAt(index);
        return found - (found > index ? 1 : 0);
    }

    bool isInInches() const
    {
        for (const ProgramLine &line : lines) {
            if (line.role == ProgramLine::Mode && line.text.startsWith("G20"))
                return true;
        }
        return false;
    }
    bool isRelative() const
    {
        for (const ProgramLine &line : lines) {
            if (line.role == ProgramLine::Mode && line.text.startsWith("G91"))
                return true;
        }
        return false;
    }
    /// In the program's unit.
    QByteArray length(double mm) const
    {
        return QByteArray::number(isInInches() ? mm / 25.4 : mm, 'f', 4);
    }

    ProgramLines lines;
    SeededRandom random;

private:
    static bool hasAll(const QByteArray &text, const char *letters)
    {
        for (; *letters; ++letters) {
            if (!has(text, *letters))
                return false;
        }
        return true;
    }
    static bool hasNone(const QByteArray &text, const char *letters)
    {
        for (; *letters; ++letters) {
            if (has(text, *letters))
                return false;
        }
        return true;
    }
};

// The faults. Each gives the index of the line where an operator would look for it, or nowhere.

int unknownLetter(Planter *p)
{
    return p->append(p->pick(ProgramLine::Wind),
                     QByteArray(1, p->random.oneOf("ABCDEHIJLOPQRVW")) + "5");
}
int unknownMotion(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind), 'G',
                  "G" + QByteArray::number(p->random.between(34, 80)));
}
int unknownSwitch(Planter *p)
{
    return p->set(p->pick(ProgramLine::Start), 'M',
                  "M" + QByteArray::number(p->random.between(31, 99)));
}
int unknownTube(Planter *p)
{
    return p->set(p->pick(ProgramLine::Mode, "T"), 'T', "T9");
}
int secondTarget(Planter *p)
{
    return p->append(p->pick(ProgramLine::Wind, "X"), "X1");
}
int secondFeed(Planter *p)
{
    return p->append(p->pick(ProgramLine::Feed, "F"), "F100");
}
int twoMotions(Planter *p)
{
    return p->append(p->pick(ProgramLine::Wind), "G01");
}
int startAndStop(Planter *p)
{
    return p->append(p->pick(ProgramLine::Start), "M05");
}
int twoUnits(Planter *p)
{
    const int index = p->first(ProgramLine::Mode);
    return p->append(index, has(p->text(index), 'G') && p->isInInches() ? "G21" : "G20");
}
int pitchOfATravel(Planter *p)
{
    return p->append(p->pick(ProgramLine::Travel, "X"), "K0.25");
}
int backwardSpeed(Planter *p)
{
    return p->set(p->pick(ProgramLine::Speed), 'S', "S-300");
}
int backwardDwell(Planter *p)
{
    return p->set(p->pick(ProgramLine::Dwell), 'F', "F-0.5");
}
int motionForgotten(Planter *p)
{
    return p->set(p->first(ProgramLine::Travel), 'G', "");
}
int feedForgotten(Planter *p)
{
    const int index = p->first(ProgramLine::Tension);
    return index == p->first(ProgramLine::Feed) ? nowhere : p->set(index, 'F', "");
}
int pitchForgotten(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "K"), 'K', "");
}
int pitchOfNothing(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "K"), 'K', "K0");
}
int dwellTimeForgotten(Planter *p)
{
    return p->set(p->pick(ProgramLine::Dwell), 'F', "");
}
int startForgotten(Planter *p)
{
    const int index = p->pick(ProgramLine::Start);
    return p->remove(index, p->next(index, ProgramLine::Wind));
}
int speedOfNothing(Planter *p)
{
    return p->append(p->pick(ProgramLine::Wind, "", "S"), "S0");
}
int beyondTheTraverse(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "X"), 'X',
                  "X" + p->length(p->random.between(100, 900)));
}
int beforeTheTraverse(Planter *p)
{
    return p->set(p->pick(ProgramLine::Travel, "X"), 'X',
                  "X-" + p->length(p->random.between(100, 900)));
}
int beyondTheGuide(Planter *p)
{
    return p->set(p->pick(ProgramLine::Feed, "Y"), 'Y',
                  "Y" + p->length(p->random.between(100, 900)));
}
int beyondTheBrake(Planter *p)
{
    return p->set(p->pick(ProgramLine::Tension, "U"), 'U',
                  "U" + QByteArray::number(p->random.between(13, 90)));
}
int pointForgotten(Planter *p)
{
    const int index = p->pick(ProgramLine::Wind, "X");
    const QByteArray text = index == nowhere ? QByteArray() : p->text(index);
    const int point = text.indexOf('.', wordAt(text, 'X'));
    if (index == nowhere || point < 0 || point > wordEnd(text, wordAt(text, 'X'))
        || valueOf(text, 'X') < 1 || p->isInInches())
        return nowhere;
    // "X12.63" becomes "X1263".
    p->text(index) =
        withWord(text, 'X', "X" + QByteArray::number(valueOf(text, 'X') * 100, 'f', 0));
    return index;
}
int tooFast(Planter *p)
{
    return p->set(p->pick(ProgramLine::Speed), 'S',
                  "S" + QByteArray::number(p->random.between(2001, 9999)));
}
int tooFastWhileWinding(Planter *p)
{
    return p->append(p->pick(ProgramLine::Wind, "", "S"), "S4000");
}
int tooWide(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "K"), 'K', "K" + p->length(25));
}
int tooTight(Planter *p)
{
    // While the spindle turns, and far enough from what was before.
    const int layer = p->pick(ProgramLine::Feed, "Y");
    if (layer == nowhere || p->isRelative() || p->next(layer, ProgramLine::Wind) == nowhere)
        return nowhere;
    ProgramLine line = {"G01 U9.5 F100", ProgramLine::Tension};
    p->lines.insert(layer, line);
    return layer;
}
int tensionAtOnce(Planter *p)
{
    // The first of the steps with which a coil begins.
    const int index = p->next(p->pick(ProgramLine::Clamp), ProgramLine::Tension);
    return index == nowhere ? nowhere : p->set(index, 'U', "U5");
}
int besideTheBobbin(Planter *p)
{
    const int index = p->pick(ProgramLine::Wind, "X");
    return p->isRelative() ? nowhere
                           : p->set(index, 'X', "X" + p->length(p->random.between(21, 39)));
}
int beforeTheBobbin(Planter *p)
{
    const int index = p->pick(ProgramLine::Wind, "X");
    return p->isRelative() ? nowhere
                           : p->set(index, 'X', "X-" + p->length(p->random.between(1, 9)));
}
int coilTooThick(Planter *p)
{
    // From one layer on the guide is too far away.
    const int layer = p->pick(ProgramLine::Feed, "Y");
    if (layer == nowhere || p->isRelative() || p->next(layer, ProgramLine::Wind) == nowhere)
        return nowhere;
    for (int i = layer; i != nowhere; i = p->next(i, ProgramLine::Feed)) {
        const double y = valueOf(p->text(i), 'Y') * (p->isInInches() ? 25.4 : 1);
        p->set(i, 'Y', "Y" + p->length(y + 25));
    }
    return p->next(layer, ProgramLine::Wind);
}
int clampForgotten(Planter *p)
{
    const int index = p->pick(ProgramLine::Clamp);
    return p->remove(index, p->next(index, ProgramLine::Wind));
}
int cutForgotten(Planter *p)
{
    return p->remove(p->last(ProgramLine::Cut), p->last(ProgramLine::End));
}
int cutTooEarly(Planter *p)
{
    const int index = p->pick(ProgramLine::Wind);
    if (index == nowhere)
        return nowhere;
    const ProgramLine line = {"M12", ProgramLine::Cut};
    p->lines.insert(index, line);
    return index + 1;
}
int endForgotten(Planter *p)
{
    p->lines.removeAt(p->last(ProgramLine::End));
    int index = p->lines.size() - 1;
    while (p->lines.at(index).role == ProgramLine::Remark)
        --index;
    return index;
}
int lineBehindTheEnd(Planter *p)
{
    const ProgramLine remark = {"; The old end", ProgramLine::Remark};
    const ProgramLine line = {"G00 X0", ProgramLine::Travel};
    p->lines << remark << line << line;
    return p->lines.size() - 2;
}
int endTooEarly(Planter *p)
{
    const int index = p->pick(ProgramLine::Cut);
    const ProgramLine line = {"M30", ProgramLine::End};
    p->lines.insert(index + 1, line);
    int behind = index + 2;
    while (p->lines.at(behind).role == ProgramLine::Remark)
        ++behind;
    return behind;
}
int foreignLetter(Planter *p)
{
    // The Cyrillic one looks the same.
    return p->set(p->pick(ProgramLine::Wind, "X"), 'X',
                  "\xd0\xa5"
                  "5.5");
}
int typographicMinus(Planter *p)
{
    return p->set(p->pick(ProgramLine::Travel, "X"), 'X',
                  "X\xe2\x88\x92"
                  "5");
}
int hardBlank(Planter *p)
{
    const int index = p->pick(ProgramLine::Wind);
    if (index != nowhere)
        p->text(index).insert(wordAt(p->text(index), 'K'), "\xc2\xa0");
    return index;
}
int controlCharacter(Planter *p)
{
    const int index = p->pick(ProgramLine::Wind);
    static const char controls[] = {'\0', '\a', '\b', '\x1a', '\x1b', '\x7f'};
    if (index != nowhere)
        p->text(index).insert(p->random.below(codeEnd(p->text(index)) + 1),
                              controls[p->random.below(6)]);
    return index;
}
int decimalComma(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "X"), 'X', "X12,5");
}
int twoPoints(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "X"), 'X', "X1.2.5");
}
int twoSigns(Planter *p)
{
    return p->set(p->pick(ProgramLine::Travel, "X"), 'X', "X--5");
}
int letterForZero(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "X"), 'X', "X1O.5");
}
int numberForgotten(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "X"), 'X', "X");
}
int exponent(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "X"), 'X', "X1.5e1");
}
int numberTooLarge(Planter *p)
{
    return p->set(p->pick(ProgramLine::Wind, "X"), 'X', "X99999999999");
}
int semicolonForgotten(Planter *p)
{
    const int index = p->pick(ProgramLine::Wind);
    const ProgramLine line = {"next layer", ProgramLine::Remark};
    p->lines.insert(index, line);
    return index;
}
int bracketForgotten(Planter *p)
{
    return p->append(p->pick(ProgramLine::Wind), "(tape here");
}
int strayCharacter(Planter *p)
{
    return p->append(p->pick(ProgramLine::Wind), QByteArray(1, p->random.oneOf("?*=#$&_\"'!")));
}

const struct
{
    const char *name;
    Finding::Kind kind;
    int (*plant)(Planter *);
} faults[] = {
    {"unknown letter", Finding::UnknownWord, &unknownLetter},
    {"unknown motion", Finding::UnknownWord, &unknownMotion},
    {"unknown switch", Finding::UnknownWord, &unknownSwitch},
    {"unknown guide tube", Finding::UnknownTool, &unknownTube},
    {"second target", Finding::DoubleWord, &secondTarget},
    {"second feed", Finding::DoubleWord, &secondFeed},
    {"two motions", Finding::GroupClash, &twoMotions},
    {"start and stop", Finding::GroupClash, &startAndStop},
    {"two units", Finding::GroupClash, &twoUnits},
    {"pitch of a travel", Finding::IdleWord, &pitchOfATravel},
    {"negative speed", Finding::NegativeValue, &backwardSpeed},
    {"negative dwell", Finding::NegativeValue, &backwardDwell},
    {"motion forgotten", Finding::NoMotion, &motionForgotten},
    {"feed forgotten", Finding::NoFeed, &feedForgotten},
    {"pitch forgotten", Finding::NoPitch, &pitchForgotten},
    {"pitch of nothing", Finding::NoPitch, &pitchOfNothing},
    {"time of a dwell forgotten", Finding::NoDwellTime, &dwellTimeForgotten},
    {"start forgotten", Finding::SpindleStands, &startForgotten},
    {"speed of nothing", Finding::SpindleStands, &speedOfNothing},
    {"beyond the traverse", Finding::AxisLimit, &beyondTheTraverse},
    {"before the traverse", Finding::AxisLimit, &beforeTheTraverse},
    {"beyond the guide's way", Finding::AxisLimit, &beyondTheGuide},
    {"beyond the brake", Finding::AxisLimit, &beyondTheBrake},
    {"point forgotten", Finding::AxisLimit, &pointForgotten},
    {"too fast", Finding::SpeedLimit, &tooFast},
    {"too fast while winding", Finding::SpeedLimit, &tooFastWhileWinding},
    {"pitch too wide", Finding::PitchLimit, &tooWide},
    {"tension too high", Finding::TensionLimit, &tooTight},
    {"tension at once", Finding::TensionJump, &tensionAtOnce},
    {"beside the bobbin", Finding::OutsideBobbin, &besideTheBobbin},
    {"before the bobbin", Finding::OutsideBobbin, &beforeTheBobbin},
    {"coil too thick", Finding::Overfull, &coilTooThick},
    {"clamp forgotten", Finding::NotClamped, &clampForgotten},
    {"cut forgotten", Finding::NotCut, &cutForgotten},
    {"cut too early", Finding::NotClamped, &cutTooEarly},
    {"end forgotten", Finding::NoEnd, &endForgotten},
    {"line behind the end", Finding::BehindEnd, &lineBehindTheEnd},
    {"end too early", Finding::BehindEnd, &endTooEarly},
    {"letter of another alphabet", Finding::NonAscii, &foreignLetter},
    {"typographic minus", Finding::NonAscii, &typographicMinus},
    {"hard blank", Finding::NonAscii, &hardBlank},
    {"control character", Finding::ControlCharacter, &controlCharacter},
    {"decimal comma", Finding::StrayCharacter, &decimalComma},
    {"two points", Finding::NumberMalformed, &twoPoints},
    {"two signs", Finding::NumberMalformed, &twoSigns},
    {"letter for zero", Finding::UnknownWord, &letterForZero},
    {"number forgotten", Finding::NumberMissing, &numberForgotten},
    {"exponent", Finding::UnknownWord, &exponent},
    {"number too large", Finding::NumberTooLarge, &numberTooLarge},
    {"semicolon forgotten", Finding::NumberMissing, &semicolonForgotten},
    {"bracket forgotten", Finding::CommentNotClosed, &bracketForgotten},
    {"stray character", Finding::StrayCharacter, &strayCharacter},
};

} // namespace

int SeededFault::kindCount()
{
    return int(sizeof faults / sizeof *faults);
}

const char *SeededFault::nameOf(int kind)
{
    return faults[kind].name;
}

SeededFault SeededFault::plant(int kind, const ProgramLines &program, quint32 seed)
{
    Planter planter(program, seed);
    SeededFault fault;
    fault.kind = faults[kind].kind;
    fault.line = faults[kind].plant(&planter) + 1;
    fault.text = RightProgram::text(planter.lines);
    return fault;
}
