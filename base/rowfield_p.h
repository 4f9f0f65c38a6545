// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWFIELD_P_H
#define ROWFIELD_P_H

#include <QString>

class QHBoxLayout;
class QWidget;

/// The cells of rows, whatever their class.
namespace RowField {

enum Type {
    ClickableLabel = 0, // Label
    PassiveLabel = 1,   // QLabel
    NumberField = 2,    // ComboLineEdit with a QDoubleValidator, for the numeric keypad
    TextField = 3,      // ComboLineEdit for the character keypad
    Area = 4            // QWidget, as for every other number
};

/// A new cell with a fixed width in pixels, which takes its height from the layout.
QWidget *create(QWidget *parent, int type, const QString &text, int width,
                const QString &styleSheet);

/// A layout for the cells of a line. It must lie in a widget of fixed height: a new text in a cell
/// does not lay it out anew.
QHBoxLayout *createLine();

/// Writes a cell by its class: a label or a ComboLineEdit. Any other, and null, is left alone.
/// A field emits neither clicked() nor changed().
void setText(QWidget *field, const QString &text);
/// Reads a cell by its class. Empty for any other class and for null.
QString text(QWidget *field);

} // namespace RowField

#endif // ROWFIELD_P_H
