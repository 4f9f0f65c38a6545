// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef UNSAVEDROWS_H
#define UNSAVEDROWS_H

#include "base/filarixhostglobal.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A screen whose rows an operator edits. UnsavedWork keeps the rows while they are not stored, and
/// UnsavedOffer brings them back. All calls come from the screen's own thread.
class FILARIX_HOST_EXPORT UnsavedRows
{
public:
    UnsavedRows() = default;
    virtual ~UnsavedRows() = default;

    /// Whether the rows are still to come from their file. Nothing else is asked until they are
    /// there.
    virtual bool isLoading() const = 0;
    /// Looks whether the rows differ from the stored ones. Called about once a second.
    virtual bool lookForChanges() = 0;
    virtual QList<QStringList> rows() const = 0;
    /// The file that the rows are stored in. Empty for a screen that has one file for ever.
    virtual QString filePath() const { return QString(); }

    /// Shows \a rows of the file \a path as changes that are not stored. False, and nothing
    /// changes, when the screen cannot show them. Path and rows come from a file and may hold
    /// anything.
    virtual bool bringBack(const QString &path, const QList<QStringList> &rows) = 0;
    /// What the operator calls the rows of the file \a path.
    virtual QString nameOf(const QString &path) const = 0;
    /// One line for the operator: \a count rows called \a name, changed last at \a time.
    virtual QString describe(const QString &name, const QString &time, int count) const = 0;

private:
    Q_DISABLE_COPY(UnsavedRows)
};

#endif // UNSAVEDROWS_H
