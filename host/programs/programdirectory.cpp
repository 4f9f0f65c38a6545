// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programdirectory.h"

#include <QDir>

QString ProgramDirectory::path()
{
    return QDir::home().filePath(QLatin1String("cnc"));
}
