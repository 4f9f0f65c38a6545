// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DOWNLOADQUESTION_H
#define DOWNLOADQUESTION_H

#include "dialog.h"

struct ProgramFacts;

/// Asks whether this very program is to go to the machine: its name, how long it is, and a checksum
/// that can be held next to the one of another panel or PC. Accepted when it is.
class DownloadQuestion : public Dialog
{
    Q_OBJECT

public:
    /// \a shownLines are in the editor; -1 when the program isn't there. Both numbers are shown
    /// when they differ.
    explicit DownloadQuestion(const ProgramFacts &facts, qint64 shownLines = -1,
                              QWidget *parent = nullptr);
};

#endif // DOWNLOADQUESTION_H
