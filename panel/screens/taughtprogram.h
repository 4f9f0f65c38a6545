// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TAUGHTPROGRAM_H
#define TAUGHTPROGRAM_H

#include <QList>
#include <QString>
#include <QStringList>

class MachineData;

/// A program of taught instructions as rows for the library's list, in the list's own form.
///
/// "MJ" and "ML" rows name a point and a speed of the machine's tables and carry their values.
/// "Oth" rows hold a switching command or a note as free text. A row's number is its index in the
/// list, which begins with a title row. Files have the words of no language: shown() gives the
/// operator's.
namespace TaughtProgram {

/// The list's title row.
QStringList titleRow();
/// A movement of the kind "MJ" or "ML" to point \a point at speed \a speed, each by its number in
/// the machine's table.
QStringList movement(const QString &kind, int point, int speed, const MachineData &machine);
/// A command or a note.
QStringList command(const QString &text);
/// A coil of four layers as it would be taught: more than 60 instructions.
QList<QStringList> sample(const MachineData &machine);

/// The row with the words that an operator knows; a list of little width has shorter ones.
QStringList shown(QStringList row, bool isNarrow);
/// The row as a file has it, after shown() or an edit. A movement has its kind for a name: MoveJ or
/// MoveL. Another name becomes its remark.
QStringList stored(QStringList row);
/// The words of the two kinds of movement.
QString jointWord();
QString lineWord();
/// The widest that a narrow list shows of an instruction's name, with the arrow behind it.
QString longestShortWord();

/// Whether a list with titleRow() can show the row.
bool isValid(const QStringList &row);
/// Reads a file of the host; false, with the reason in words, when any row of it is not valid. The
/// rows are stored() ones.
bool load(const QString &path, QList<QStringList> *rows, QString *error);
bool store(const QString &path, const QList<QStringList> &rows, QString *error);

} // namespace TaughtProgram

#endif // TAUGHTPROGRAM_H
