// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STICK_H
#define STICK_H

#include "base/filarixhostglobal.h"

#include <QString>

#include <memory>

/// The USB stick, as the library's import manager looks for one: a file system at the mount point,
/// and a marker file.
///
/// On a panel the system sees to both. Here a folder can stand in for the stick, plugged and pulled
/// by the program. Meanwhile the mount point is a link to the folder. The folder's own path has to
/// begin like the mount point's ("/mnt/Storage.stick"). The import manager takes no other files for
/// the stick's. Where the path doesn't, or the mount point can't be replaced, plug() fails and says
/// so in words. A folder that was bound to the mount point from outside stays there, and only the
/// marker comes and goes.
///
/// All functions ask for files, and belong into a thread where a screen must not wait. A copy is
/// the same stick, so work in a thread may own a copy.
class FILARIX_HOST_EXPORT Stick
{
public:
    /// \a folder stands in for the stick; an empty one leaves everything to the system.
    /// The last copy that goes pulls it, and puts the mount point back as it was.
    explicit Stick(const QString &folder = QString());

    /// FilarixPanel::stickDir, without a slash at the end.
    static QString mountPoint();
    /// FilarixPanel::stickMarker.
    static QString marker();

    bool isSimulated() const { return !folder().isEmpty(); }
    /// The folder that stands in for the stick; empty for a real one.
    QString folder() const;
    /// Whether the marker is there, and something at the mount point: a file system, or the folder
    /// that stands in for one. A folder that an unmount has left there is no stick.
    static bool isPresent();

    /// Puts the simulated stick in; nothing to do if it is in. On failure \a error says why, and
    /// nothing is changed.
    bool plug(QString *error);
    /// Takes it out again, with what the import manager looks at.
    void pull();

private:
    class Simulation;

    std::shared_ptr<Simulation> m_simulation;
};

#endif // STICK_H
