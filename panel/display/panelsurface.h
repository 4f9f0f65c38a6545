// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELSURFACE_H
#define PANELSURFACE_H

#include <QObject>
#include <QRect>

class QWidget;

/// Makes the host's window the panel's screen.
///
/// On a panel the two are one. On a desktop the library would size and place its lists and
/// dialogs by the desktop, and a program for a panel of 480 by 272 could not be judged there: so
/// the toolkit's primary screen is given the window's rectangle, as long as the window stands,
/// and follows it. The device library's keypads are told the same rectangle, in global
/// coordinates, through the application's property "hmiScreen", and whether there is a touch
/// screen through "hmiTouchScreen".
class PanelSurface : public QObject
{
    Q_OBJECT

public:
    PanelSurface(QWidget *window, bool touch);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Whether the platform shows windows on a desktop, rather than one program on a screen.
    static bool isDesktop();
    /// Whether something places and frames the windows: a desktop does, a display that is the
    /// program's alone does not, nor does a PanelGlass.
    static bool hasWindowManager();

private:
    void announce();

    QWidget *m_window;
};

/// Presents a screen of another height to what is built meanwhile.
///
/// The library makes rows a twenty-fourth of the screen's height. That is a thumb's height on a
/// panel of 800 lines and a third of it on one of 272. A list that is built under a loan gets rows
/// of the height lent; the host then shows as many of them as fit.
class SurfaceLoan
{
public:
    /// The width stays the panel's unless one is given.
    explicit SurfaceLoan(int height = kTallPanel, int width = 0);
    ~SurfaceLoan();

    /// Screen height in pixels for which a row of a list is 34 pixels high, a thumb's 9 mm.
    static const int kTallPanel = 800;

private:
    Q_DISABLE_COPY(SurfaceLoan)

    const QRect m_own;
};

#endif // PANELSURFACE_H
