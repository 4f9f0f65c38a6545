// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LOOK_H
#define LOOK_H

#include <QColor>
#include <QPalette>
#include <QString>

/// The one look of the host: colours and the style sheets of its own strips.
///
/// Sheets are set on the host's own widgets only, never on the application or on a parent of a
/// widget of the library: the library's rows and fields carry fixed sheets of their own.
namespace Look {

/// Smallest side of anything that is meant to be touched, in pixels: 9 mm at 96 dpi are 34.
const int kTouch = 40;

QColor ink();     ///< Background of the host's strips.
QColor paper();   ///< Background of the screens.
QColor accent();  ///< What is chosen or pressed.
QColor alert();   ///< What the operator has to see to.
QColor good();    ///< What went well.
QColor changed(); ///< What is not saved.

QPalette palette();
/// For dark strips that hold PanelKeys and labels.
QString stripSheet();
/// For light panels of PanelKeys beside a screen's content.
QString keyPanelSheet();

} // namespace Look

#endif // LOOK_H
