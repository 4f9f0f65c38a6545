// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/styledress.h"

#include "look/stylekeys.h"
#include "look/styleshades.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace {

using Look::Role;

const int lineWidth = 1;
const int padding = 1;
// What the toolkit leaves around the contents of a tool button that has an edge.
const int aroundContents = 3;

/// What a key looks like in one of its states.
struct Face
{
    Role words;
    Role ground;
};

/// The keys of a kind of dress.
struct Faces
{
    Face rest;
    Face chosen;
    Face pressed;
    Face chosenAndPressed;
    Face off;
    bool hasLine;
};

const Faces onStrip = {
    {Role::StripText, Role::StripKey},     {Role::StripText, Role::Accent},
    {Role::StripText, Role::Pressed},      {Role::StripText, Role::Pressed},
    {Role::StripFaint, Role::StripKeyOff}, false,
};
const Faces besideContent = {
    {Role::Text, Role::Key},         {Role::OnAccent, Role::Accent}, {Role::Text, Role::KeyPressed},
    {Role::OnAccent, Role::Pressed}, {Role::KeyFaint, Role::KeyOff}, true,
};

/// Null where the style draws keys as everywhere else.
const Faces *facesIn(const QWidget *widget)
{
    Look::Dress dress = Look::Strip;
    if (!Look::isDressed(widget, &dress) || dress == Look::MessageLine)
        return nullptr;
    return dress == Look::KeyPanel ? &besideContent : &onStrip;
}

Face faceOf(const Faces &faces, const QStyleOption &option)
{
    if (StyleShades::isOff(option))
        return faces.off;
    if (StyleShades::isDown(option))
        return StyleShades::isOn(option) ? faces.chosenAndPressed : faces.pressed;
    return StyleShades::isOn(option) ? faces.chosen : faces.rest;
}

int edgeOf(const Faces &faces)
{
    return padding + (faces.hasLine ? lineWidth : 0);
}

/// The line lies upon the ground, so that no paper shows between the two in a corner.
void drawFace(const Faces &faces, const QRect &rect, const QColor &ground, QPainter *painter)
{
    StyleShades::fill(painter, rect, ground, QColor(), 0);
    if (faces.hasLine)
        StyleShades::fill(painter, rect, Qt::transparent, Look::colour(Role::KeyLine), lineWidth,
                          StyleShades::corner - lineWidth / 2.0);
}

/// What a message is read on has round corners, and the paper around it shows in these.
bool isMessage(Look::Dress dress)
{
    return dress == Look::MessageRow || dress == Look::MessageLine;
}

} // namespace

void StyleDress::drawGround(const QStyleOption &option, QPainter *painter, const QWidget *widget)
{
    QColor ground;
    Look::Dress dress = Look::Strip;
    if (!Look::hasGround(widget, &dress, &ground))
        return;
    if (!isMessage(dress))
        return painter->fillRect(option.rect, ground);
    painter->save();
    StyleShades::fill(painter, option.rect, ground, QColor(), 0);
    painter->restore();
}

bool StyleDress::hasKeys(const QWidget *widget)
{
    return facesIn(widget);
}

QSize StyleDress::sizeOfKey(const QSize &contents, const QWidget *widget)
{
    const Faces *faces = facesIn(widget);
    const int around = aroundContents + (faces ? 2 * edgeOf(*faces) : 0);
    return contents + QSize(around, around);
}

void StyleDress::drawKey(const QStyleOptionToolButton &option, QPainter *painter,
                         const QStyle *style, const QWidget *widget)
{
    const Faces *faces = facesIn(widget);
    if (!faces)
        return;
    const Face face = faceOf(*faces, option);
    drawFace(*faces, option.rect, Look::colour(face.ground), painter);
    QStyleOptionToolButton label(option);
    label.palette.setColor(QPalette::ButtonText, Look::colour(face.words));
    label.rect = StyleKeys::labelOn(option);
    const int edge = edgeOf(*faces);
    if (label.rect == option.rect)
        label.rect.adjust(edge, edge, -edge, -edge);
    style->drawControl(QStyle::CE_ToolButtonLabel, &label, painter, widget);
}
