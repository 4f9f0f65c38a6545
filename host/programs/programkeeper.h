// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMKEEPER_H
#define PROGRAMKEEPER_H

#include "base/filarixhostglobal.h"
#include "base/message.h"

#include <QObject>

#include <functional>

class Questioner;

/// Sees to it before a write that what stands there is kept in a history, or that the operator has
/// confirmed its loss.
///
///     ProgramKeeper keeper(&questioner);
///     keeper.setHistory([](const QString &path, const ProgramKeeper::Kept &kept) {
///         kept(copyAside(path) ? QString() : QString("The disk is full."));
///     });
///     keeper.keep(path, [this](bool mayWrite) { if (mayWrite) writeTheFile(); });
class FILARIX_HOST_EXPORT ProgramKeeper : public QObject
{
    Q_OBJECT

public:
    /// Gets the reason why what stands there can't be kept, a sentence for the operator. An empty
    /// reason: it is kept.
    typedef std::function<void(const QString &reason)> Kept;
    /// A history's way to take in the file at \a path, and to tell when it has.
    typedef std::function<void(const QString &path, const Kept &kept)> History;
    typedef std::function<void(bool mayWrite)> Answer;

    /// \a questioner must outlive the keeper.
    explicit ProgramKeeper(Questioner *questioner, QObject *parent = nullptr);

    /// Without a history everything may be written over.
    void setHistory(const History &history) { m_history = history; }
    /// Comes to one \a answer, from the event loop.
    void keep(const QString &path, const Answer &answer);

Q_SIGNALS:
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    void causeEnded(const QString &cause);

private:
    bool ask(const QString &path, const QString &reason);

    Questioner *m_questioner;
    History m_history;
};

#endif // PROGRAMKEEPER_H
