// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/look.h"

#include "look/recolour.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QToolButton>
#include <QVariant>
#include <QWidget>

#include <initializer_list>

namespace {

using Look::Role;

const char dressProperty[] = "lookDress";
const char toneProperty[] = "tone";
const char dangerProperty[] = "danger";
// The toolkit's own.
const char iconLabelName[] = "qt_msgboxex_icon_label";

Look::Style currentStyle = Look::Light;

/// One line a role, in the order of Look::Role.
const struct
{
    const char *name;
    QRgb colours[3];
} tints[] = {
    // clang-format off
    {"surface",          {0xffeef1f5, 0xff1d242c, 0xffffffff}},
    {"field",            {0xffffffff, 0xff12171c, 0xffffffff}},
    {"alternate",        {0xffe4eaf1, 0xff222b34, 0xffe6e6e6}},
    {"raised",           {0xffdfe5ec, 0xff323e4a, 0xfff0f0f0}},
    {"text",             {0xff17202b, 0xffe8edf2, 0xff000000}},
    {"faint",            {0xff56616d, 0xffa9b5c1, 0xff454545}},
    {"link",             {0xff1659a8, 0xff8ec3ff, 0xff003a8c}},
    {"line",             {0xff17202b, 0xff8e9ba8, 0xff000000}},
    {"accent",           {0xff1a6fd0, 0xff1a6fd0, 0xff003f9e}},
    {"pressed",          {0xff0d4d99, 0xff0d4d99, 0xff002866}},
    {"on accent",        {0xffffffff, 0xffffffff, 0xffffffff}},
    // Strips are dark in all looks, so that the content stands out.
    {"strip",            {0xff17202b, 0xff0b0f13, 0xff000000}},
    {"strip key",        {0xff2b3a4a, 0xff26313c, 0xff2b2b2b}},
    {"strip key off",    {0xff1f2a36, 0xff151b21, 0xff000000}},
    {"strip text",       {0xffffffff, 0xffffffff, 0xffffffff}},
    {"strip faint",      {0xff8b9aab, 0xff7f8d9b, 0xffc0c0c0}},
    {"key",              {0xffffffff, 0xff2f3b47, 0xffffffff}},
    {"key line",         {0xff9fb0c2, 0xff566473, 0xff000000}},
    {"key pressed",      {0xffb7d7fb, 0xff1d4f86, 0xff9fc8ff}},
    {"key off",          {0xffe6ebf0, 0xff232c35, 0xffe6e6e6}},
    {"key faint",        {0xff56616d, 0xffa9b5c1, 0xff454545}},
    {"ok ground",        {0xff23753a, 0xff23753a, 0xff0f5a26}},
    {"warning ground",   {0xff8a5a00, 0xff8a5a00, 0xff6b4400}},
    {"alarm ground",     {0xffb92525, 0xffb92525, 0xff96101a}},
    {"ok on strip",      {0xff7ddb98, 0xff7ddb98, 0xff8ff0ab}},
    {"warning on strip", {0xffffc04d, 0xffffc04d, 0xffffd27a}},
    {"alarm on strip",   {0xffff8a80, 0xffff8a80, 0xffffb0a8}},
    {"changed",          {0xffffc04d, 0xffffc04d, 0xffffd27a}},
    {"focus",            {0xffffd23f, 0xffffd23f, 0xffffd23f}},
    {"focus line",       {0xff000000, 0xff000000, 0xff000000}},
    // clang-format on
};

const char *const styleNames[] = {"light", "dark", "high-contrast"};

/// What the frame or the bar is read on; nothing while it tells nothing.
bool toneGround(const QWidget *widget, QColor *ground)
{
    static const struct
    {
        const char *tone;
        Role ground;
    } grounds[] = {
        {"information", Role::OkGround},
        {"warning", Role::WarningGround},
        {"alarm", Role::AlarmGround},
    };
    const QString tone = widget->property(toneProperty).toString();
    for (const auto &entry : grounds) {
        if (tone != QLatin1String(entry.tone))
            continue;
        *ground = Look::colour(entry.ground);
        return true;
    }
    return false;
}

/// What lies on the ground of a dressed widget is read by these.
QPalette paletteOn(const QWidget *widget, Look::Dress dress)
{
    QPalette palette;
    QColor ground = Look::colour(Role::Strip);
    const bool hasGround = Look::hasGround(widget, &dress, &ground);
    if (dress == Look::MessageLine && !hasGround)
        return palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, Look::colour(Role::StripText));
    // The part of work that is done.
    palette.setColor(QPalette::Highlight, Look::colour(Role::StripText));
    return palette;
}

