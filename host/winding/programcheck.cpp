// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/programcheck.h"

#include <algorithm>
#include <cmath>

namespace {

/// What inches and sums of steps may be off by, in mm or N.
const double rounding = 1e-6;

// In the order of BlockFault::Kind.
const Finding::Kind writingKinds[] = {
    Finding::ControlCharacter, Finding::NonAscii,         Finding::NonAsciiInComment,
    Finding::StrayCharacter,   Finding::NumberMissing,    Finding::NumberMalformed,
    Finding::NumberTooLarge,   Finding::CommentNotClosed, Finding::TooManyWords,
    Finding::LineTooLong,
};

int slotOf(char letter)
{
    return letter - 'A';
}

bool isFunction(const GCodeWord &word)
{
    return word.letter == 'G' || word.letter == 'M';
}

/// Without zeros at its end.
QString numberText(double value)
{
    QString text = QString::number(value, 'f', 3);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QString::fromLatin1("0") : text;
}

QString withUnit(double value, MachineAxis::Unit unit)
{
    static const char *const units[] = {" mm", "\xb0", " N"};
    return numberText(value) + QLatin1String(units[unit]);
}

QString millimetres(double value)
{
    return withUnit(value, MachineAxis::Millimetres);
}

/// "G01", "G38.2".
QString functionText(char letter, int code)
{
    QString text = QString::fromLatin1("%1%2")
                       .arg(QLatin1Char(letter))
                       .arg(code / 10, 2, 10, QLatin1Char('0'));
    if (code % 10)
        text += QString::fromLatin1(".%1").arg(code % 10);
    return text;
}

/// As it is usually written.
QString wordText(const GCodeWord &word)
{
    if (isFunction(word) && word.code() >= 0)
        return functionText(word.letter, word.code());
    return QLatin1Char(word.letter) + numberText(word.value);
}

bool isUnknown(const WindingStep &step, int word)
{
    return word < GCodeBlock::mostWords && (step.unknownWords & (1u << word));
}

/// Whether a state that lasts has just become wrong; \a wasWrong keeps how it is.
bool isNews(bool *wasWrong, bool isWrong)
{
    const bool isNew = isWrong && !*wasWrong;
    *wasWrong = isWrong;
    return isNew;
}

bool isBefore(const Finding &first, const Finding &second)
{
    return first.line != second.line ? first.line < second.line : first.column < second.column;
}

} // namespace

ProgramCheck::ProgramCheck(const MachineProfile &profile) : m_profile(profile)
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        m_letters[slotOf(letter)].use = m_profile.use(letter);
        m_letters[slotOf(letter)].axis = m_profile.axis(letter);
    }
}

int ProgramCheck::count() const
{
    return m_counts[Finding::Note] + m_counts[Finding::Warning] + m_counts[Finding::Error];
}

bool ProgramCheck::forbidsSending() const
{
    return m_profile.rules().forbidsSending && m_counts[Finding::Error] > 0;
}

void ProgramCheck::add(const GCodeBlock &block, const WindingStep &step, const WindingModel &)
{
    if (step.isBehindEnd)
        return checkBehindEnd(block);
    if (block.faultCount > 0)
        checkWriting(block);
    if (block.wordCount == 0)
        return;
    m_last = placeOf(block);
    checkWords(block, step);
    checkDwell(block, step);
    checkMotion(block, step);
    checkTension(block, step);
    checkBobbin(block, step);
    checkWire(block, step);
}

void ProgramCheck::finish(const WindingModel &model)
{
    const WindingTotals totals = model.totals();
    if (m_last.line == 0)
        m_last.line = qMax(1, totals.lines);
    if (!m_isEnded && m_profile.rules().mustEnd)
        report(Finding::NoEnd, m_last, nameOf(MachineFunction::ProgramEnd));
    if (!m_isEnded)
        checkCut(m_last);
    if (totals.overfullLine > 0) {
        Place place;
        place.line = totals.overfullLine;
        report(Finding::Overfull, place, millimetres(m_profile.bobbin().flangeDiameter));
    }
    std::stable_sort(m_findings.begin(), m_findings.end(), isBefore);
}

