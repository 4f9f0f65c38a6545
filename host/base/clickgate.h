// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CLICKGATE_H
#define CLICKGATE_H

#include "base/filarixhostglobal.h"

#include <QObject>

#include <functional>

class QAbstractButton;
class QButtonGroup;

/// Stands between a button and what its click does, for a host that has something to see to first.
///
/// However the button is pressed, by a touch, by Return, a shortcut or a program, the gate is asked
/// before anybody hears of the click. The gate may hold the click for as long as it needs, while
/// the event loop runs, and then let it through, or drop it:
///
///     ClickGate *gate = new ClickGate(button);
///     gate->onClick([gate, history] {
///         history->whenSettled([gate] { gate->pass(); });
///     });
///
/// Whoever is connected to the button's clicked() hears the click when it passes, and only then.
/// The button owns its gate, may have one at the most, and may be in no button group. What holds a
/// click for long keeps a QPointer to the gate: the button's dialog may close meanwhile.
class FILARIX_HOST_EXPORT ClickGate : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void()> Answer;

    /// Each click of \a button passes until onClick() is called.
    explicit ClickGate(QAbstractButton *button);

    /// The button that the gate stands before.
    QAbstractButton *button() const;

    /// \a hold runs in the place of each click. Each \a hold has to lead to one pass() or drop(),
    /// at once or later. Clicks that come meanwhile count for nothing.
    void onClick(const Answer &hold) { m_hold = hold; }
    /// Lets the held click through: the button is clicked, from the event loop. A button that has
    /// gone or is disabled by now is not clicked. Where a modal dialog has come up meanwhile that
    /// the button is not in, a keypad say, the click waits for its end and is held once more.
    void pass();
    /// Drops the held click: nobody hears of it.
    void drop();
    /// Whether a click is held at the moment.
    bool isHolding() const { return m_isHolding; }

Q_SIGNALS:
    /// A click has passed, and all that its listeners did for it has been done.
    void passed();

private Q_SLOTS:
    void shut();
    void note();
    void holdAgain();

private:
    void click();

    Answer m_hold;
    QButtonGroup *m_clicks;
    bool m_isHolding = false;
    bool m_isPassing = false;
    bool m_hasPassed = false;
};

#endif // CLICKGATE_H
