// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMDIRECTORY_H
#define PROGRAMDIRECTORY_H

#include "base/filarixhostglobal.h"

#include <QString>

namespace ProgramDirectory {

/// Where the library looks for programs: "cnc" in the user's home, without a slash at the end.
FILARIX_HOST_EXPORT QString path();

} // namespace ProgramDirectory

#endif // PROGRAMDIRECTORY_H