ProgramCheck::Place ProgramCheck::placeOf(const GCodeBlock &block)
{
    if (block.wordCount == 0 && block.faultCount > 0)
        return placeOf(block, block.faults[0]);
    Place place;
    place.line = block.line;
    if (block.wordCount > 0) {
        const GCodeWord &last = block.words[block.wordCount - 1];
        place.column = block.words[0].column;
        place.length = last.column + last.length - place.column;
    }
    return place;
}

ProgramCheck::Place ProgramCheck::placeOf(const GCodeBlock &block, const GCodeWord &word)
{
    Place place;
    place.line = block.line;
    place.column = word.column;
    place.length = word.length;
    return place;
}

ProgramCheck::Place ProgramCheck::placeOf(const GCodeBlock &block, const BlockFault &fault)
{
    Place place;
    place.line = block.line;
    place.column = fault.column;
    place.length = fault.length;
    return place;
}

/// Of the word of the axis; of the whole block where it has none.
ProgramCheck::Place ProgramCheck::placeOf(const GCodeBlock &block, MachineAxis::Role role) const
{
    const MachineAxis *axis = m_profile.axis(role);
    const GCodeWord *word = axis ? block.word(axis->letter) : nullptr;
    return word ? placeOf(block, *word) : placeOf(block);
}

/// Of the first word that does it.
ProgramCheck::Place ProgramCheck::placeOf(const GCodeBlock &block,
                                          MachineFunction::Action action) const
{
    for (const GCodeWord &word : block) {
        const MachineFunction *function = isFunction(word) ? m_profile.function(word) : nullptr;
        if (function && function->action == action)
            return placeOf(block, word);
    }
    return placeOf(block);
}

/// Comments may stand there, in any language.
void ProgramCheck::checkBehindEnd(const GCodeBlock &block)
{
    bool isComment = block.wordCount == 0;
    for (int i = 0; i < block.faultCount; ++i)
        isComment = isComment && block.faults[i].kind == BlockFault::NonAsciiInComment;
    if (isNews(&m_isBehindEndSaid, m_isBehindEndSaid || !isComment))
        report(Finding::BehindEnd, placeOf(block));
}

void ProgramCheck::checkWriting(const GCodeBlock &block)
{
    for (int i = 0; i < block.faultCount; ++i) {
        const BlockFault &fault = block.faults[i];
        report(writingKinds[fault.kind], placeOf(block, fault));
    }
    m_counts[Finding::Error] += block.moreFaults;
}

void ProgramCheck::checkWords(const GCodeBlock &block, const WindingStep &step)
{
    // Of two words of one letter the last one counts.
    quint32 seen = 0;
    for (int i = block.wordCount - 1; i >= 0; --i) {
        const GCodeWord &word = block.words[i];
        const quint32 bit = 1u << slotOf(word.letter);
        if (isUnknown(step, i)) {
            report(Finding::UnknownWord, placeOf(block, word), wordText(word));
        } else if (isFunction(word)) {
            checkFunction(block, i);
        } else if (seen & bit) {
            report(Finding::DoubleWord, placeOf(block, word), wordText(word));
        } else {
            seen |= bit;
            checkValue(block, step, word);
        }
    }
}

/// Against the functions before it in the block.
void ProgramCheck::checkFunction(const GCodeBlock &block, int index)
{
    const GCodeWord &word = block.words[index];
    const MachineFunction *function = nullptr;
    for (int i = 0; i < index; ++i) {
        const GCodeWord &before = block.words[i];
        if (!isFunction(before))
            continue;
        if (before.letter == word.letter && before.code() == word.code())
            return report(Finding::DoubleWord, placeOf(block, word), wordText(word));
        if (!function)
            function = m_profile.function(word);
        const MachineFunction *other = m_profile.function(before);
        if (function && other && function->group > 0 && function->group == other->group)
            return report(Finding::GroupClash, placeOf(block, word), wordText(before),
                          wordText(word));
    }
}