/// A tool button keeps the size that it has reckoned until something of its own changes.
void tellKeys(QWidget *widget)
{
    const QList<QToolButton *> keys = widget->findChildren<QToolButton *>();
    for (QToolButton *key : keys) {
        QEvent change(QEvent::StyleChange);
        QApplication::sendEvent(key, &change);
    }
}

/// A message box keeps the picture that was drawn when it was made. Given to the box itself, a new
/// one would have it lay itself out anew, without its title.
void redrawIcon(const QMessageBox *box)
{
    QLabel *label = box->findChild<QLabel *>(QLatin1String(iconLabelName));
    if (label && box->icon() != QMessageBox::NoIcon)
        label->setPixmap(QMessageBox(box->icon(), QString(), QString()).iconPixmap());
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
        dressAgain(widget);
        if (const QMessageBox *box = qobject_cast<QMessageBox *>(widget))
            redrawIcon(box);
    }
    Recolour::follow();
}

QString Look::name(Style style)
{
    return QLatin1String(styleNames[style]);
}

QStringList Look::names()
{
    return {name(Light), name(Dark), name(HighContrast)};
}

QString Look::settingsKey()
{
    return QLatin1String("look");
}

bool Look::read(const QString &text, Style *style)
{
    const int index = names().indexOf(text);
    if (index < 0)
        return false;
    *style = Style(index);
    return true;
}

void Look::dress(QWidget *widget, Dress dress)
{
    widget->setProperty(dressProperty, int(dress));
    // The toolkit asks the style for a ground only where it is told to.
    if (dress != KeyPanel)
        widget->setAttribute(Qt::WA_StyledBackground);
    dressAgain(widget);
    tellKeys(widget);
}

void Look::dressAgain(QWidget *widget)
{
    const QVariant dress = widget->property(dressProperty);
    if (!dress.isValid() || dress.toInt() == KeyPanel)
        return;
    widget->setPalette(paletteOn(widget, Dress(dress.toInt())));
    widget->update();
}

bool Look::isDressed(const QWidget *widget, Dress *dress)
{
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        const QVariant own = widget->property(dressProperty);
        if (!own.isValid())
            continue;
        *dress = Dress(own.toInt());
        return true;
    }
    return false;
}

bool Look::hasGround(const QWidget *widget, Dress *dress, QColor *ground)
{
    const QVariant own = widget ? widget->property(dressProperty) : QVariant();
    if (!own.isValid() || own.toInt() == KeyPanel)
        return false;
    *dress = Dress(own.toInt());
    if (*dress == MessageRow || *dress == MessageLine)
        return toneGround(widget, ground);
    const bool isDanger = *dress == PickerStrip && widget->property(dangerProperty).toBool();
    *ground = colour(isDanger ? Role::AlarmGround : Role::Strip);
    return true;
}

void Look::keepLight(QWidget *widget)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Base, colour(Role::Field, Light));
    palette.setColor(QPalette::AlternateBase, Recolour::lineMark(currentStyle));
    palette.setColor(QPalette::Text, colour(Role::Text, Light));
    widget->setPalette(palette);
}

QPalette Look::palette()
{
    return palette(currentStyle);
}

