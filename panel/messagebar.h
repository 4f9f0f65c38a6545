// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGEBAR_H
#define MESSAGEBAR_H

#include "panelscreen.h"

#include <QFrame>
#include <QTimer>

class PanelKey;
class QLabel;
class QProgressBar;

/// What a screen has to say, across the top of the screens: a sentence, or the progress of long
/// work with a Stop key. Hidden while there is nothing to say. Keeps its place when its parent's
/// size changes.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    /// Lies over \a parent.
    explicit MessageBar(QWidget *parent);

    void tell(const QString &text, Message::Tone tone);
    void showWork(const QString &text, int percent);
    QString text() const;
    /// Whether showWork() came last.
    bool isWorking() const { return m_working && !isHidden(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void stopped();

private:
    void setTone(Message::Tone tone);
    void place();
    void press();

    QLabel *m_text;
    QProgressBar *m_progress;
    PanelKey *m_key;
    QTimer m_timer;
    bool m_working = false;
};

#endif // MESSAGEBAR_H
