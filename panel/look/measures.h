// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MEASURES_H
#define MEASURES_H

#include <QEvent>
#include <QSize>
#include <QSizeF>
#include <QStringList>

/// Sizes that a hand and an eye ask for: millimetres in pixels of the panel, and the size that the
/// operator has chosen for texts.
///
/// Both count for the panel program's own widgets and, by properties of the application, for the
/// keypads. The library's texts and geometry are fixed by its design, and stay as they are.
///
///     Measures::use(Measures::dotsPerInchOf(screen->size(), screen->physicalSize()), surface);
///     key->setMinimumHeight(Measures::touch());
namespace Measures {

/// What a glove needs to touch one key and no other, in millimetres.
const qreal touchMm = 9;
/// The key that stops what runs is hit without a look.
const qreal stopMm = 15;
/// Of a screen that tells no sensible size.
const qreal usualDotsPerInch = 96;
const qreal fewestDotsPerInch = 50;
const qreal mostDotsPerInch = 360;

bool isSensible(qreal dotsPerInch);
/// Along the diagonal. The usual ones for a screen that tells no size, or one that cannot be.
qreal dotsPerInchOf(const QSize &pixels, const QSizeF &millimetres);

/// From now on; what isn't sensible is taken for the usual. \a surface says how much room there is;
/// an invalid one has room for all.
void use(qreal dotsPerInch, const QSize &surface = QSize());
qreal dotsPerInch();
/// Rounded up.
int pixels(qreal millimetres);
/// The smallest side of anything that is meant to be touched: `touchMm`, as far as there is room.
/// Never below Look::smallestTouch.
int touch();
/// The same of what is touched in gloves all day, rows and keys of lists among it. At least 48
/// pixels, which are 9 mm on the usual panel.
int glove();
/// How wide a column of keys beside a screen's content is: the same on each screen. Three keys of
/// the usual panel have room, or two for gloves on one of finer pixels, and a narrow surface keeps
/// most of its width. Wider only for the words of a language.
int keyColumn();
/// The key that stops what runs: `stopMm` wide, and as high where the surface is not low.
QSize stop();

/// In percent of the usual size, the usual one first.
QList<int> textSizes();
int textSize();
/// Tells all widgets by an event textSizeChange(). \a percent is one of textSizes(), else nothing
/// happens.
void useTextSize(int percent);
QEvent::Type textSizeChange();
/// A font's size in pixels at the chosen size of texts.
int letters(int pixels);

/// Under which the operator's choice is kept in the Settings.
QString textSizeKey();
/// All that nameOf() gives.
QStringList textSizeNames();
/// "100" and so on.
QString nameOf(int percent);

} // namespace Measures

#endif // MEASURES_H
