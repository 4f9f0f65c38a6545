// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELSCREEN_H
#define PANELSCREEN_H

#include "base/message.h"

#include <QEvent>
#include <QList>
#include <QWidget>

class PanelKey;

/// One screen of the host. The shell shows its title, its keys and what it has to say.
class PanelScreen : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// What the operator works on: the name of a program, say.
    virtual QString title() const = 0;
    /// Whether that has changes that are not stored.
    virtual bool hasChanges() const { return false; }
    /// The same in a word, beside the title; empty where there is nothing to say.
    virtual QString stateWord() const { return hasChanges() ? tr("changed") : QString(); }
    /// Keys for the shell's strip while the screen is up; the shell takes them.
    virtual QList<PanelKey *> keys() { return QList<PanelKey *>(); }
    /// Asks what has to be asked before the program ends; false keeps it open.
    virtual bool mayClose() { return true; }
    /// Whether the work without a name that worked() told of goes on. If not, the next told() says
    /// how it ended.
    virtual bool isWorking() const { return false; }
    /// Looks whether what it shows is still so; the shell calls it every few seconds.
    virtual void refreshStatus() {}

Q_SIGNALS:
    /// title() or hasChanges() gives something else now.
    void titleChanged();
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    /// The operator touched a text that has no room on the screen; the shell shows it in full.
    void explained(const QString &text);
    /// What messages of this cause were about is over.
    void causeEnded(const QString &cause);
    /// Long work goes on: \a percent of it is done, or WorkProgress::lengthUnknown. The shell shows
    /// how long it still takes, and offers a Stop key. A screen that may do several things at once
    /// gives each a name in \a work.
    void worked(const QString &text, int percent, const QString &work = QString());
    /// The work of that name goes on no more.
    void workEnded(const QString &work);

public Q_SLOTS:
    /// The operator pressed Stop while \a work was shown.
    virtual void stopWork(const QString &work = QString()) { Q_UNUSED(work) }

protected:
    /// The language has changed: sets what no LiveText does.
    virtual void retranslate() {}

    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        QWidget::changeEvent(event);
    }
};

#endif // PANELSCREEN_H
