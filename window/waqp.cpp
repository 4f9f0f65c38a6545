// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "waqp.h"

#include <QDir>

QString WAQP::getCncDir()
{
    const QString home = QDir::homePath();
    const QString folder = QLatin1String("cnc");
    QDir homeDir(home);
    if (!homeDir.exists(folder))
        homeDir.mkdir(folder);

    QString path = home;
    path.replace(QLatin1String("\\"), QLatin1String("/"));
    if (!home.endsWith(QLatin1String("/")))
        path.append(QLatin1String("/"));
    return path + folder;
}

QFont WAQP::setFont(const QString &family, int pointSize, bool bold)
{
    QFont font;
    font.setFamily(family);
    font.setPointSize(pointSize);
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    return font;
}

QVector<int> WAQP::chunkSizes(int total, int parts)
{
    if (parts < 1)
        return QVector<int>();
    QVector<int> sizes(parts, total / parts);
    const int rest = total % parts;
    for (int i = 0; i < rest; ++i)
        ++sizes[i];
    return sizes;
}
