// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/devicecauses.h"

#include "shell/statusstrip.h"

void DeviceCauses::take(const DeviceState &state)
{
    const DeviceState before = m_state;
    m_state.plcReachable = state.isKnown && state.plcReachable;
    if (!state.isKnown)
        return;
    m_state.stickIn = state.stickIn;
    // What was known last counts while the room cannot be told.
    if (state.freeBytes >= 0)
        m_state.freeBytes = state.freeBytes;

    if (m_state.plcReachable && !before.plcReachable)
        Q_EMIT ended(plc());
    if (m_state.stickIn != before.stickIn)
        Q_EMIT ended(stick());
    // The states of the storage stand in their order, the emptiest first.
    if (StatusStrip::storageOf(m_state.freeBytes) < StatusStrip::storageOf(before.freeBytes))
        Q_EMIT ended(storage());
}