QPalette Look::palette(Style style)
{
    const QColor text = colour(Role::Text, style);
    const QColor faint = colour(Role::Faint, style);
    const QColor link = colour(Role::Link, style);
    // The toolkit derives the shades of frames from the two.
    QPalette palette(colour(Role::Raised, style), colour(Role::Surface, style));
    palette.setColor(QPalette::Base, colour(Role::Field, style));
    palette.setColor(QPalette::AlternateBase, colour(Role::Alternate, style));
    palette.setColor(QPalette::Highlight, colour(Role::Accent, style));
    palette.setColor(QPalette::HighlightedText, colour(Role::OnAccent, style));
    palette.setColor(QPalette::ToolTipBase, colour(Role::Field, style));
    palette.setColor(QPalette::Link, link);
    palette.setColor(QPalette::LinkVisited, link);
    palette.setColor(QPalette::BrightText, colour(Role::OnAccent, style));
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText,
                                     QPalette::ToolTipText, QPalette::PlaceholderText}) {
        palette.setColor(role, role == QPalette::PlaceholderText ? faint : text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

QColor Look::colour(Role role)
{
    return colour(role, currentStyle);
}

QColor Look::colour(Role role, Style style)
{
    return QColor(tints[int(role)].colours[style]);
}

QVector<Look::Role> Look::roles()
{
    QVector<Role> all;
    for (int i = 0; i <= int(Role::FocusLine); ++i)
        all.append(Role(i));
    return all;
}

QString Look::name(Role role)
{
    return QLatin1String(tints[int(role)].name);
}

QVector<Look::Pair> Look::pairs()
{
    QVector<Pair> all;
    const auto lay = [&all](const std::initializer_list<Role> &texts,
                            const std::initializer_list<Role> &grounds) {
        for (Role text : texts) {
            for (Role ground : grounds)
                all.append({text, ground});
        }
    };
    lay({Role::Text, Role::Faint}, {Role::Surface, Role::Field, Role::Alternate, Role::Raised});
    lay({Role::Link}, {Role::Surface, Role::Field, Role::Alternate});
    lay({Role::Text}, {Role::Key, Role::KeyPressed});
    lay({Role::KeyFaint}, {Role::KeyOff});
    lay({Role::OnAccent, Role::StripText},
        {Role::Accent, Role::Pressed, Role::OkGround, Role::WarningGround, Role::AlarmGround});
    lay({Role::StripText, Role::OkOnStrip, Role::WarningOnStrip, Role::AlarmOnStrip, Role::Changed},
        {Role::Strip, Role::StripKey});
    lay({Role::StripFaint}, {Role::Strip, Role::StripKeyOff});
    lay({Role::Focus}, {Role::FocusLine});
    return all;
}

double Look::leastContrast(Style style)
{
    return style == HighContrast ? 7 : 4.5;
}

QColor Look::ground(Message::Tone tone)
{
    return colour(tone == Message::Alarm     ? Role::AlarmGround
                  : tone == Message::Warning ? Role::WarningGround
                                             : Role::OkGround);
}

QColor Look::onStrip(Message::Tone tone)
{
    return colour(tone == Message::Alarm     ? Role::AlarmOnStrip
                  : tone == Message::Warning ? Role::WarningOnStrip
                                             : Role::OkOnStrip);
}

QColor Look::accent()
{
    return colour(Role::Accent);
}

QColor Look::changed()
{
    return colour(Role::Changed);
}

QColor Look::edge()
{
    return colour(Role::Line);
}

QColor Look::keyText()
{
    return colour(Role::Text);
}

QColor Look::keyFaint()
{
    return colour(Role::KeyFaint);
}

QColor Look::focus()
{
    return colour(Role::Focus);
}

QColor Look::focusEdge()
{
    return colour(Role::FocusLine);
}

QColor Look::stripText()
{
    return colour(Role::StripText);
}

QColor Look::stripFaint()
{
    return colour(Role::StripFaint);
}
