// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGELOG_H
#define MESSAGELOG_H

#include "base/message.h"

#include <QList>
#include <QObject>
#include <QTimer>

/// What the operator was told, and which of it still holds.
///
/// A warning or an alarm stands until the operator closes it, its cause ends, or the next message
/// of its cause takes its place. An information stands for a few seconds.
///
///     MessageLog log;
///     log.tell(tr("The PLC does not answer."), Message::Alarm, DeviceCauses::plc());
///     log.end(DeviceCauses::plc());
class MessageLog : public QObject
{
    Q_OBJECT

public:
    /// Messages that can be read again.
    static const int kept = 50;

    explicit MessageLog(QObject *parent = nullptr);

    /// Takes what \a source says from now on: its signal told() and, where it has one, its signal
    /// causeEnded(); see Message.
    void listenTo(const QObject *source);
    /// The operator goes on to something else: an information that was just told has been read.
    void passOn();
    /// The operator has seen to the current message.
    void closeCurrent();
    /// The same for all that stand.
    void closeAll();

    /// What is to be shown: an information that was just told, or the most urgent message that
    /// stands, the newest one of several. The text is empty when nothing stands.
    Message current() const;
    /// Whether the message that was told last has been so for a few seconds at most, and stands.
    bool isFresh() const { return m_freshness.isActive(); }
    int standingCount() const;

    /// The last messages, newest first by the order in which they were told: the clock may have
    /// been set back between two of them.
    QList<Message> messages() const;
    /// Whether the one at that place of messages() still stands.
    bool isStanding(int index) const { return m_entries.at(index).stands; }

    /// Milliseconds for which an information stands; 6000 at first.
    void setPassingTime(int ms) { m_freshness.setInterval(ms); }

public Q_SLOTS:
    void tell(const QString &text, Message::Tone tone, const QString &cause = QString());
    /// Messages of that cause no longer stand. Does nothing for an empty one.
    void end(const QString &cause);

Q_SIGNALS:
    /// current(), isFresh() or messages() gives something else now.
    void changed();

private:
    struct Entry
    {
        Message message;
        bool stands;
    };

    int currentIndex() const;
    void takeOver(const Message &message);
    void trim();
    void endFreshness();
    void settle(int index);

    QList<Entry> m_entries;
    QTimer m_freshness;
};

#endif // MESSAGELOG_H
