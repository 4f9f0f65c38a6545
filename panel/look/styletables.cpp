// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/styletables.h"

#include "look/glyphs.h"
#include "look/styleshades.h"

#include <QPainter>
#include <QStyleOption>

namespace {

const int signSide = 20;
const int tabMark = 4;
const int menuMargin = 8;
const int menuMark = 20;

bool isSelected(const QStyleOption &option)
{
    return option.state & QStyle::State_Selected;
}

/// Where the tab meets its page.
QRect tabMarkOf(const QStyleOptionTab &option)
{
    QRect mark = option.rect;
    switch (option.shape) {
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        mark.setTop(mark.bottom() - tabMark + 1);
        break;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        mark.setWidth(tabMark);
        break;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        mark.setLeft(mark.right() - tabMark + 1);
        break;
    default:
        mark.setHeight(tabMark);
    }
    return mark;
}

void drawSeparator(const QStyleOptionMenuItem &option, QPainter *painter)
{
    const int middle = option.rect.center().y();
    painter->setPen(StyleShades::edge(option));
    painter->drawLine(option.rect.left() + menuMargin, middle, option.rect.right() - menuMargin,
                      middle);
}

QColor menuWords(const QStyleOptionMenuItem &option)
{
    if (StyleShades::isOff(option))
        return option.palette.color(QPalette::Disabled, QPalette::Text);
    return option.palette.color(isSelected(option) ? QPalette::HighlightedText : QPalette::Text);
}

/// The shortcut stands behind a tabulator.
void drawMenuWords(const QStyleOptionMenuItem &option, QPainter *painter, const QRect &room)
{
    const QStringList words = option.text.split(QLatin1Char('\t'));
    const int flags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextHideMnemonic;
    painter->setFont(option.font);
    painter->setPen(menuWords(option));
    painter->drawText(room, flags | Qt::AlignLeft, words.first());
    if (words.size() > 1)
        painter->drawText(room, flags | Qt::AlignRight, words.last());
}

void drawMenuSign(const QStyleOptionMenuItem &option, QPainter *painter, const QRect &place)
{
    if (option.checked)
        return Glyphs::draw(Glyphs::Check, painter, place, menuWords(option));
    if (!option.icon.isNull())
        option.icon.paint(painter, place, Qt::AlignCenter,
                          StyleShades::isOff(option) ? QIcon::Disabled : QIcon::Normal);
}

} // namespace

void StyleTables::drawHead(const QStyleOption &option, QPainter *painter)
{
    QStyleOption key(option);
    key.state.setFlag(QStyle::State_On, false);
    painter->fillRect(option.rect, StyleShades::key(key));
    painter->setPen(StyleShades::edge(option));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    const QStyleOptionHeader *head = qstyleoption_cast<const QStyleOptionHeader *>(&option);
    const bool isLast = !head || head->position == QStyleOptionHeader::End
                        || head->position == QStyleOptionHeader::OnlyOneSection;
    if (!isLast)
        painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
}

void StyleTables::drawEmptyHead(const QStyleOption &option, QPainter *painter)
{
    painter->fillRect(option.rect, option.palette.brush(QPalette::Button));
    painter->setPen(StyleShades::edge(option));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
}

void StyleTables::drawSortSign(const QStyleOptionHeader &option, QPainter *painter)
{
    if (option.sortIndicator == QStyleOptionHeader::None)
        return;
    QRect place(QPoint(), QSize(signSide, signSide));
    place.moveCenter(option.rect.center());
    const bool isUp = option.sortIndicator == QStyleOptionHeader::SortUp;
    StyleShades::drawArrow(painter, place, isUp ? Qt::UpArrow : Qt::DownArrow,
                           StyleShades::sign(option));
}

void StyleTables::drawTab(const QStyleOptionTab &option, QPainter *painter)
{
    QStyleOption key(option);
    key.state.setFlag(QStyle::State_On, false);
    painter->fillRect(option.rect, isSelected(option) ? option.palette.color(QPalette::Window)
                                                      : StyleShades::key(key));
    painter->setBrush(Qt::NoBrush);
    painter->setPen(StyleShades::edge(option));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    if (isSelected(option))
        painter->fillRect(tabMarkOf(option), option.palette.color(QPalette::Highlight));
}

void StyleTables::drawTabBase(const QStyleOption &option, QPainter *painter)
{
    painter->fillRect(option.rect, StyleShades::edge(option));
}

void StyleTables::drawMenuGround(const QStyleOption &option, QPainter *painter)
{
    painter->setBrush(option.palette.brush(QPalette::Base));
    painter->setPen(StyleShades::edge(option));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void StyleTables::drawMenuItem(const QStyleOptionMenuItem &option, QPainter *painter)
{
    painter->fillRect(option.rect, option.palette.color(isSelected(option) ? QPalette::Highlight
                                                                           : QPalette::Base));
    if (option.menuItemType == QStyleOptionMenuItem::Separator)
        return drawSeparator(option, painter);
    QRect sign(0, 0, menuMark, menuMark);
    sign.moveCenter(
        QPoint(option.rect.left() + menuMargin + menuMark / 2, option.rect.center().y()));
    drawMenuSign(option, painter, sign);
    QRect room = option.rect.adjusted(2 * menuMargin + menuMark, 0, -menuMargin, 0);
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QRect arrow(room.right() - menuMark + 1, sign.top(), menuMark, menuMark);
        StyleShades::drawArrow(painter, arrow, Qt::RightArrow, menuWords(option));
        room.setRight(arrow.left());
    }
    drawMenuWords(option, painter, room);
}
