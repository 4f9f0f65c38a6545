// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WAQP_H
#define WAQP_H

#include <QFont>
#include <QString>
#include <QVector>

/// What every screen needs: the program directory, the fonts, and the division of a long program
/// into pieces. Static functions only, no state, GUI thread.
class WAQP
{
public:
    /// The program directory, "cnc" in the user's home, with "/" as separator and no trailing one.
    /// A missing directory is made. If that fails the path is returned all the same, and file
    /// operations in the directory report their own errors.
    static QString getCncDir();

    /// The default font with the given family and size in points, and weight 75 (bold) or 50.
    static QFont setFont(const QString &family, int pointSize, bool bold);

    /// Divides \a total into \a parts sizes that add up to it; the first ones take what is left
    /// over, one each. \a parts must be above 0; 0 or less gives no sizes.
    static QVector<int> chunkSizes(int total, int parts);
};

#endif // WAQP_H
