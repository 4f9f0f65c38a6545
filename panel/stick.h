// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STICK_H
#define STICK_H

#include <QString>

/// The USB stick, as the library's import manager looks for it: a file system at the mount point,
/// and a marker file while it is plugged.
///
/// On a panel the system sees to both. Here a folder can stand in for the stick, plugged and pulled
/// by the program: while it is in, the mount point is a link to the folder, whose own path has to
/// begin like the mount point's ("/mnt/Storage.stick"), or the import manager won't take its files
/// for the stick's. Otherwise, and where the mount point can't be replaced, plug() fails and says
/// so in words; ./run --stick starts the program where both hold. A folder that was bound to the
/// mount point from outside stays there, and only the marker comes and goes.
class Stick
{
public:
    /// \a folder stands in for the stick; an empty one leaves everything to the system.
    explicit Stick(const QString &folder = QString());
    /// Pulls a simulated stick and puts the mount point back as it was.
    ~Stick();

    static QString mountPoint();
    static QString marker();

    bool isSimulated() const { return !m_folder.isEmpty(); }
    QString folder() const { return m_folder; }
    /// Whether the marker and the mount point are there.
    static bool isPresent();

    /// Puts the simulated stick in; nothing to do if it is in. On failure \a error says why, and
    /// nothing is changed.
    bool plug(QString *error);
    /// Takes it out again, with what the import manager looks at.
    void pull();

private:
    Q_DISABLE_COPY(Stick)

    bool isBound() const;
    static bool isMarkerAbandoned();
    bool isLinked() const;
    bool link(QString *error);

    const QString m_folder;
    bool m_replacedFolder = false;
    bool m_madeMarker = false;
};

#endif // STICK_H
