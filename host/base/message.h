// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGE_H
#define MESSAGE_H

#include "base/filarixhostglobal.h"

#include <QDateTime>
#include <QMetaType>
#include <QString>

/// What the operator is told.
///
/// Whoever has something to say has a signal
///
///     void told(const QString &text, Message::Tone tone, const QString &cause = QString());
///
/// and, where a message has a cause that can end, a signal
///
///     void causeEnded(const QString &cause);
struct FILARIX_HOST_EXPORT Message
{
    /// How urgent a message is. The one scale for messages, states and questions.
    enum Tone {
        Information, ///< Went as wanted, or is good to know. Passes by itself.
        Warning,     ///< The operator should see to it. Stays until it is closed or its cause ends.
        Alarm        ///< A program may be lost, or work stands still. Stays likewise.
    };

    /// A sentence or two: what happened, what it means, what to do.
    QString text;
    Tone tone = Information;
    /// What the message is about, for the program alone: "plc", "storage". The next message of the
    /// same cause takes this one's place, and the message goes when the cause ends. A message
    /// without a cause stands for itself.
    QString cause;
    /// When the message was told, in the panel's time.
    QDateTime time;
};

Q_DECLARE_METATYPE(Message)
Q_DECLARE_METATYPE(Message::Tone)

#endif // MESSAGE_H
