// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIXGLOBAL_H
#define FILARIXGLOBAL_H

#include <QtGlobal>

/// Marks what a host may link against; everything else in the library stays hidden.
#ifdef FILARIX_BUILD
#define FILARIX_EXPORT Q_DECL_EXPORT
#else
#define FILARIX_EXPORT Q_DECL_IMPORT
#endif

#endif // FILARIXGLOBAL_H
