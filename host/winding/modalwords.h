// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MODALWORDS_H
#define MODALWORDS_H

#include "base/filarixhostglobal.h"
#include "winding/machineprofile.h"

#include <QString>

#include <functional>

class QTextBlock;

/// The words that hold at a line of a program, from lines above it: "G90 G01 F200 S300 M03".
///
///     keypadHint = ModalWords::before(editor->textCursor().block(), profile);
///
/// The words are found from the line upward, and the first one found of its kind holds. The kinds
/// are positions, motion, feed, speed, spindle, units and tool.
class FILARIX_HOST_EXPORT ModalWords
{
public:
    /// How long before() looks back at most, in milliseconds. A word that stands farther up is left
    /// out.
    static const int lookBackMs = 8;

    /// \a profile tells what each word does; one that isn't valid knows none.
    explicit ModalWords(const MachineProfile &profile) : m_profile(profile) {}

    /// Takes the line above those that were taken so far.
    void addAbove(const GCodeBlock &block);
    /// Whether nothing above can change text() any more.
    bool isComplete() const;
    /// The words in a fixed order, with blanks between; empty for none.
    QString text() const;

    /// text() for \a line of a document. \a line itself counts for nothing.
    static QString before(const QTextBlock &line, const MachineProfile &profile);
    /// before() by \a profile, for LineEntry::setHint().
    static std::function<QString(const QTextBlock &)> hintBy(const MachineProfile &profile);

private:
    enum Kind { Positions, Motion, Feed, Speed, Spindle, Units, Tool, kindCount };

    static Kind kindOf(MachineFunction::Action action);
    Kind kindOf(const GCodeWord &word, bool isDwell) const;
    bool does(const GCodeBlock &block, MachineFunction::Action action) const;

    MachineProfile m_profile;
    QString m_words[kindCount];
    bool m_isEnd = false;
};

#endif // MODALWORDS_H
