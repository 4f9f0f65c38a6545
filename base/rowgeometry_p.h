// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWGEOMETRY_P_H
#define ROWGEOMETRY_P_H

#include <QWidget>

/// The measures of rows and cells in pixels, all of them from the width and the height of the list
/// that the rows belong to.
namespace RowGeometry {

/// A list is cut into this many lines of text.
const double linesPerHeight = 24.0;
/// A row is a little higher than its line.
const double rowPerLine = 1.04;

/// The side margins of a row.
const int sideMargin = 5;

/// Height of one line of cells.
inline int lineHeight(int listHeight)
{
    return int(listHeight / linesPerHeight);
}

/// Height of the detail area.
inline int detailHeight(int listHeight)
{
    return int(2.0 * listHeight / linesPerHeight);
}

/// Height of a closed row, and of every row of a table.
inline int rowHeight(int listHeight)
{
    return int(listHeight * rowPerLine / linesPerHeight);
}

/// Height of an open row.
inline int openRowHeight(int listHeight)
{
    return int(3.0 * listHeight * rowPerLine / linesPerHeight);
}

/// Width of the table row that an instruction row carries.
inline int editorWidth(int listWidth)
{
    return int((listWidth + 0.513) / 1.026 + 7.0);
}

/// Width of a cell of which \a factor would fill the list, rounded, less its border.
///
/// In single precision throughout: in double precision some cells come out a pixel wider.
inline int cellWidth(int listWidth, float factor)
{
    if (!(factor > 0.0f))
        return 0;
    const float width = (float(listWidth) + factor * 0.5f) / factor - 2.0f;
    return int(qBound(0.0f, width, float(QWIDGETSIZE_MAX)));
}

} // namespace RowGeometry

#endif // ROWGEOMETRY_P_H
