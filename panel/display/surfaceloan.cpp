// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/surfaceloan.h"

#include "display/primarysurface.h"

#include <QGuiApplication>
#include <QScreen>

const int SurfaceLoan::tallPanel;

SurfaceLoan::SurfaceLoan(int height, int width)
    : m_own(QGuiApplication::primaryScreen()->availableGeometry())
{
    const QRect lent(m_own.topLeft(), QSize(width > 0 ? width : m_own.width(), height));
    PrimarySurface::set(QGuiApplication::primaryScreen()->geometry(), lent);
}

SurfaceLoan::~SurfaceLoan()
{
    PrimarySurface::set(QGuiApplication::primaryScreen()->geometry(), m_own);
}
