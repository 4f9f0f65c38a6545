// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/measures.h"

#include "look/look.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <cmath>

namespace {

const qreal mmPerInch = 25.4;
// Of the shorter side: five keys and the strips stand above one another on the smallest panel.
const int keysOnASide = 5;
// 9 mm at 133 dpi.
const int gloveSide = 48;
// A column has room for so many usual keys, or for gloves; with this between and around them.
const int usualKeys = 3;
const int gloveKeys = 2;
const int keyGap = 4;
// Of the width, in percent; what is beside the keys is the screen's content.
const int columnPercent = 31;
// Whatever the screen tells of itself, something has to stand beside it.
const int stopsOnASide = 3;
// A surface of no more height has no room for a key of 15 mm.
const int lowSurface = 300;

qreal currentDotsPerInch = Measures::usualDotsPerInch;
int shorterSide = QWIDGETSIZE_MAX;
int surfaceWidth = QWIDGETSIZE_MAX;
bool isLow = false;
int currentTextSize = 100;

int widthOf(int keys, int side)
{
    return keys * side + (keys + 1) * keyGap;
}

int withRoom(qreal millimetres)
{
    return qMax(Look::smallestTouch,
                qMin(Measures::pixels(millimetres), shorterSide / keysOnASide));
}

} // namespace

bool Measures::isSensible(qreal dotsPerInch)
{
    return dotsPerInch >= fewestDotsPerInch && dotsPerInch <= mostDotsPerInch;
}

qreal Measures::dotsPerInchOf(const QSize &pixels, const QSizeF &millimetres)
{
    const qreal length = std::hypot(millimetres.width(), millimetres.height());
    if (!(length > 0))
        return usualDotsPerInch;
    const qreal told = std::hypot(pixels.width(), pixels.height()) / length * mmPerInch;
    return isSensible(told) ? told : usualDotsPerInch;
}

void Measures::use(qreal dotsPerInch, const QSize &surface)
{
    currentDotsPerInch = isSensible(dotsPerInch) ? dotsPerInch : usualDotsPerInch;
    isLow = surface.isValid() && surface.height() <= lowSurface;
    shorterSide = surface.isValid() ? qMin(surface.width(), surface.height()) : QWIDGETSIZE_MAX;
    surfaceWidth = surface.isValid() ? surface.width() : QWIDGETSIZE_MAX;
    // Where nobody says how fine the screen is, the keypads take it for that of most panels.
    const bool isTold = isSensible(dotsPerInch) && dotsPerInch != usualDotsPerInch;
    qApp->setProperty("hmiDotsPerInch", isTold ? QVariant(dotsPerInch) : QVariant());
}

qreal Measures::dotsPerInch()
{
    return currentDotsPerInch;
}

int Measures::pixels(qreal millimetres)
{
    return int(std::ceil(millimetres * currentDotsPerInch / mmPerInch));
}

int Measures::touch()
{
    return withRoom(touchMm);
}

int Measures::glove()
{
    return qMax(gloveSide, touch());
}

int Measures::keyColumn()
{
    const int wanted = qMax(widthOf(usualKeys, gloveSide), widthOf(gloveKeys, glove()));
    return qMin(wanted, surfaceWidth * columnPercent / 100);
}

QSize Measures::stop()
{
    const int side = qMax(Look::smallestTouch, qMin(pixels(stopMm), shorterSide / stopsOnASide));
    return QSize(side, isLow ? withRoom(stopMm) : side);
}

QList<int> Measures::textSizes()
{
    return {100, 125, 150};
}

int Measures::textSize()
{
    return currentTextSize;
}

void Measures::useTextSize(int percent)
{
    if (percent == currentTextSize || !textSizes().contains(percent))
        return;
    currentTextSize = percent;
    qApp->setProperty("hmiTextSize", percent);
    QList<QPointer<QWidget>> all;
    for (QWidget *widget : QApplication::allWidgets())
        all.append(widget);
    for (const QPointer<QWidget> &widget : qAsConst(all)) {
        QEvent change(textSizeChange());
        if (widget)
            QApplication::sendEvent(widget, &change);
    }
}

QEvent::Type Measures::textSizeChange()
{
    static const int type = QEvent::registerEventType();
    return QEvent::Type(type);
}

int Measures::letters(int pixels)
{
    return qRound(pixels * currentTextSize / 100.0);
}

QString Measures::textSizeKey()
{
    return QLatin1String("textsize");
}

QStringList Measures::textSizeNames()
{
    QStringList names;
    for (int percent : textSizes())
        names.append(nameOf(percent));
    return names;
}

QString Measures::nameOf(int percent)
{
    return QString::number(percent);
}