void ProgramCheck::checkValue(const GCodeBlock &block, const WindingStep &step,
                              const GCodeWord &word)
{
    const Letter &letter = m_letters[slotOf(word.letter)];
    const bool isDwell = step.does(MachineFunction::Dwell);
    // In a dwell's block its letter is a time, whatever it is elsewhere.
    const bool isTime = isDwell && word.letter == m_profile.dwellLetter();
    switch (isTime ? MachineProfile::DwellUse : letter.use) {
    case MachineProfile::AxisUse:
        return checkAxis(placeOf(block, word), *letter.axis, step.to[letter.axis->slot]);
    case MachineProfile::SpeedUse:
        return checkSpeed(placeOf(block, word), word);
    case MachineProfile::PitchUse:
        return checkPitch(placeOf(block, word), step, word);
    case MachineProfile::ToolUse:
        return checkTool(placeOf(block, word), word);
    case MachineProfile::FeedUse:
    case MachineProfile::DwellUse:
        if (word.value < 0)
            report(Finding::NegativeValue, placeOf(block, word), wordText(word));
        else if (letter.use == MachineProfile::DwellUse && !isDwell)
            report(Finding::IdleWord, placeOf(block, word), wordText(word));
        return;
    default:
        return;
    }
}

void ProgramCheck::checkAxis(const Place &place, const MachineAxis &axis, double position)
{
    const bool isBeyond = position > axis.maximum + rounding;
    if (!isBeyond && position >= axis.minimum - rounding)
        return;
    report(Finding::AxisLimit, place, QString(QLatin1Char(axis.letter)),
           withUnit(position, axis.unit),
           withUnit(isBeyond ? axis.maximum : axis.minimum, axis.unit));
}

void ProgramCheck::checkSpeed(const Place &place, const GCodeWord &word)
{
    const double limit = m_profile.rules().speedLimit;
    if (word.value < 0)
        report(Finding::NegativeValue, place, wordText(word));
    else if (limit > 0 && word.value > limit)
        report(Finding::SpeedLimit, place, wordText(word),
               numberText(limit) + QLatin1String(" 1/min"));
}

void ProgramCheck::checkPitch(const Place &place, const WindingStep &step, const GCodeWord &word)
{
    const double limit = m_profile.rules().pitchLimit;
    if (word.value < 0)
        report(Finding::NegativeValue, place, wordText(word));
    else if (step.motion != MachineFunction::SynchronousMotion)
        report(Finding::IdleWord, place, wordText(word));
    else if (limit > 0 && step.pitch > limit + rounding)
        report(Finding::PitchLimit, place, millimetres(step.pitch), millimetres(limit));
}

void ProgramCheck::checkTool(const Place &place, const GCodeWord &word)
{
    const bool isNumber = word.value >= 0 && word.value == std::floor(word.value);
    if (!isNumber || !m_profile.hasTool(int(word.value)))
        report(Finding::UnknownTool, place, wordText(word));
}

void ProgramCheck::checkDwell(const GCodeBlock &block, const WindingStep &step)
{
    if (step.does(MachineFunction::Dwell) && !block.word(m_profile.dwellLetter()))
        report(Finding::NoDwellTime, placeOf(block, MachineFunction::Dwell),
               nameOf(MachineFunction::Dwell), QString(QLatin1Char(m_profile.dwellLetter())));
}

void ProgramCheck::checkMotion(const GCodeBlock &block, const WindingStep &step)
{
    switch (step.motion) {
    case MachineFunction::Ignored:
        if (isNews(&m_isMotionMissed, m_isMotionMissed || step.axesGiven != 0))
            reportMotion(Finding::NoMotion, block, nameOf(MachineFunction::FeedMotion));
        return;
    case MachineFunction::FeedMotion:
        if (isNews(&m_isFeedMissed, step.feed <= 0))
            reportMotion(Finding::NoFeed, block, nameOf(MachineProfile::FeedUse));
        return;
    case MachineFunction::SynchronousMotion:
        if (step.pitch == 0 && !hasNegativePitch(block))
            reportMotion(Finding::NoPitch, block, nameOf(MachineProfile::PitchUse));
        if (isNews(&m_isSpindleMissed, step.state.turning() == 0))
            reportMotion(Finding::SpindleStands, block, nameOf(MachineFunction::SpindleForward));
        return;
    default:
        return;
    }
}

