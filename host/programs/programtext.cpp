// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programtext.h"

#include <QBuffer>
#include <QFile>
#include <QTextStream>

namespace {

QString cleaned(const QVector<QStringRef> &lines)
{
    QStringList kept;
    for (const QStringRef &line : lines) {
        const QStringRef code = line.left(line.indexOf(QLatin1Char(';')));
        if (!code.isEmpty())
            kept.append(code.toString());
    }
    return kept.join(QLatin1Char('\n'));
}

// The first ones take what doesn't come out even.
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
    if (!file.isOpen() || file.error() != QFileDevice::NoError) {
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
    const QVector<QStringRef> lines = text.splitRef(QLatin1Char('\n'));
    if (lines.size() < loaderThreshold)
        return {text};
    QStringList pieces;
    int position = 0;
    for (int i = 0; i < loaderPieces; ++i) {
        const int size = pieceSize(lines.size(), i);
        pieces.append(cleaned(lines.mid(position, size)));
        position += size;
    }
    return pieces;
}
