// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMTEXT_H
#define PROGRAMTEXT_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A program between its file and the editor, as the library reads, cleans and writes it.
namespace ProgramText {

/// From this number of parts between line ends on, the loader cleans a program.
const int loaderThreshold = 500;
/// The loader puts a program that it cleans in as so many pieces.
const int loaderPieces = 50;

/// Reads a file as the library does, in the locale's encoding. False with \a error, in the system's
/// words, when it can't be read. \a isFaithful tells whether the same text, stored, gives the same
/// bytes, but for the kind of line ends.
bool read(const QString &path, QString *text, QString *error, bool *isFaithful);
/// The bytes that the library writes for a document's text.
QByteArray encoded(const QString &text);
/// The text that the library reads from bytes.
QString decoded(const QByteArray &bytes);
/// Lines as the editor's read-out counts: one more than there are line ends.
qint64 lines(const QString &text);
/// What the loader puts into the editor, piece by piece; one piece for a program that it doesn't
/// clean. A piece of nothing but comments is empty, and adds no line.
QStringList loaded(const QString &text);
/// Of a program that the loader cleans: where line \a line of the file, from 1, is in the editor.
/// Of a line without code it is the one before, and 0 above the first.
int rowOf(const QString &text, int line);

} // namespace ProgramText

#endif // PROGRAMTEXT_H
