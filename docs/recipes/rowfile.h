// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWFILE_H
#define ROWFILE_H

#include "fillrows.h"

#include <QFile>
#include <QTextStream>

#include <cstdio>

//! [row file]
/// The rows of a list in a text file: one row a line, its strings parted by tabs.
class RowFile
{
public:
    explicit RowFile(const QString &path) : m_path(path) {}

    /// Writes the rows of \a list, from \a firstIndex on: 1 where it has a title, 0 elsewhere. The
    /// file is replaced as a whole or stays as it was.
    bool exportRows(const TListWidget *list, int firstIndex) const
    {
        const QString next = m_path + QLatin1String(".new");
        QFile file(next);
        if (!file.open(QIODevice::WriteOnly))
            return false;
        QTextStream stream(&file);
        stream.setCodec("UTF-8");
        for (int i = firstIndex; i < list->count(); ++i)
            stream << line(list->getContent(i)) << '\n';
        stream.flush();
        const bool isWritten = stream.status() == QTextStream::Ok && file.flush();
        file.close();
        return isWritten
               && std::rename(QFile::encodeName(next).constData(),
                              QFile::encodeName(m_path).constData())
                      == 0;
    }

    /// Fills \a list from the file and returns an empty string; or leaves the list as it is and
    /// returns what is wrong. A list takes rows as it gets them, so they are looked at before.
    QString importRows(TListWidget *list, int firstIndex) const
    {
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly))
            return file.errorString();
        QTextStream stream(&file);
        stream.setCodec("UTF-8");
        QList<QStringList> rows;
        while (!stream.atEnd())
            rows.append(row(stream.readLine()));
        const QList<FilarixRows::Problem> problems = FilarixRows::checkRows(rows, firstIndex);
        if (!problems.isEmpty())
            return FilarixRows::describe(problems.first());
        fillRows(list, rows);
        return QString();
    }

private:
    // An operator can put any character into a field, those that part the texts included.
    static QString line(QStringList row)
    {
        for (int i = 0; i < row.size(); ++i)
            row[i]
                .replace("\\", "\\\\")
                .replace("\t", "\\t")
                .replace("\n", "\\n")
                .replace("\r", "\\r");
        return row.join("\t");
    }
    static QStringList row(const QString &line)
    {
        QStringList row = line.split('\t');
        for (int i = 0; i < row.size(); ++i)
            row[i] = unescaped(row.at(i));
        return row;
    }
    static QString unescaped(const QString &text)
    {
        QString result;
        for (int i = 0; i < text.size(); ++i) {
            QChar c = text.at(i);
            if (c == '\\' && i + 1 < text.size()) {
                c = text.at(++i);
                c = c == 't' ? QChar('\t') : c == 'n' ? QChar('\n') : c == 'r' ? QChar('\r') : c;
            }
            result += c;
        }
        return result;
    }

    QString m_path;
};
//! [row file]

#endif // ROWFILE_H