void ProgramCheck::checkTension(const GCodeBlock &block, const WindingStep &step)
{
    const MachineRules &rules = m_profile.rules();
    const double tension = step.to[MachineAxis::Tension];
    const double jump = std::fabs(tension - step.from[MachineAxis::Tension]);
    if (rules.tensionJumpLimit > 0 && jump > rules.tensionJumpLimit + rounding)
        report(Finding::TensionJump, placeOf(block, MachineAxis::Tension),
               withUnit(jump, MachineAxis::Newtons),
               withUnit(rules.tensionJumpLimit, MachineAxis::Newtons));
    const bool isOver = rules.tensionLimit > 0 && step.state.turning() != 0
                        && tension > rules.tensionLimit + rounding;
    // Each line that asks for it, and the one that starts the spindle with it.
    const bool isAskedFor = step.axesGiven & (1u << MachineAxis::Tension);
    if (isNews(&m_isOverTension, isOver) || (isOver && isAskedFor))
        report(Finding::TensionLimit, placeOf(block, MachineAxis::Tension),
               withUnit(tension, MachineAxis::Newtons),
               withUnit(rules.tensionLimit, MachineAxis::Newtons));
}

void ProgramCheck::checkBobbin(const GCodeBlock &block, const WindingStep &step)
{
    const MachineBobbin &bobbin = m_profile.bobbin();
    if (bobbin.width <= 0 || !step.isWinding())
        return;
    const double ends[] = {step.to[MachineAxis::Traverse], step.from[MachineAxis::Traverse]};
    for (double x : ends) {
        if (x >= bobbin.left - rounding && x <= bobbin.right() + rounding)
            continue;
        return report(Finding::OutsideBobbin, placeOf(block, MachineAxis::Traverse), millimetres(x),
                      millimetres(bobbin.left), millimetres(bobbin.right()));
    }
}

void ProgramCheck::checkWire(const GCodeBlock &block, const WindingStep &step)
{
    if (step.does(MachineFunction::CutWire))
        m_isWireOut = false;
    if (step.isWinding() || step.does(MachineFunction::ClampWire))
        m_isWireOut = true;
    if (step.state.isClamped)
        m_isClampMissed = false;
    else if (step.isWinding() && m_profile.rules().mustClamp && isNews(&m_isClampMissed, true))
        reportMotion(Finding::NotClamped, block, nameOf(MachineFunction::ClampWire));
    if (!step.does(MachineFunction::ProgramEnd))
        return;
    m_isEnded = true;
    checkCut(placeOf(block, MachineFunction::ProgramEnd));
}

void ProgramCheck::checkCut(const Place &place)
{
    if (m_isWireOut && m_profile.rules().mustCut)
        report(Finding::NotCut, place, nameOf(MachineFunction::CutWire));
}

/// The word that asks for a motion; where none does, the first axis.
const GCodeWord *ProgramCheck::motionWord(const GCodeBlock &block) const
{
    const GCodeWord *axis = nullptr;
    for (const GCodeWord &word : block) {
        const MachineFunction *function = isFunction(word) ? m_profile.function(word) : nullptr;
        if (function && function->isMotion())
            return &word;
        if (!axis && m_letters[slotOf(word.letter)].use == MachineProfile::AxisUse)
            axis = &word;
    }
    return axis;
}

bool ProgramCheck::hasNegativePitch(const GCodeBlock &block) const
{
    for (const GCodeWord &word : block) {
        if (m_letters[slotOf(word.letter)].use == MachineProfile::PitchUse)
            return word.value < 0;
    }
    return false;
}

/// The word by which a program asks for it; of several, the last one of the profile, which for an
/// end is the usual one. Empty where the profile has none.
QString ProgramCheck::nameOf(MachineFunction::Action action) const
{
    QString name;
    for (const MachineFunction &function : m_profile.functions()) {
        if (function.action == action)
            name = functionText(function.letter, function.code);
    }
    return name;
}

QString ProgramCheck::nameOf(MachineProfile::Use use) const
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (m_profile.use(letter) == use)
            return QString(QLatin1Char(letter));
    }
    return QString();
}

void ProgramCheck::report(Finding::Kind kind, const Place &place, const QString &first,
                          const QString &second, const QString &third)
{
    const Finding::Severity severity = Finding::severityOf(kind);
    ++m_counts[severity];
    if (m_kept[severity] == mostKept)
        return;
    ++m_kept[severity];
    Finding finding;
    finding.kind = kind;
    finding.severity = severity;
    finding.line = place.line;
    finding.column = place.column;
    finding.length = place.length;
    finding.arguments << first << second << third;
    m_findings.append(finding);
}

void ProgramCheck::reportMotion(Finding::Kind kind, const GCodeBlock &block, const QString &second)
{
    const GCodeWord *word = motionWord(block);
    report(kind, word ? placeOf(block, *word) : placeOf(block), word ? wordText(*word) : QString(),
           second);
}
