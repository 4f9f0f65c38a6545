// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SEEDEDFAULT_H
#define SEEDEDFAULT_H

#include "rightprogram.h"
#include "winding/finding.h"

/// A program with one fault in it, of those that people make at a keypad, in an editor or with a
/// program that writes programs.
struct SeededFault
{
    QByteArray text;
    /// Of the fault, from 1: where an operator would look for it. 0 when the program has no place
    /// for such a fault.
    int line = 0;
    /// As the check calls it.
    Finding::Kind kind = Finding::StrayCharacter;

    /// How many kinds of faults the table has.
    static int kindCount();
    /// What is done, in words.
    static const char *nameOf(int kind);
    /// Puts a fault of the kind somewhere into a right program. The same \a seed gives the same
    /// one.
    static SeededFault plant(int kind, const ProgramLines &program, quint32 seed);
};

#endif // SEEDEDFAULT_H
