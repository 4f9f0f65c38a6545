// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programinspection.h"

QString ProgramVerdict::line() const
{
    switch (state) {
    case NotAsked:
        break;
    case Checked:
        if (errors == 0 && warnings == 0)
            return tr("Nothing found");
        return tr("Errors: %1, warnings: %2").arg(errors).arg(warnings);
    case Unfinished:
        return tr("Not checked to the end");
    }
    return QString();
}
