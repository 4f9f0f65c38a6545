// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIXHOSTGLOBAL_H
#define FILARIXHOSTGLOBAL_H

#include <QtGlobal>

/// Marks what a host may link against. A class without the mark stays hidden in the companion, and
/// its header is not installed.
#ifdef FILARIX_HOST_BUILD
#define FILARIX_HOST_EXPORT Q_DECL_EXPORT
#else
#define FILARIX_HOST_EXPORT Q_DECL_IMPORT
#endif

#endif // FILARIXHOSTGLOBAL_H
