// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef UNSAVEDQUESTION_H
#define UNSAVEDQUESTION_H

#include "dialog.h"

#include <QStringList>

/// Offers unsaved work of an earlier run: bring it back, leave it for the next start, or throw it
/// away. A dialog that is closed leaves it.
class UnsavedQuestion : public Dialog
{
    Q_OBJECT

public:
    enum Answer { Later = Rejected, BringBack = Accepted, ThrowAway };

    /// One of \a works a line: what it is, and of when.
    explicit UnsavedQuestion(const QStringList &works, QWidget *parent = nullptr);

private:
    /// Once more, for there is no way back.
    void askAndThrowAway();
};

#endif // UNSAVEDQUESTION_H
