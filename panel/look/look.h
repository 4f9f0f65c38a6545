// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LOOK_H
#define LOOK_H

#include "base/message.h"

#include <QColor>
#include <QPalette>
#include <QString>
#include <QStringList>
#include <QVector>

class QWidget;

/// The one look of the host: its colours, and what its own strips and keys are dressed as. There
/// are three: light, dark for a dim hall, and one of high contrast for glare.
///
/// Each colour has a role, and one table says what it is in each look. A pair of roles of which one
/// lies on the other stands in pairs(), which tests hold to leastContrast().
///
/// A dress is a palette and what PanelStyle draws by it, and no style sheet. The library's rows and
/// fields carry fixed sheets of their own, and the words of its editor have fixed dark colours.
/// Recolour brings all of these into the other looks.
///
///     Look::use(Look::Dark);
///     Look::dress(strip, Look::Strip);
///     Look::use(Look::Light); // the strip follows
namespace Look {

/// Smallest side of anything that is meant to be touched, in pixels: 9 mm at 96 dpi are 34.
const int smallestTouch = 40;

enum Style { Light, Dark, HighContrast };

/// What a colour is for.
enum class Role {
    Surface,   ///< Behind a screen or a dialog.
    Field,     ///< Behind what is entered or listed.
    Alternate, ///< Behind every other row.
    Raised,    ///< A button of a dialog.
    Text,
    Faint, ///< A text that comes second, or of what is switched off.
    Link,
    Line,     ///< Around a dialog, and around fields on dark ground.
    Accent,   ///< What is chosen.
    Pressed,  ///< What is chosen and pressed, and a pressed key of a strip.
    OnAccent, ///< On either, and on the grounds of tones.
    Strip,    ///< The strips at the edges of the panel.
    StripKey,
    StripKeyOff, ///< A disabled key of a strip.
    StripText,
    StripFaint, ///< On a disabled key of a strip.
    Key,        ///< A key beside a screen's content.
    KeyLine,    ///< Around that.
    KeyPressed,
    KeyOff,
    KeyFaint, ///< On a disabled key.
    OkGround, ///< Behind a message that all is well, also what is switched on.
    WarningGround,
    AlarmGround,
    OkOnStrip, ///< The same as words or drawings on a strip.
    WarningOnStrip,
    AlarmOnStrip,
    Changed,  ///< What is not saved; on a strip.
    Focus,    ///< Around what has the focus of the keyboard.
    FocusLine ///< Around that.
};

/// A text or a drawing, and what it lies on.
struct Pair
{
    Role text;
    Role ground;
};

/// What a widget of the host can be dressed as.
enum Dress {
    Strip,       ///< A dark strip that holds PanelKeys and labels.
    KeyPanel,    ///< PanelKeys beside a screen's content.
    MessageRow,  ///< The message bar, by its property "tone"; see ToneMark::put().
    PickerStrip, ///< The strip of a program picker, by its property "danger".
    MessageLine  ///< A message of a list, by its property "tone".
};

/// The style in use; light until another one is chosen.
Style style();
/// Changes the application's palette, and what was dressed.
void use(Style style);
/// "light", "dark" or "high-contrast".
QString name(Style style);
/// All that name() gives.
QStringList names();
/// Under which the operator's choice is kept in the Settings.
QString settingsKey();
/// Reads what name() gives; false, and \a style as it was, for anything else.
bool read(const QString &name, Style *style);

/// Gives a widget and what is in it the colours of a kind, now and at each change of the style.
/// What PanelStyle draws follows. Once a widget.
void dress(QWidget *widget, Dress dress);
/// After a change of the properties that its dress goes by.
void dressAgain(QWidget *widget);
/// Whether \a widget, or one around it in its window, is dressed; and as what the nearest is.
bool isDressed(const QWidget *widget, Dress *dress);
/// Whether \a widget itself is dressed as something with a ground of its own.
bool hasGround(const QWidget *widget, Dress *dress, QColor *ground);
/// Dark words on light ground, for the library's editor, whose words have fixed dark colours. In
/// the other looks Recolour changes what it draws.
void keepLight(QWidget *widget);

QPalette palette();
QPalette palette(Style style);

QColor colour(Role role);
QColor colour(Role role, Style style);
/// All roles, in their order.
QVector<Role> roles();
/// As the page of the design calls it.
QString name(Role role);
/// Whatever may be read on something.
QVector<Pair> pairs();
/// What each of the pairs has at the least, as the accessibility guidelines count it: 4.5, and 7
/// in the look for glare.
double leastContrast(Style style);

/// Behind white words of that tone.
QColor ground(Message::Tone tone);
/// A word or a drawing of that tone on a strip.
QColor onStrip(Message::Tone tone);

QColor accent();   ///< What is chosen or pressed; for white text.
QColor changed();  ///< What is not saved; on a strip.
QColor edge();     ///< Around a dialog.
QColor keyText();  ///< On a key of a key panel.
QColor keyFaint(); ///< The same while the key is disabled.

QColor focus();     ///< Around what has the focus of the keyboard, in all looks.
QColor focusEdge(); ///< Around that.

QColor stripText();  ///< On a strip, and on its keys.
QColor stripFaint(); ///< On a disabled key of a strip.

} // namespace Look

#endif // LOOK_H
