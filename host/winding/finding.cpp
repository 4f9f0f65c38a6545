// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/finding.h"

namespace {

struct KindRow
{
    Finding::Severity severity;
    const char *name;
    const char *text;
    const char *advice;
};

// In the order of Finding::Kind. %1 is the word or the letter that it is about, as a rule.
const KindRow rows[] = {
    {Finding::Error, "control-character",
     QT_TRANSLATE_NOOP("Finding", "A control character stands here, which nobody sees."),
     QT_TRANSLATE_NOOP("Finding", "Delete it, or write the line anew.")},
    {Finding::Error, "non-ascii",
     QT_TRANSLATE_NOOP("Finding", "A character stands here that machines don't know."),
     QT_TRANSLATE_NOOP("Finding", "Write it anew: it may look like another one.")},
    {Finding::Note, "non-ascii-in-comment",
     QT_TRANSLATE_NOOP("Finding", "The comment has a character that is not ASCII."),
     QT_TRANSLATE_NOOP("Finding", "Another panel may show another one in its place.")},
    {Finding::Error, "stray-character",
     QT_TRANSLATE_NOOP("Finding", "What stands here is no word."),
     QT_TRANSLATE_NOOP("Finding", "Delete it, or put a \";\" before a comment.")},
    {Finding::Error, "number-missing",
     QT_TRANSLATE_NOOP("Finding", "The letter here has no number."),
     QT_TRANSLATE_NOOP("Finding", "Add the number, or delete the letter.")},
    {Finding::Error, "number-malformed",
     QT_TRANSLATE_NOOP("Finding", "The number here cannot be read."),
     QT_TRANSLATE_NOOP("Finding", "Write it with one point and one sign at most.")},
    {Finding::Error, "number-too-large",
     QT_TRANSLATE_NOOP("Finding", "The number here is too large for any machine."),
     QT_TRANSLATE_NOOP("Finding", "Correct the number.")},
    {Finding::Error, "comment-not-closed",
     QT_TRANSLATE_NOOP("Finding", "The comment that begins here has no end."),
     QT_TRANSLATE_NOOP("Finding", "Add a \")\", or begin it with \";\".")},
    {Finding::Error, "too-many-words",
     QT_TRANSLATE_NOOP("Finding", "The line has too many words: the rest is not read."),
     QT_TRANSLATE_NOOP("Finding", "Use several lines.")},
    {Finding::Error, "line-too-long",
     QT_TRANSLATE_NOOP("Finding", "The line is too long: the rest is not read."),
     QT_TRANSLATE_NOOP("Finding", "Use several lines.")},

    {Finding::Error, "unknown-word", QT_TRANSLATE_NOOP("Finding", "%1 is unknown to this profile."),
     QT_TRANSLATE_NOOP("Finding", "Correct it, or check with the profile of the machine.")},
    {Finding::Error, "unknown-tool",
     QT_TRANSLATE_NOOP("Finding", "%1: the machine has no such guide tube."),
     QT_TRANSLATE_NOOP("Finding", "Correct the number, or add the tube to the profile.")},
    {Finding::Error, "double-word",
     QT_TRANSLATE_NOOP("Finding", "%1 does not count: another one stands in the line."),
     QT_TRANSLATE_NOOP("Finding", "Keep one of them.")},
    {Finding::Error, "group-clash",
     QT_TRANSLATE_NOOP("Finding", "%1 and %2 in one line contradict each other."),
     QT_TRANSLATE_NOOP("Finding", "Keep one of them, or use two lines.")},
    {Finding::Warning, "idle-word", QT_TRANSLATE_NOOP("Finding", "%1 has no effect in this line."),
     QT_TRANSLATE_NOOP("Finding", "Delete it, or add what it belongs to.")},
    {Finding::Error, "negative-value", QT_TRANSLATE_NOOP("Finding", "%1 must not be negative."),
     QT_TRANSLATE_NOOP("Finding", "Correct the number.")},

    {Finding::Error, "no-motion",
     QT_TRANSLATE_NOOP("Finding", "%1 moves, but no motion is in force."),
     QT_TRANSLATE_NOOP("Finding", "Put a motion before it, such as %2.")},
    {Finding::Error, "no-feed", QT_TRANSLATE_NOOP("Finding", "%1 moves without a feed."),
     QT_TRANSLATE_NOOP("Finding", "Add %2 with the feed.")},
    {Finding::Error, "no-pitch", QT_TRANSLATE_NOOP("Finding", "%1 winds without a pitch."),
     QT_TRANSLATE_NOOP("Finding", "Add %2 with the pitch.")},
    {Finding::Error, "no-dwell-time", QT_TRANSLATE_NOOP("Finding", "%1 waits without a time."),
     QT_TRANSLATE_NOOP("Finding", "Add %2 with the time.")},
    {Finding::Error, "spindle-stands",
     QT_TRANSLATE_NOOP("Finding", "%1 waits for the spindle, which stands."),
     QT_TRANSLATE_NOOP("Finding", "Start the spindle before, by %2 and a speed.")},

    {Finding::Error, "axis-limit",
     QT_TRANSLATE_NOOP("Finding", "%1 goes to %2, beyond the axis: its end is %3."),
     QT_TRANSLATE_NOOP("Finding", "Correct the number or the position before.")},
    {Finding::Error, "speed-limit",
     QT_TRANSLATE_NOOP("Finding", "%1 is faster than the spindle may turn: %2."),
     QT_TRANSLATE_NOOP("Finding", "Use a lower speed.")},
    {Finding::Error, "pitch-limit",
     QT_TRANSLATE_NOOP("Finding", "The pitch %1 is above the limit of %2."),
     QT_TRANSLATE_NOOP("Finding", "Use a smaller pitch.")},
    {Finding::Error, "tension-limit",
     QT_TRANSLATE_NOOP("Finding", "The spindle turns at a tension of %1; the limit is %2."),
     QT_TRANSLATE_NOOP("Finding", "Use less tension: the wire may break.")},
    {Finding::Warning, "tension-jump",
     QT_TRANSLATE_NOOP("Finding", "The tension jumps by %1; the limit is %2."),
     QT_TRANSLATE_NOOP("Finding", "Use several steps.")},
    {Finding::Error, "outside-bobbin",
     QT_TRANSLATE_NOOP("Finding", "The wire is laid at %1; the bobbin is from %2 to %3."),
     QT_TRANSLATE_NOOP("Finding", "Stay between the flanges, or stop the spindle.")},
    {Finding::Error, "overfull",
     QT_TRANSLATE_NOOP("Finding", "The coil grows over the flange, which has %1."),
     QT_TRANSLATE_NOOP("Finding", "Use fewer turns, a thinner wire or another bobbin.")},

    {Finding::Error, "not-clamped",
     QT_TRANSLATE_NOOP("Finding", "The winding begins before the wire is clamped."),
     QT_TRANSLATE_NOOP("Finding", "Clamp the wire first, by %2.")},
    {Finding::Error, "not-cut",
     QT_TRANSLATE_NOOP("Finding", "The program ends before the wire is cut."),
     QT_TRANSLATE_NOOP("Finding", "Cut the wire first, by %1.")},
    {Finding::Error, "no-end", QT_TRANSLATE_NOOP("Finding", "The program has no end."),
     QT_TRANSLATE_NOOP("Finding", "Add %1 as the last line.")},
    {Finding::Warning, "behind-end",
     QT_TRANSLATE_NOOP("Finding", "The program has ended: this is never performed."),
     QT_TRANSLATE_NOOP("Finding", "Delete it, or put the end behind it.")},
};

static_assert(sizeof rows / sizeof *rows == Finding::kindCount, "a row for each kind");

/// All at once: what stands for "%1" may itself have a "%2" in it.
QString filledIn(const char *sentence, const QStringList &arguments)
{
    const QString pattern = Finding::tr(sentence);
    QString text;
    for (int i = 0; i < pattern.size(); ++i) {
        const int number = pattern.at(i) == QLatin1Char('%') && i + 1 < pattern.size()
                               ? pattern.at(i + 1).digitValue()
                               : 0;
        if (number >= 1 && number <= 3) {
            text += arguments.value(number - 1);
            ++i;
        } else {
            text += pattern.at(i);
        }
    }
    return text;
}

} // namespace

QString Finding::text() const
{
    return filledIn(rows[kind].text, arguments);
}

QString Finding::advice() const
{
    return filledIn(rows[kind].advice, arguments);
}

QByteArray Finding::name(Kind kind)
{
    return rows[kind].name;
}

QByteArray Finding::name(Severity severity)
{
    return severity == Error ? "error" : severity == Warning ? "warning" : "note";
}

Finding::Severity Finding::severityOf(Kind kind)
{
    return rows[kind].severity;
}
