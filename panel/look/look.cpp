// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/look.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>

namespace {

const char dressProperty[] = "lookDress";
// Beside the values of Look::Dress.
const int lightGround = -1;

Look::Style currentStyle = Look::Light;

struct Colours
{
    // Screens and dialogs.
    QRgb paper;
    QRgb base;
    QRgb alternate;
    QRgb text;
    QRgb faint;
    QRgb button;
    QRgb link;
    QRgb edge;
    // Strips are dark in both styles, so that the content stands out.
    QRgb strip;
    QRgb stripKey;
    QRgb stripKeyOff;
    QRgb stripFaint;
    // Keys beside a screen's content.
    QRgb key;
    QRgb keyEdge;
    QRgb keyPressed;
    QRgb keyOff;
    QRgb keyFaint;
};

const Colours colourTable[] = {
    {0xffeef1f5, 0xffffffff, 0xffe4eaf1, 0xff17202b, 0xff66727f, 0xffdfe5ec, 0xff1659a8,
     0xff17202b,                                     //
     0xff17202b, 0xff2b3a4a, 0xff1f2a36, 0xff8b9aab, //
     0xffffffff, 0xff9fb0c2, 0xffb7d7fb, 0xffe6ebf0, 0xff66727f},
    {0xff1d242c, 0xff12171c, 0xff222b34, 0xffe8edf2, 0xff8e9ba8, 0xff323e4a, 0xff8ec3ff,
     0xff8e9ba8,                                     //
     0xff0b0f13, 0xff26313c, 0xff151b21, 0xff7f8d9b, //
     0xff2f3b47, 0xff566473, 0xff1d4f86, 0xff232c35, 0xff8e9ba8},
};

const QRgb accentRgb = 0xff1a6fd0;
const QRgb accentPressed = 0xff0d4d99;
const QRgb informationGround = 0xff23753a;
const QRgb warningGround = 0xff8a5a00;
const QRgb alarmGround = 0xffb92525;
const QRgb informationOnStrip = 0xff7ddb98;
const QRgb warningOnStrip = 0xffffc04d;
const QRgb alarmOnStrip = 0xffff8a80;
const QRgb focusRgb = 0xffffd23f;
const QRgb focusEdgeRgb = 0xff000000;
const QRgb white = 0xffffffff;

const Colours &colours()
{
    return colourTable[currentStyle];
}

QString hex(QRgb colour)
{
    return QColor(colour).name();
}

QString stripSheet()
{
    return QString::fromLatin1("#strip, #menu { background: %1; }"
                               "QLabel, ElidedLabel { color: %2; background: transparent; }"
                               "PanelKey { color: %2; background: %3; border: 0;"
                               "  border-radius: 6px; padding: 1px; }"
                               "PanelKey:checked { background: %4; }"
                               "PanelKey:pressed { background: %5; }"
                               "PanelKey:disabled { color: %6; background: %7; }")
        .arg(hex(colours().strip), hex(white), hex(colours().stripKey), hex(accentRgb),
             hex(accentPressed), hex(colours().stripFaint), hex(colours().stripKeyOff));
}

QString keyPanelSheet()
{
    return QString::fromLatin1("PanelKey { color: %1; background: %2; border: 1px solid %3;"
                               "  border-radius: 6px; padding: 1px; }"
                               "PanelKey:checked { color: %4; background: %5; }"
                               "PanelKey:pressed { color: %1; background: %6; }"
                               "PanelKey:checked:pressed { color: %4; background: %9; }"
                               "PanelKey:disabled { color: %7; background: %8; }")
        .arg(hex(colours().text), hex(colours().key), hex(colours().keyEdge), hex(white),
             hex(accentRgb), hex(colours().keyPressed), hex(colours().keyFaint),
             hex(colours().keyOff), hex(accentPressed));
}

/// The rules by which the frames that \a frame selects have the ground of their tone.
QString toneRules(const QString &frame)
{
    return QString::fromLatin1("%1 { border: 0; border-radius: 6px; background: transparent; }"
                               "%1[tone=\"information\"] { background: %2; }"
                               "%1[tone=\"warning\"] { background: %3; }"
                               "%1[tone=\"alarm\"] { background: %4; }")
        .arg(frame, hex(informationGround), hex(warningGround), hex(alarmGround));
}

QString messageRowSheet()
{
    return toneRules(QLatin1String("#messageBar")) + stripSheet();
}

QString pickerStripSheet()
{
    return QString::fromLatin1("#pickerStrip { background: %1; }"
                               "#pickerStrip[danger=\"true\"] { background: %8; }"
                               "QLabel { color: %2; background: transparent; }"
                               "QToolButton { color: %2; background: %3; border: 0;"
                               "  border-radius: 6px; padding: 1px; }"
                               "QToolButton:checked { background: %4; }"
                               "QToolButton:pressed { background: %5; }"
                               "QToolButton:disabled { color: %6; background: %7; }"
                               "QLineEdit { border: 1px solid %9; border-radius: 6px; }")
        .arg(hex(colours().strip), hex(white), hex(colours().stripKey), hex(accentRgb),
             hex(accentPressed), hex(colours().stripFaint), hex(colours().stripKeyOff),
             hex(alarmGround), hex(colours().stripFaint));
}

QString messageListSheet()
{
    return toneRules(QLatin1String("#message"))
           + QString::fromLatin1("#message QLabel { color: %1; background: transparent; }"
                                 "#message[tone=\"none\"] QLabel { color: %2; }")
                 .arg(hex(white), hex(colours().text));
}

/// The other roles go on following the application's palette, and what the widget has set itself
/// stays.
void lighten(QWidget *widget)
{
    const Colours &light = colourTable[Look::Light];
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Base, QColor(currentStyle == Look::Dark ? light.paper : light.base));
    // The editor marks the current line with it, so it has to differ from the paper in bright
    // light. A line that is marked already keeps the colour, so both styles have the same.
    palette.setColor(QPalette::AlternateBase, QColor(0xcf, 0xe3, 0xfb));
    palette.setColor(QPalette::Text, QColor(light.text));
    widget->setPalette(palette);
}

} // namespace

