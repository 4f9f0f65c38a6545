// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMCHECK_H
#define PROGRAMCHECK_H

#include "base/filarixhostglobal.h"
#include "winding/finding.h"
#include "winding/programreading.h"

#include <QVector>

/// Checks a program while it is read: its words, its blocks, the machine's limits, and the way from
/// begin to end.
///
///     ProgramCheck check(profile);
///     ProgramReading reading(profile, &check);
///     if (WindingReview::read(path, &reading, &error))
///         show(check.findings());
///
/// The check says nothing about a line that the machine performs as it stands. Of a program with
/// very many faults the first ones of each severity are kept, and the others counted.
class FILARIX_HOST_EXPORT ProgramCheck : public BlockListener
{
public:
    /// Findings of one severity that are kept.
    static const int mostKept = 1000;

    explicit ProgramCheck(const MachineProfile &profile);

    void add(const GCodeBlock &block, const WindingStep &step, const WindingModel &model) override;
    void finish(const WindingModel &model) override;

    /// By line and column. Complete after finish().
    const QVector<Finding> &findings() const { return m_findings; }
    /// Of a severity, those that are not kept included.
    int count(Finding::Severity severity) const { return m_counts[severity]; }
    /// Of all severities, kept or not.
    int count() const;
    /// Not in findings().
    int leftOut() const { return count() - m_findings.size(); }
    /// By the profile a program with such findings must not be sent.
    bool forbidsSending() const;

private:
    struct Place
    {
        int line = 0;
        int column = 1;
        int length = 0;
    };

    /// What a letter is to the machine, looked up once.
    struct Letter
    {
        MachineProfile::Use use = MachineProfile::UnknownUse;
        const MachineAxis *axis = nullptr;
    };

    static Place placeOf(const GCodeBlock &block);
    static Place placeOf(const GCodeBlock &block, const GCodeWord &word);
    static Place placeOf(const GCodeBlock &block, const BlockFault &fault);
    Place placeOf(const GCodeBlock &block, MachineAxis::Role role) const;
    Place placeOf(const GCodeBlock &block, MachineFunction::Action action) const;
    void checkBehindEnd(const GCodeBlock &block);
    void checkWriting(const GCodeBlock &block);
    void checkWords(const GCodeBlock &block, const WindingStep &step);
    void checkFunction(const GCodeBlock &block, int index);
    void checkValue(const GCodeBlock &block, const WindingStep &step, const GCodeWord &word);
    void checkAxis(const Place &place, const MachineAxis &axis, double position);
    void checkSpeed(const Place &place, const GCodeWord &word);
    void checkPitch(const Place &place, const WindingStep &step, const GCodeWord &word);
    void checkTool(const Place &place, const GCodeWord &word);
    void checkDwell(const GCodeBlock &block, const WindingStep &step);
    void checkMotion(const GCodeBlock &block, const WindingStep &step);
    void checkTension(const GCodeBlock &block, const WindingStep &step);
    void checkBobbin(const GCodeBlock &block, const WindingStep &step);
    void checkWire(const GCodeBlock &block, const WindingStep &step);
    void checkCut(const Place &place);

    const GCodeWord *motionWord(const GCodeBlock &block) const;
    bool hasNegativePitch(const GCodeBlock &block) const;
    QString nameOf(MachineFunction::Action action) const;
    QString nameOf(MachineProfile::Use use) const;

    void report(Finding::Kind kind, const Place &place, const QString &first = QString(),
                const QString &second = QString(), const QString &third = QString());
    /// Of the block's motion. \a second stands for %2 in the sentences.
    void reportMotion(Finding::Kind kind, const GCodeBlock &block, const QString &second);

    MachineProfile m_profile;
    Letter m_letters[26];
    QVector<Finding> m_findings;
    int m_counts[Finding::severityCount] = {};
    int m_kept[Finding::severityCount] = {};
    /// The last line with a word.
    Place m_last;
    bool m_isEnded = false;
    bool m_isBehindEndSaid = false;
    /// Wire was clamped or laid, and not cut since.
    bool m_isWireOut = false;
    bool m_isOverTension = false;
    // What was said of a state that goes on.
    bool m_isMotionMissed = false;
    bool m_isFeedMissed = false;
    bool m_isSpindleMissed = false;
    bool m_isClampMissed = false;
};

#endif // PROGRAMCHECK_H
