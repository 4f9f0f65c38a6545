// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef GOLDENLIST_H
#define GOLDENLIST_H

#include <QString>
#include <QStringList>

/// Which pictures are kept: the table in pictures.txt, whose head tells how it reads.
class GoldenList
{
public:
    /// Empty where \a path cannot be read.
    explicit GoldenList(const QString &path);

    /// The stops of a tour of that size and look, in the table's order. Those that have no picture
    /// yet are left out unless \a alsoWanted.
    QStringList stops(const QString &size, const QString &look, bool alsoWanted) const;
    /// "480x272-dark-program.png".
    static QString fileName(const QString &size, const QString &look, const QString &stop);

private:
    QList<QStringList> m_rows;
    QStringList m_sizes;
};

#endif // GOLDENLIST_H
