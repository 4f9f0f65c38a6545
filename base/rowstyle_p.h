// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWSTYLE_P_H
#define ROWSTYLE_P_H

#include <QLatin1String>
#include <QString>
#include <QWidget>

/// The style sheets of rows and their cells, letter for letter as hosts find them in styleSheet().
namespace RowStyle {

const char cell[] = "border-style:solid;border-width: 1px;color: #000000;";
const char plainRow[] =
    "border-style:solid;border-width: 1px; background-color:#ffffff;color: #000000;";
const char selectedRow[] =
    "border-style:solid;border-width: 1px;background-color: #00ffff;color: #ffffff;";

/// Sets a sheet unless it stands already: an equal one would be polished all over again.
///
/// A row that was never shown is polished first, or its cells would keep the colours of the sheet
/// that it was built with.
inline void apply(QWidget *widget, const char *sheet)
{
    const QString text = QLatin1String(sheet);
    if (widget->styleSheet() == text)
        return;
    widget->ensurePolished();
    widget->setStyleSheet(text);
}

} // namespace RowStyle

#endif // ROWSTYLE_P_H
