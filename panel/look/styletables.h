// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STYLETABLES_H
#define STYLETABLES_H

class QPainter;
class QStyleOption;
class QStyleOptionHeader;
class QStyleOptionMenuItem;
class QStyleOptionTab;

/// How the panel's style draws heads of tables, tabs and menus.
namespace StyleTables {

void drawHead(const QStyleOption &option, QPainter *painter);
/// Behind the last column.
void drawEmptyHead(const QStyleOption &option, QPainter *painter);
void drawSortSign(const QStyleOptionHeader &option, QPainter *painter);

void drawTab(const QStyleOptionTab &option, QPainter *painter);
/// The line below the tabs.
void drawTabBase(const QStyleOption &option, QPainter *painter);

void drawMenuGround(const QStyleOption &option, QPainter *painter);
void drawMenuItem(const QStyleOptionMenuItem &option, QPainter *painter);

} // namespace StyleTables

#endif // STYLETABLES_H
