// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/coilfigures.h"

#include <cmath>

namespace {

const double gramsPerKilogram = 1000;
const double metresPerKilometre = 1000;
const int secondsPerMinute = 60;
const int secondsPerHour = 3600;
// A longer time is none of any machine, and no whole number could hold it.
const double longestTime = 1e15;
// Of a value for a table.
const int tableDigits = 9;

QString ohm()
{
    return QString(QChar(0x03a9));
}

QString withUnit(double value, int decimals, const QString &unit)
{
    return CoilFigures::number(value, decimals) + QLatin1Char(' ') + unit;
}

QString lengthText(double metres)
{
    if (metres < metresPerKilometre)
        return withUnit(metres, metres < 100 ? 2 : 1, QLatin1String("m"));
    return withUnit(metres / metresPerKilometre, 3, QLatin1String("km"));
}

QString massText(double grams)
{
    if (grams < gramsPerKilogram)
        return withUnit(grams, grams < 100 ? 2 : 1, QLatin1String("g"));
    return withUnit(grams / gramsPerKilogram, 3, QLatin1String("kg"));
}

CoilFigure figure(const QString &name, const QString &text, const char *key, double value,
                  const char *unit)
{
    CoilFigure figure;
    figure.name = name;
    figure.text = text;
    figure.key = key;
    figure.value = QByteArray::number(value, 'g', tableDigits);
    figure.unit = unit;
    return figure;
}

} // namespace

QString CoilFigures::number(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (!text.contains(QLatin1Char('.')))
        return text;
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QString(QLatin1Char('0')) : text;
}

QString CoilFigures::timeText(double seconds)
{
    const qint64 whole = qint64(std::floor(qMin(seconds, longestTime) + 0.5));
    const QString rest =
        QString::fromLatin1("%1").arg(whole % secondsPerMinute, 2, 10, QLatin1Char('0'));
    const qint64 minutes = whole / secondsPerMinute;
    if (whole < secondsPerMinute)
        return tr("%1 s").arg(number(seconds, 1));
    if (whole < secondsPerHour)
        return tr("%1:%2 min").arg(minutes).arg(rest);
    return tr("%1:%2:%3 h")
        .arg(whole / secondsPerHour)
        .arg(minutes % secondsPerMinute, 2, 10, QLatin1Char('0'))
        .arg(rest);
}

QVector<CoilFigure> CoilFigures::of(const WindingModel &model)
{
    const WindingTotals totals = model.totals();
    const QString mm = QLatin1String("mm");
    QVector<CoilFigure> all;
    all.append(figure(tr("Turns"), number(totals.turns, 1), "turns", totals.turns, ""));
    all.append(figure(tr("Layers"), QString::number(totals.layers), "layers", totals.layers, ""));
    if (totals.coils > 1)
        all.append(figure(tr("Coils"), QString::number(totals.coils), "coils", totals.coils, ""));
    all.append(figure(tr("Wire length"), lengthText(totals.wireLength), "wire_length",
                      totals.wireLength, "m"));
    all.append(figure(tr("Mass"), massText(totals.mass), "mass", totals.mass, "g"));
    all.append(figure(tr("Resistance"),
                      withUnit(totals.resistance, totals.resistance < 100 ? 3 : 1, ohm()),
                      "resistance_20_celsius", totals.resistance, "ohm"));
    all.append(figure(tr("Time"), timeText(totals.seconds), "time", totals.seconds, "s"));
    all.append(figure(tr("Fill"), withUnit(totals.fillFactor * 100, 1, QLatin1String("%")),
                      "fill_factor", totals.fillFactor, ""));
    all.append(figure(tr("Outer diameter"), withUnit(totals.outerDiameter, 2, mm), "outer_diameter",
                      totals.outerDiameter, "mm"));
    if (totals.wireDiameter > 0)
        all.append(figure(tr("Wire diameter"), withUnit(totals.wireDiameter, 3, mm),
                          "wire_diameter", totals.wireDiameter, "mm"));
    return all;
}

QByteArray CoilFigures::csv(const WindingModel &model)
{
    QByteArray table = "quantity,value,unit\r\n";
    const QVector<CoilFigure> all = of(model);
    for (const CoilFigure &figure : all)
        table += figure.key + ',' + figure.value + ',' + figure.unit + "\r\n";
    return table;
}
