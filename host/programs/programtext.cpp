// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programtext.h"

#include <QBuffer>
#include <QFile>
#include <QTextStream>

#include <algorithm>

namespace {

/// Goes through the lines of a text, which must outlive it.
class Lines
{
public:
    explicit Lines(const QString &text)
        : m_at(text.constData()), m_end(text.constData() + text.size())
    {}

    /// What the loader leaves of the next lines: their code, as far as they have any.
    QString takeCode(int lines)
    {
        QString code;
        for (int i = 0; i < lines; ++i) {
            const QChar *lineEnd = std::find(m_at, m_end, QLatin1Char('\n'));
            const QChar *codeEnd = std::find(m_at, lineEnd, QLatin1Char(';'));
            if (codeEnd != m_at && !code.isEmpty())
                code += QLatin1Char('\n');
            code.insert(code.size(), m_at, int(codeEnd - m_at));
            m_at = lineEnd == m_end ? lineEnd : lineEnd + 1;
        }
        return code;
    }

private:
    const QChar *m_at;
    const QChar *m_end;
};

/// The first pieces take the lines that are left over.
int pieceSize(int lines, int piece)
{
    return lines / ProgramText::loaderPieces + (piece < lines % ProgramText::loaderPieces ? 1 : 0);
}

} // namespace

bool ProgramText::read(const QString &path, QString *text, QString *error, bool *isFaithful)
{
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (!file.isOpen() || file.error() != QFile::NoError) {
        *error = file.errorString();
        return false;
    }
    *text = decoded(bytes);
    *isFaithful = encoded(*text) == bytes.replace("\r\n", "\n");
    return true;
}

QByteArray ProgramText::encoded(const QString &text)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly | QIODevice::Text);
    QTextStream(&buffer) << text;
    return bytes;
}

QString ProgramText::decoded(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    return QTextStream(&buffer).readAll();
}

qint64 ProgramText::lines(const QString &text)
{
    return text.count(QLatin1Char('\n')) + 1;
}

QStringList ProgramText::loaded(const QString &text)
{
    const int count = int(lines(text));
    if (count < loaderThreshold)
        return QStringList(text);
    Lines all(text);
    QStringList pieces;
    for (int i = 0; i < loaderPieces; ++i)
        pieces.append(all.takeCode(pieceSize(count, i)));
    return pieces;
}

int ProgramText::rowOf(const QString &text, int line)
{
    Lines all(text);
    int row = 0;
    for (int i = 0; i < line; ++i) {
        if (!all.takeCode(1).isEmpty())
            ++row;
    }
    return row;
}
