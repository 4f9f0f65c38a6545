// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/clickgate.h"

#include "base/hostcompat.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QPointer>
#include <QTimer>

namespace {

// How often a click looks whether the dialog has ended that it waits for.
const int dialogMs = 50;

/// Whether a dialog takes all that an operator does to the widget.
bool isBlocked(const QWidget *widget)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal && modal != widget->window() && !modal->isAncestorOf(widget);
}

} // namespace

/// A button says released() right before clicked(), whatever pressed the button. The same happens
/// when a finger slides off or the focus goes, and no click follows. So the button's signals are
/// blocked from released() on. The group has signals of its own, which tell whether there was a
/// click.
ClickGate::ClickGate(QAbstractButton *button) : QObject(button), m_clicks(new QButtonGroup(this))
{
    m_clicks->setExclusive(false);
    m_clicks->addButton(button);
    connect(button, SIGNAL(released()), this, SLOT(shut()));
    connect(m_clicks, SIGNAL(buttonClicked(QAbstractButton *)), this, SLOT(note()));
}

QAbstractButton *ClickGate::button() const
{
    return static_cast<QAbstractButton *>(parent());
}

void ClickGate::shut()
{
    if (m_isPassing || !m_hold) {
        // For this one click. Listeners may run an event loop in which there are other clicks.
        m_isPassing = false;
        return;
    }
    button()->blockSignals(true);
    HostCompat::callLater(this, [this] { button()->blockSignals(false); });
}

void ClickGate::note()
{
    if (!button()->signalsBlocked()) {
        m_hasPassed = true;
        return;
    }
    button()->blockSignals(false);
    if (m_isHolding)
        return;
    m_isHolding = true;
    // The button is done with the press by then, and what holds the click may wait in dialogs.
    HostCompat::callLater(this, [this] {
        if (m_isHolding)
            m_hold();
    });
}

void ClickGate::pass()
{
    if (m_isHolding)
        HostCompat::callLater(this, [this] { click(); });
}

void ClickGate::drop()
{
    m_isHolding = false;
}

/// What held the click has seen to things as they were before the dialog.
void ClickGate::holdAgain()
{
    if (!m_isHolding)
        return;
    if (isBlocked(button()))
        QTimer::singleShot(dialogMs, this, SLOT(holdAgain()));
    else
        m_hold();
}

void ClickGate::click()
{
    if (!m_isHolding)
        return;
    if (isBlocked(button())) {
        QTimer::singleShot(dialogMs, this, SLOT(holdAgain()));
        return;
    }
    m_isHolding = false;
    m_isPassing = true;
    m_hasPassed = false;
    const QPointer<ClickGate> guard(this);
    button()->click();
    if (!guard)
        return;
    m_isPassing = false;
    if (m_hasPassed)
        Q_EMIT passed();
}
