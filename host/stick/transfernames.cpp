// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stick/transfernames.h"

#include <QDir>
#include <QFile>

namespace {

/// Leaves room for a number and a suffix below the 255 that file systems take.
const int longestStem = 200;
const int longestSuffix = 40;

bool isAlphanumeric(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
           || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
           || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
}

bool canStartAName(QChar c)
{
    return isAlphanumeric(c) || c == QLatin1Char('_');
}

bool isSafeCharacter(QChar c)
{
    return canStartAName(c) || c == QLatin1Char('.') || c == QLatin1Char('-')
           || c == QLatin1Char('+');
}

/// Each run of other characters becomes one "_", and what is left starts and ends with a letter or
/// a digit; it may be nothing.
QString cleaned(const QString &text)
{
    QString result;
    Q_FOREACH (QChar c, text.normalized(QString::NormalizationForm_KD)) {
        if (c.category() == QChar::Mark_NonSpacing)
            continue;
        if (isSafeCharacter(c))
            result += c;
        else if (!result.endsWith(QLatin1Char('_')))
            result += QLatin1Char('_');
    }
    int begin = 0;
    int end = result.size();
    while (begin < end && !isAlphanumeric(result.at(begin)))
        ++begin;
    while (end > begin && !isAlphanumeric(result.at(end - 1)))
        --end;
    return result.mid(begin, end - begin);
}

} // namespace

bool TransferNames::isSafe(const QString &name)
{
    if (name.isEmpty() || !canStartAName(name.at(0)))
        return false;
    Q_FOREACH (QChar c, name) {
        if (!isSafeCharacter(c))
            return false;
    }
    return true;
}

QString TransferNames::proposal(const QString &name, const QStringList &taken)
{
    if (isSafe(name) && !taken.contains(name, Qt::CaseInsensitive))
        return name;
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    QString stem = cleaned(dot < 0 ? name : name.left(dot)).left(longestStem);
    QString suffix = dot < 0 ? QString() : cleaned(name.mid(dot + 1)).left(longestSuffix);
    if (stem.isEmpty())
        stem = QLatin1String("program");
    if (!suffix.isEmpty())
        suffix.prepend(QLatin1Char('.'));
    QString result = stem + suffix;
    for (int number = 2; taken.contains(result, Qt::CaseInsensitive); ++number)
        result = stem + QLatin1Char('_') + QString::number(number) + suffix;
    return result;
}

QStringList TransferNames::unsafeIn(const QString &dir)
{
    QStringList result;
    Q_FOREACH (const QString &name,
               QDir(dir).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name)) {
        if (!isSafe(name))
            result += name;
    }
    return result;
}

bool TransferNames::rename(const QString &dir, const QString &name, const QString &safe)
{
    return isSafe(safe)
           && QFile::rename(dir + QLatin1Char('/') + name, dir + QLatin1Char('/') + safe);
}