Look::Style Look::style()
{
    return currentStyle;
}

void Look::use(Style style)
{
    currentStyle = style;
    QApplication::setPalette(palette());
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        const QVariant dress = widget->property(dressProperty);
        if (!dress.isValid())
            continue;
        if (dress.toInt() == lightGround)
            lighten(widget);
        else
            widget->setStyleSheet(sheet(Dress(dress.toInt())));
    }
}

QString Look::name(Style style)
{
    return style == Dark ? QLatin1String("dark") : QLatin1String("light");
}

QStringList Look::names()
{
    return {name(Light), name(Dark)};
}

QString Look::settingsKey()
{
    return QLatin1String("look");
}

bool Look::read(const QString &text, Style *style)
{
    for (Style known : {Light, Dark}) {
        if (text == name(known)) {
            *style = known;
            return true;
        }
    }
    return false;
}

void Look::dress(QWidget *widget, Dress dress)
{
    widget->setProperty(dressProperty, int(dress));
    widget->setStyleSheet(sheet(dress));
}

void Look::keepLight(QWidget *widget)
{
    widget->setProperty(dressProperty, lightGround);
    lighten(widget);
}

QString Look::sheet(Dress dress)
{
    switch (dress) {
    case Strip:
        return stripSheet();
    case KeyPanel:
        return keyPanelSheet();
    case MessageRow:
        return messageRowSheet();
    case PickerStrip:
        return pickerStripSheet();
    case MessageList:
        return messageListSheet();
    }
    return QString();
}

QPalette Look::palette()
{
    const QColor text(colours().text);
    const QColor faint(colours().faint);
    // The toolkit derives the shades of frames from the two.
    QPalette palette(QColor(colours().button), QColor(colours().paper));
    palette.setColor(QPalette::Base, QColor(colours().base));
    palette.setColor(QPalette::AlternateBase, QColor(colours().alternate));
    palette.setColor(QPalette::Highlight, QColor(accentRgb));
    palette.setColor(QPalette::HighlightedText, QColor(white));
    palette.setColor(QPalette::ToolTipBase, QColor(colours().base));
    palette.setColor(QPalette::Link, QColor(colours().link));
    palette.setColor(QPalette::LinkVisited, QColor(colours().link));
    palette.setColor(QPalette::BrightText, QColor(white));
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText,
                                     QPalette::ToolTipText, QPalette::PlaceholderText}) {
        palette.setColor(role, role == QPalette::PlaceholderText ? faint : text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

QColor Look::ground(Message::Tone tone)
{
    return QColor(tone == Message::Alarm     ? alarmGround
                  : tone == Message::Warning ? warningGround
                                             : informationGround);
}

QColor Look::onStrip(Message::Tone tone)
{
    return QColor(tone == Message::Alarm     ? alarmOnStrip
                  : tone == Message::Warning ? warningOnStrip
                                             : informationOnStrip);
}

QColor Look::accent()
{
    return accentRgb;
}

QColor Look::changed()
{
    return QColor(0xff, 0xc0, 0x4d);
}

QColor Look::edge()
{
    return colours().edge;
}

QColor Look::keyText()
{
    return colours().text;
}

QColor Look::keyFaint()
{
    return colours().keyFaint;
}

QColor Look::focus()
{
    return focusRgb;
}

QColor Look::focusEdge()
{
    return focusEdgeRgb;
}

QColor Look::stripText()
{
    return white;
}

QColor Look::stripFaint()
{
    return colours().stripFaint;
}
