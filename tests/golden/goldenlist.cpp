// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "goldenlist.h"

#include <QFile>
#include <QTextStream>

GoldenList::GoldenList(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QTextStream stream(&file);
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (words.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        if (words.first() == QLatin1String("screen"))
            m_sizes = words.mid(1);
        else
            m_rows.append(words);
    }
}

QStringList GoldenList::stops(const QString &size, const QString &look, bool alsoWanted) const
{
    // The looks stand there by their first letters, small ones for what is wanted.
    const QChar kept = look.at(0).toUpper();
    const int column = m_sizes.indexOf(size) + 1;
    QStringList names;
    for (const QStringList &row : m_rows) {
        const QString cell = column > 0 ? row.value(column) : QString();
        if (cell.contains(kept) || (alsoWanted && cell.contains(kept.toLower())))
            names.append(row.first());
    }
    return names;
}

QString GoldenList::fileName(const QString &size, const QString &look, const QString &stop)
{
    return QString::fromLatin1("%1-%2-%3.png").arg(size, look, stop);
}
