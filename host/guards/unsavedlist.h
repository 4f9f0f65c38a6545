// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef UNSAVEDLIST_H
#define UNSAVEDLIST_H

#include "programs/unsavedrows.h"

#include <QCoreApplication>

class TListWidget;

/// The rows of a list of the library, for UnsavedWork and UnsavedOffer: what an operator has
/// entered there outlives a power cut.
///
///     m_rows.reset(new UnsavedList(list, 1, tr("Taught rows")));
///     work.watchRows("taught", m_rows.data());
///     offer.addRows("taught", m_rows.data());
///     ...
///     m_rows->noteStored(); // each time the host has stored the rows
///
/// The rows that the list holds now count as stored.
class FILARIX_HOST_EXPORT UnsavedList : public UnsavedRows
{
    Q_DECLARE_TR_FUNCTIONS(UnsavedList)

public:
    /// \a list must outlive this object. Its rows from \a firstRow on are the operator's: 1 where
    /// the list has a title, 0 elsewhere. \a name is what the operator calls them.
    UnsavedList(TListWidget *list, int firstRow, const QString &name);

    /// The rows are stored as they stand.
    void noteStored() { m_stored = rows(); }

    bool isLoading() const override { return false; }
    bool lookForChanges() override { return rows() != m_stored; }
    QList<QStringList> rows() const override;
    /// False, and nothing changes, for rows that a list does not take as they are.
    bool bringBack(const QString &path, const QList<QStringList> &rows) override;
    QString nameOf(const QString &path) const override;
    QString describe(const QString &name, const QString &time, int count) const override;

private:
    TListWidget *m_list;
    const int m_firstRow;
    const QString m_name;
    QList<QStringList> m_stored;
};

#endif // UNSAVEDLIST_H
