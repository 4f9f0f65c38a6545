// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programkeeper.h"

#include "base/hostcompat.h"
#include "base/questioner.h"

#include <QFileInfo>
#include <QPointer>

#include <memory>

namespace {

// Work that takes less time is over before anybody has read about it.
const int patienceMs = 300;
const char waitCause[] = "history wait";

} // namespace

ProgramKeeper::ProgramKeeper(Questioner *questioner, QObject *parent)
    : QObject(parent), m_questioner(questioner)
{}

void ProgramKeeper::keep(const QString &path, const Answer &answer)
{
    if (!m_history) {
        HostCompat::callLater(this, [answer] { answer(true); });
        return;
    }
    const std::shared_ptr<bool> isOver = std::make_shared<bool>(false);
    HostCompat::callAfter(patienceMs, this, [this, isOver] {
        if (!*isOver)
            Q_EMIT told(tr("One moment: the history takes in the program first."),
                        Message::Information, QLatin1String(waitCause));
    });
    const QPointer<ProgramKeeper> self(this);
    m_history(path, [self, path, answer, isOver](const QString &reason) {
        if (!self || *isOver)
            return;
        *isOver = true;
        Q_EMIT self->causeEnded(QLatin1String(waitCause));
        const bool mayWrite = reason.isEmpty() || self->ask(path, reason);
        if (self)
            answer(mayWrite);
    });
}

bool ProgramKeeper::ask(const QString &path, const QString &reason)
{
    const QString name = QFileInfo(path).fileName();
    return m_questioner->ask({tr("History"),
                              tr("What %1 is now would be lost.").arg(name),
                              {tr("Cancel"), tr("All the same")},
                              {reason}})
           == 1;
}
