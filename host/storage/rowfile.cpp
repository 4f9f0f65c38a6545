// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/rowfile.h"

#include "base/hostcompat.h"
#include "storage/durablefile.h"

#include <QCoreApplication>
#include <QFile>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(RowFile)
};

QString escaped(QString text)
{
    text.replace(QLatin1String("\\"), QLatin1String("\\\\"));
    text.replace(QLatin1String("\t"), QLatin1String("\\t"));
    return text.replace(QLatin1String("\n"), QLatin1String("\\n"));
}

QString unescaped(const QString &text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('\\') || i + 1 == text.size()) {
            result += text.at(i);
            continue;
        }
        const QChar next = text.at(++i);
        result += next == QLatin1Char('t')   ? QLatin1Char('\t')
                  : next == QLatin1Char('n') ? QLatin1Char('\n')
                                             : next;
    }
    return result;
}

/// A row whose first string begins with "#" must not come back as a comment.
QString line(const QStringList &row)
{
    QStringList strings;
    for (const QString &text : row)
        strings.append(escaped(text));
    const QString joined = strings.join(QLatin1String("\t"));
    return joined.startsWith(QLatin1Char('#')) ? QLatin1Char('\\') + joined : joined;
}

} // namespace

QByteArray RowFile::bytes(const QString &comment, const QList<QStringList> &rows)
{
    QByteArray bytes = "# " + comment.toUtf8() + '\n';
    for (const QStringList &row : rows)
        bytes += line(row).toUtf8() + '\n';
    return bytes;
}

bool RowFile::write(const QString &path, const QString &comment, const QList<QStringList> &rows,
                    QString *error)
{
    DurableFile file(path);
    if (file.open() && file.write(bytes(comment, rows)) && file.commit())
        return true;
    *error = Words::tr("%1 cannot be written: %2.").arg(path, file.errorString());
    return false;
}

bool RowFile::read(const QString &path, QList<QStringList> *rows, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = Words::tr("%1 cannot be read: %2.").arg(path, file.errorString());
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError) {
        *error = Words::tr("%1 cannot be read: %2.").arg(path, file.errorString());
        return false;
    }
    QString text;
    if (!HostCompat::fromUtf8(bytes, &text)) {
        *error = Words::tr("%1 is not a text file.").arg(path);
        return false;
    }
    rows->clear();
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        QStringList row;
        const QStringList strings = line.split(QLatin1Char('\t'));
        for (const QString &string : strings)
            row.append(unescaped(string));
        rows->append(row);
    }
    return true;
}
