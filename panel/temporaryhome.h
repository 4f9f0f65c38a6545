// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TEMPORARYHOME_H
#define TEMPORARYHOME_H

#include <QTemporaryDir>

/// A home for a walk without an operator. The operator may have programs, which the walk would
/// change.
///
/// The folder is the process's home from now on, and goes with all that lies in it. This object
/// comes before the application object, which looks into the home.
class TemporaryHome
{
public:
    TemporaryHome();

    /// False where none can be made. The process has its old home then.
    bool isValid() const { return m_folder.isValid(); }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

#endif // TEMPORARYHOME_H
