// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SURFACELOAN_H
#define SURFACELOAN_H

#include <QRect>

/// Lends a surface of another height to what is built meanwhile.
///
/// The library makes rows a twenty-fourth of the surface's height. Such a row has a thumb's height
/// on a panel of 800 lines and a third of that on one of 272. A list that is built under a loan
/// gets rows of the height lent; the host then shows as many of them as fit.
///
///     const SurfaceLoan tall;
///     return new TListWidget(title, nullptr);
class SurfaceLoan
{
public:
    /// The width stays the panel's unless one is given.
    explicit SurfaceLoan(int height = tallPanel, int width = 0);
    ~SurfaceLoan();

    /// Height in pixels for which a row of a list is 34 pixels high, a thumb's 9 mm.
    static const int tallPanel = 800;

private:
    Q_DISABLE_COPY(SurfaceLoan)

    const QRect m_own;
};

#endif // SURFACELOAN_H
