// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINDINGSDIALOG_H
#define FINDINGSDIALOG_H

#include "base/message.h"
#include "dialog.h"
#include "winding/finding.h"

#include <QVector>

class PanelTable;
class ProgramReview;

/// All that the check found, a page at a time. A touch on a line chooses it, and ends the dialog.
class FindingsDialog : public Dialog
{
    Q_OBJECT

public:
    /// Shows the findings of this moment. \a line, from 1, is where the operator is.
    FindingsDialog(const ProgramReview *review, int line, QWidget *parent = nullptr);

    static Message::Tone toneOf(Finding::Severity severity);

    /// The index of the finding that was chosen; -1 while none is.
    int finding() const { return m_finding; }
    /// That finding, whatever the review has found since. Only when one was chosen.
    const Finding &chosen() const { return m_findings.at(m_finding); }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fill();
    void shrinkToWords();
    void choose(int row);

    /// The row of the finding at the operator's line, or of the next one.
    const int m_nearest;
    const QVector<Finding> m_findings;
    PanelTable *m_table;
    int m_finding = -1;
};

#endif // FINDINGSDIALOG_H
