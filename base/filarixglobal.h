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

// Host and library need one address for the meta-object of a class, or qobject_cast fails for all
// of the library's. The toolkit of PCs asks for the same.
#if !defined(FILARIX_BUILD) && defined(__ELF__)                                                    \
    && (!defined(__PIC__) || (defined(__PIE__) && __GNUC__ >= 5))
#error "Compile hosts of the Filarix Module with -fPIC; -fPIE is not enough."
#endif

#endif // FILARIXGLOBAL_H
