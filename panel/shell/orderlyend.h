// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ORDERLYEND_H
#define ORDERLYEND_H

#include <QElapsedTimer>
#include <QList>
#include <QObject>

#include <functional>

class QDialog;

/// Ends the program without an operator, as a signal of the system asks for.
///
/// What waits for an answer gets it first, the innermost first. Questions get their harmless
/// answer, dialogs and keypads that of Cancel, and a program that is being opened is aborted. Then
/// the registered steps run, and the event loop ends.
///
///     OrderlyEnd orderlyEnd;
///     QObject::connect(&signals, &TerminationSignals::received, &orderlyEnd, &OrderlyEnd::end);
///     orderlyEnd.beforeEnd([work] { work->flush(); });
class OrderlyEnd : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void()> Step;

    /// Milliseconds after which no more dialogs are waited for. The loops of dialogs then end with
    /// the program's, for which the QuestionKeeper is prepared.
    static const int patienceMs = 3000;

    explicit OrderlyEnd(QObject *parent = nullptr);

    /// \a step runs once no question is open any more, behind those registered before. A step may
    /// take a second at the most: the system ends a program that does not end itself.
    void beforeEnd(const Step &step) { m_steps.append(step); }
    bool isEnding() const { return m_isEnding; }

    /// Comes back at once; all else is done from the event loop. A second call changes nothing.
    void end();

private:
    void goOn();
    bool answerInnermost();
    static void answer(QDialog *dialog);
    static bool abortLoading();

    QList<Step> m_steps;
    QElapsedTimer m_time;
    bool m_isEnding = false;
};

#endif // ORDERLYEND_H
