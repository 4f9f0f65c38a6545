// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CHECKMARKS_H
#define CHECKMARKS_H

#include "base/filarixhostglobal.h"
#include "guards/errormarks.h"
#include "winding/programcheck.h"
#include "winding/windingreview.h"

#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <memory>

/// Has the program in an editor checked by a machine's rules after each change, and marks the lines
/// concerned.
///
///     CheckMarks *check = new CheckMarks(WindowProgram::editorOf(window), window);
///     connect(check, SIGNAL(checked()), SLOT(showFindings())); // of check->findings()
///     check->setProfile(profile);
///
/// The program is read beside the event loop, half a second after the last change. The findings and
/// marks of the check before stay until then. A program without a word has none.
class FILARIX_HOST_EXPORT CheckMarks : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds from a change to the check.
    static const int pauseMs = 500;

    /// \a editor may go first. Nothing is checked before setProfile().
    explicit CheckMarks(QPlainTextEdit *editor, QObject *parent = nullptr);
    ~CheckMarks() override;

    /// Checks by the rules of \a profile from now on. The profile has no faults: otherwise each
    /// word would be one.
    void setProfile(const MachineProfile &profile);
    /// Milliseconds in place of pauseMs.
    void setPause(int ms) { m_pause.setInterval(ms); }

    /// What the last check has found, by line and column.
    const QVector<Finding> &findings() const { return m_findings; }
    /// Whether the findings are those of the program as it stands.
    bool isCurrent() const;
    /// The marks; the text of a mark is that of the worst finding of its line.
    ErrorMarks *marks() { return &m_marks; }

    /// Puts the cursor on the next marked line behind its own, or on the first one again; what is
    /// wrong there. Empty, with the cursor where it was, when nothing is marked.
    QString goToNext();

    /// Marks the lines of \a findings in place of all that \a marks has. The worst finding of a
    /// line counts.
    static void mark(const QVector<Finding> &findings, ErrorMarks *marks);

Q_SIGNALS:
    /// The findings are those of another check.
    void checked();

private Q_SLOTS:
    void noteChange();
    void begin();
    void take();

private:
    class Check;

    QPointer<QPlainTextEdit> m_editor;
    ErrorMarks m_marks;
    WindingReview m_review;
    QTimer m_pause;
    /// Of the reading under way; in the hands of its thread until that ends.
    std::shared_ptr<Check> m_check;
    QVector<Finding> m_findings;
    bool m_hasProfile = false;
};

#endif // CHECKMARKS_H
