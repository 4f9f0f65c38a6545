// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stick/folderwatch.h"

#include "stick/transfernames.h"

#include <QDir>
#include <QFileInfo>

namespace {

const int patienceMs = 3000;

} // namespace

FolderWatch::FolderWatch(const Probe &probe, QObject *parent) : QObject(parent), m_probe(probe)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patienceMs);
    connect(&m_patience, SIGNAL(timeout()), this, SLOT(noteOverdue()));
}

FolderWatch::~FolderWatch()
{
    if (m_isLooking)
        m_thread.giveUp();
}

FolderState FolderWatch::lookAt(const QString &folder)
{
    FolderState state;
    state.isKnown = true;
    const QDir dir(folder);
    state.isThere = dir.exists();
    const QFileInfoList files = dir.entryInfoList(QDir::Files);
    for (const QFileInfo &file : files)
        state.bytes += file.size();
    state.files = files.size();
    state.unsafeNames = TransferNames::unsafeIn(folder).size();
    return state;
}

void FolderWatch::look()
{
    m_looksAgain = m_isLooking;
    if (m_isLooking)
        return;
    m_isLooking = true;
    m_patience.start();
    const Probe probe = m_probe;
    const std::shared_ptr<FolderState> state = std::make_shared<FolderState>();
    m_thread.post([probe, state] { *state = probe(); }, [this, state] { take(*state); });
}

void FolderWatch::noteOverdue()
{
    m_isOverdue = true;
    Q_EMIT changed();
}

void FolderWatch::take(const FolderState &state)
{
    m_patience.stop();
    m_isLooking = false;
    m_isOverdue = false;
    m_state = state;
    if (m_looksAgain)
        look();
    Q_EMIT changed();
}
