// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWTEXT_H
#define ROWTEXT_H

#include "base/filarixhostglobal.h"

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QString>
#include <QStringList>

/// List rows as other programs read and write them: as CSV, for spreadsheets, and as JSON, for
/// servers. The bytes are UTF-8; DurableFile brings them to a disk.
///
///     QList<QStringList> rows;
///     QString error;
///     if (!RowText::fromCsv(bytes, &rows, &error))
///         tell(error);
///
/// The readers are strict, for a file may come from anywhere. What is not wholly well-formed gives
/// an error that names the line, and leaves \a rows alone. The readers look at the form only.
/// Whether a list takes such rows, FilarixRows::checkRows() says.
namespace RowText {

/// One row a line, its strings parted by \a separator: some countries' spreadsheets want ';'. What
/// holds a separator, a quotation mark, a line end, or a blank at an end, stands in quotation
/// marks. A row without strings is left out. To a spreadsheet a string that begins with "=" is a
/// formula.
FILARIX_HOST_EXPORT QByteArray toCsv(const QList<QStringList> &rows,
                                     QChar separator = QLatin1Char(','));
/// Reads rows back. Lines may end by "\n" or "\r\n"; empty ones are left out. A quotation mark has
/// to begin its string, and be closed at the string's end.
FILARIX_HOST_EXPORT bool fromCsv(const QByteArray &bytes, QList<QStringList> *rows, QString *error,
                                 QChar separator = QLatin1Char(','));

/// An array of rows, each an array of strings, one row a line.
FILARIX_HOST_EXPORT QByteArray toJson(const QList<QStringList> &rows);
/// Reads such an array back. Anything but strings in a row is refused, numbers too.
FILARIX_HOST_EXPORT bool fromJson(const QByteArray &bytes, QList<QStringList> *rows,
                                  QString *error);

} // namespace RowText

#endif // ROWTEXT_H
