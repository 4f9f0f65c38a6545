// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SOMEROWS_H
#define SOMEROWS_H

#include "programs/unsavedrows.h"

/// A list of a host's with one kind of change: rows that are others than the stored ones.
class SomeRows : public UnsavedRows
{
public:
    bool isLoading() const override { return isToCome; }
    bool lookForChanges() override { return m_rows != m_stored; }
    QList<QStringList> rows() const override { return m_rows; }
    QString filePath() const override { return path; }
    /// A row that is empty is none.
    bool bringBack(const QString &broughtPath, const QList<QStringList> &rows) override
    {
        if (rows.contains(QStringList()))
            return false;
        path = broughtPath;
        m_rows = rows;
        return true;
    }
    QString nameOf(const QString &ofPath) const override
    {
        return ofPath.mid(ofPath.lastIndexOf(QLatin1Char('/')) + 1);
    }
    QString describe(const QString &name, const QString &time, int count) const override
    {
        return QString::fromLatin1("%1, %2, rows: %3").arg(name, time).arg(count);
    }

    void show(const QStringList &values)
    {
        m_rows.clear();
        for (const QString &value : values)
            m_rows.append(QStringList() << QLatin1String("name") << value);
    }
    void store() { m_stored = m_rows; }

    QString path;
    bool isToCome = false;

private:
    QList<QStringList> m_rows;
    QList<QStringList> m_stored;
};

#endif // SOMEROWS_H
