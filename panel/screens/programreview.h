// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMREVIEW_H
#define PROGRAMREVIEW_H

#include "guards/errormarks.h"
#include "winding/programcheck.h"

#include <QObject>

#include <memory>

class CoilPreview;
class ProgramInspection;
class QPlainTextEdit;

/// What the check says of the program in the editor: kept up to date beside the event loop, by the
/// readings of a CoilPreview. The lines concerned are marked in the editor.
class ProgramReview : public QObject
{
    Q_OBJECT

public:
    enum State {
        Off,     ///< The machine's profile is faulty, so nobody knows what the words mean.
        Waiting, ///< The program was changed, and is read again in a moment.
        Checked  ///< The findings are those of the program as it is.
    };

    /// Has \a preview read each change from now on. Both have to outlive the review.
    ProgramReview(CoilPreview *preview, QPlainTextEdit *editor, QObject *parent = nullptr);
    ~ProgramReview() override;

    State state() const;
    /// By line. While the state is Waiting they are those of the program as it was.
    const QVector<Finding> &findings() const { return m_findings; }
    int errors() const { return count(Finding::Error); }
    int warnings() const { return count(Finding::Warning); }
    /// Findings that were counted and not kept.
    int leftOut() const { return m_check && !m_isSilent ? m_check->leftOut() : 0; }
    /// A line for the operator: how many of each, or why nobody knows.
    QString summary() const;
    /// How many of each there were at the last check.
    QString counts() const;
    /// By which machine's rules: its name in the profile.
    QString rules() const;
    /// What the words of the machine mean.
    const MachineProfile &profile() const;

    /// The index of the first finding behind \a line, from 1, and of the last one before it; -1
    /// when there is none.
    int after(int line) const;
    int before(int line) const;
    /// The index of a finding of an earlier moment; -1 when it is gone, or moved.
    int indexOf(const Finding &finding) const;

    /// A check of the file at \a path by the same rules, for a download.
    std::shared_ptr<ProgramInspection> inspect(const QString &path) const;

Q_SIGNALS:
    /// The state, or what was found, is another one.
    void changed();

private:
    int count(Finding::Severity severity) const;
    void take();

    CoilPreview *m_preview;
    ErrorMarks m_marks;
    /// Of the reading under way; in the hands of its thread until that ends.
    std::shared_ptr<ProgramCheck> m_next;
    std::shared_ptr<ProgramCheck> m_check;
    QVector<Finding> m_findings;
    /// There is nothing to say: no rules, or no program.
    bool m_isSilent = false;
};

#endif // PROGRAMREVIEW_H
