// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WRITELEAVE_H
#define WRITELEAVE_H

#include "base/filarixhostglobal.h"

#include <atomic>

/// Decides between a write in a thread and whoever has stopped waiting for it: of take() and
/// withdraw() the first one wins. So what was reported as not stored stays so. A
/// std::shared_ptr to one goes to each side:
///
///     job.run([file, leave] { file->commit([leave] { return leave->take(); }); }, done,
///             [leave] { tell(leave->withdraw() ? "It is not stored." : "Nobody knows."); });
class FILARIX_HOST_EXPORT WriteLeave
{
public:
    /// The write may replace the file, and nobody can keep the write from that any more.
    bool take() { return change(Taken); }
    /// The write will replace nothing.
    bool withdraw() { return change(Withdrawn); }

private:
    enum State { Open, Taken, Withdrawn };

    bool change(State state)
    {
        State open = Open;
        return m_state.compare_exchange_strong(open, state);
    }

    std::atomic<State> m_state{Open};
};

#endif // WRITELEAVE_H
