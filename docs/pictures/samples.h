// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLES_H
#define SAMPLES_H

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>

class ConnEditor;
class FileDialog;
class TListWidget;

/// What the pictures show: programs, files and rows as a winding machine has them.
namespace Samples {

QByteArray program();
/// Writes \a bytes, in a folder that is made; ends the program if that fails.
void write(const QString &path, const QByteArray &bytes);
/// Programs in the program directory and on the stick.
void writePrograms();

/// An instruction as a row of the list.
QStringList movement(int index);
/// The list of a taught program, for a screen of \a size.
TListWidget *list(const QSize &size);
/// The connections of a machine, from a file in the home.
ConnEditor *connections();
/// The browser, on the stick.
FileDialog *browser();

} // namespace Samples

#endif // SAMPLES_H
