// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILFIGURES_H
#define COILFIGURES_H

#include "base/filarixhostglobal.h"
#include "winding/windingmodel.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QVector>

/// One figure of a coil, for an operator and for a table.
struct FILARIX_HOST_EXPORT CoilFigure
{
    QString name;     ///< "Wire length".
    QString text;     ///< With its unit, rounded to be read: "312.4 m".
    QByteArray key;   ///< The same in each language: "wire_length".
    QByteArray value; ///< With all its digits.
    QByteArray unit;  ///< Empty for a number without one.
};

/// The totals of a coil as texts.
///
///     Q_FOREACH (const CoilFigure &figure, CoilFigures::of(model))
///         addRow(figure.name, figure.text);
class FILARIX_HOST_EXPORT CoilFigures
{
    Q_DECLARE_TR_FUNCTIONS(CoilFigures)

public:
    /// What matters first comes first.
    static QVector<CoilFigure> of(const WindingModel &model);
    /// A table of three columns, with their names in its first line: quantity, value, unit. ASCII,
    /// by RFC 4180, with a point in numbers whatever the language.
    static QByteArray csv(const WindingModel &model);

    /// A time to be read: "12:05 min", "1:02:05 h".
    static QString timeText(double seconds);
    /// A number with as many digits as say something, without the language's signs: "12.5", "2016".
    static QString number(double value, int decimals);
};

#endif // COILFIGURES_H
