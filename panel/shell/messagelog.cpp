// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/messagelog.h"

namespace {

const int passingMs = 6000;

bool saysTheSame(const Message &one, const Message &other)
{
    return one.text == other.text && one.tone == other.tone && one.cause == other.cause;
}

} // namespace

const int MessageLog::kept;

MessageLog::MessageLog(QObject *parent) : QObject(parent)
{
    m_freshness.setSingleShot(true);
    m_freshness.setInterval(passingMs);
    connect(&m_freshness, &QTimer::timeout, this, &MessageLog::passOn);
}

void MessageLog::listenTo(const QObject *source)
{
    connect(source, SIGNAL(told(QString, Message::Tone, QString)), this,
            SLOT(tell(QString, Message::Tone, QString)));
    if (source->metaObject()->indexOfSignal("causeEnded(QString)") >= 0)
        connect(source, SIGNAL(causeEnded(QString)), this, SLOT(end(QString)));
}

void MessageLog::tell(const QString &text, Message::Tone tone, const QString &cause)
{
    if (text.isEmpty())
        return;
    Message message;
    message.text = text;
    message.tone = tone;
    message.cause = cause;
    message.time = QDateTime::currentDateTime();
    endFreshness();
    takeOver(message);
    m_entries.prepend({message, true});
    trim();
    m_freshness.start();
    Q_EMIT changed();
}

void MessageLog::end(const QString &cause)
{
    if (cause.isEmpty())
        return;
    bool hasEnded = false;
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).stands && m_entries.at(i).message.cause == cause) {
            settle(i);
            hasEnded = true;
        }
    }
    if (hasEnded)
        Q_EMIT changed();
}

void MessageLog::passOn()
{
    endFreshness();
    Q_EMIT changed();
}

void MessageLog::closeCurrent()
{
    const int index = currentIndex();
    if (index < 0)
        return;
    settle(index);
    Q_EMIT changed();
}

void MessageLog::closeAll()
{
    for (int i = 0; i < m_entries.size(); ++i)
        settle(i);
    Q_EMIT changed();
}

Message MessageLog::current() const
{
    const int index = currentIndex();
    return index < 0 ? Message() : m_entries.at(index).message;
}

int MessageLog::standingCount() const
{
    int count = 0;
    for (const Entry &entry : m_entries)
        count += entry.stands ? 1 : 0;
    return count;
}

QList<Message> MessageLog::messages() const
{
    QList<Message> messages;
    for (const Entry &entry : m_entries)
        messages.append(entry.message);
    return messages;
}

int MessageLog::currentIndex() const
{
    int index = -1;
    for (int i = 0; i < m_entries.size(); ++i) {
        if (!m_entries.at(i).stands)
            continue;
        // An information that stands was told last: whoever touched a key reads what came of it.
        if (m_entries.at(i).message.tone == Message::Information)
            return i;
        if (index < 0 || m_entries.at(i).message.tone > m_entries.at(index).message.tone)
            index = i;
    }
    return index;
}

/// A message that says the same again is listed once where nothing came between.
void MessageLog::takeOver(const Message &message)
{
    for (Entry &entry : m_entries) {
        const bool isReplaced = !message.cause.isEmpty() && entry.message.cause == message.cause;
        if (isReplaced || saysTheSame(entry.message, message))
            entry.stands = false;
    }
    if (!m_entries.isEmpty() && saysTheSame(m_entries.first().message, message))
        m_entries.removeFirst();
}

/// A message that still stands is not forgotten for one that has passed.
void MessageLog::trim()
{
    if (m_entries.size() <= kept)
        return;
    for (int i = m_entries.size() - 1; i > 0; --i) {
        if (!m_entries.at(i).stands) {
            m_entries.removeAt(i);
            return;
        }
    }
    m_entries.removeLast();
}

void MessageLog::endFreshness()
{
    m_freshness.stop();
    if (!m_entries.isEmpty() && m_entries.first().message.tone == Message::Information)
        m_entries.first().stands = false;
}

void MessageLog::settle(int index)
{
    m_entries[index].stands = false;
    if (index == 0)
        m_freshness.stop();
}
