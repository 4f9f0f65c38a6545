// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/modalwords.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QTextBlock>

namespace {

const int codesPerNumber = 10;
const int digitsOfCode = 2;
const int digitsOfValue = 10;
// A look at the clock takes as long as a few lines.
const int linesPerLook = 64;

/// "G01", as most programs have it, whatever this one does.
QString textOf(const GCodeWord &word)
{
    const int code = word.code();
    const bool isFunction = word.letter == 'G' || word.letter == 'M';
    QString text(QLatin1Char(word.letter));
    if (!isFunction || code < 0)
        return text + QString::number(word.value, 'g', digitsOfValue);
    text += QString::number(code / codesPerNumber).rightJustified(digitsOfCode, QLatin1Char('0'));
    const int tenths = code % codesPerNumber;
    return tenths == 0 ? text : text + QLatin1Char('.') + QString::number(tenths);
}

} // namespace

void ModalWords::addAbove(const GCodeBlock &block)
{
    if (m_isEnd)
        return;
    // A program that ended above this line says nothing of it.
    m_isEnd = does(block, MachineFunction::ProgramEnd);
    if (m_isEnd)
        return;
    const bool isDwell = does(block, MachineFunction::Dwell);
    // Of two words of one kind the last one counts.
    for (int i = block.wordCount - 1; i >= 0; --i) {
        const Kind kind = kindOf(block.words[i], isDwell);
        if (kind != kindCount && m_words[kind].isEmpty())
            m_words[kind] = textOf(block.words[i]);
    }
}

bool ModalWords::isComplete() const
{
    if (m_isEnd || !m_profile.isValid())
        return true;
    for (const QString &word : m_words) {
        if (word.isEmpty())
            return false;
    }
    return true;
}

QString ModalWords::text() const
{
    QStringList words;
    for (const QString &word : m_words) {
        if (!word.isEmpty())
            words.append(word);
    }
    return words.join(QLatin1String(" "));
}

QString ModalWords::before(const QTextBlock &line, const MachineProfile &profile)
{
    ModalWords words(profile);
    BlockReader reader;
    QElapsedTimer time;
    time.start();
    int lines = 0;
    for (QTextBlock above = line.previous(); above.isValid() && !words.isComplete();
         above = above.previous()) {
        words.addAbove(reader.read(above.text()));
        if (++lines % linesPerLook == 0 && time.hasExpired(lookBackMs))
            break;
    }
    return words.text();
}

std::function<QString(const QTextBlock &)> ModalWords::hintBy(const MachineProfile &profile)
{
    return [profile](const QTextBlock &line) { return before(line, profile); };
}

ModalWords::Kind ModalWords::kindOf(MachineFunction::Action action)
{
    switch (action) {
    case MachineFunction::RapidMotion:
    case MachineFunction::FeedMotion:
    case MachineFunction::SynchronousMotion:
        return Motion;
    case MachineFunction::Absolute:
    case MachineFunction::Relative:
        return Positions;
    case MachineFunction::Inches:
    case MachineFunction::Millimetres:
        return Units;
    case MachineFunction::SpindleForward:
    case MachineFunction::SpindleReverse:
    case MachineFunction::SpindleStop:
        return Spindle;
    default:
        return kindCount;
    }
}

ModalWords::Kind ModalWords::kindOf(const GCodeWord &word, bool isDwell) const
{
    if (isDwell && word.letter == m_profile.dwellLetter())
        return kindCount;
    switch (m_profile.use(word.letter)) {
    case MachineProfile::FunctionUse: {
        const MachineFunction *function = m_profile.function(word);
        return function ? kindOf(function->action) : kindCount;
    }
    case MachineProfile::FeedUse:
        return Feed;
    case MachineProfile::SpeedUse:
        return Speed;
    case MachineProfile::ToolUse:
        return Tool;
    default:
        return kindCount;
    }
}

bool ModalWords::does(const GCodeBlock &block, MachineFunction::Action action) const
{
    for (const GCodeWord &word : block) {
        if (m_profile.use(word.letter) != MachineProfile::FunctionUse)
            continue;
        const MachineFunction *function = m_profile.function(word);
        if (function && function->action == action)
            return true;
    }
    return false;
}
