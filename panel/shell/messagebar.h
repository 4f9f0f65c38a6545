// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGEBAR_H
#define MESSAGEBAR_H

#include "base/message.h"
#include "look/taparea.h"

#include <QTimer>

class ElidedLabel;
class MessageLog;
class PanelKey;
class QLabel;
class QProgressBar;
class ToneMark;

/// The place of the panel for what the log has to say, or for how long work goes on. The key of the
/// bar closes a message and stops work.
///
/// The bar has a place of its own and lies over nothing. A text that is too long for it ends in
/// three dots, so a touch on it is to show the whole one.
///
///     MessageBar *bar = new MessageBar(&log, MessageBar::Row);
///     connect(bar, &MessageBar::touched, this, &PanelWindow::showMessages);
class MessageBar : public TapArea
{
    Q_OBJECT

public:
    enum Form {
        Row, ///< As high as its key, also while there is nothing to say: then the last message.
        Line ///< One line, hidden while there is nothing to say; the key is to be placed elsewhere.
    };

    /// \a log must outlive the bar.
    MessageBar(MessageLog *log, Form form, QWidget *parent = nullptr);

    /// Takes the place of the messages until endWork(), except for those that were just told.
    /// \a left says how long the work still takes. A percentage below 0 is one that nobody knows.
    /// Work that was told to stop already may not be stopped once more.
    void showWork(const QString &text, int percent, const QString &left = QString(),
                  bool mayStop = true);
    void endWork();
    /// The key does nothing for a moment: other work has come in the place of the one it stopped.
    void restKey();
    bool isWorking() const { return m_isWorking; }

    /// The text of what it shows; empty while that is the last message at most.
    QString text() const { return m_text; }
    /// A Row is so much higher than usual, 0 at first, and fills that with lines of small letters.
    void setHigher(int pixels);
    /// Whether all of the text has room in the width and height of this moment.
    bool hasRoom() const;
    /// In a Line's case without a parent until it is placed.
    PanelKey *key() const { return m_key; }

Q_SIGNALS:
    /// text() gives something else now.
    void changed();
    /// The operator wants the work to be stopped.
    void stopped();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void placeKey();
    void refresh();
    void showNothing();
    void showKey(bool isWanted);
    void press();

    MessageLog *m_log;
    const Form m_form;
    ToneMark *m_mark;
    ElidedLabel *m_label;
    QLabel *m_left;
    QProgressBar *m_progress;
    PanelKey *m_key;
    QTimer m_keyRest;
    QString m_text;
    QString m_workText;
    bool m_isWorking = false;
    bool m_mayStop = true;
    int m_higher = 0;
};

#endif // MESSAGEBAR_H
