// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PRIMARYSURFACE_H
#define PRIMARYSURFACE_H

#include <QObject>
#include <QRect>

class QWidget;

/// Makes a window the surface of the panel: what the toolkit takes for its primary screen.
///
/// On a panel the two are one. On a desktop the library would size and place its lists and dialogs
/// by the desktop. So the toolkit's primary screen is given the window's rectangle as long as the
/// window stands, and follows it. A program for a panel of 480 by 272 can be judged there then.
///
/// The device library's keypads learn the same rectangle, in global coordinates, by the
/// application's property "hmiScreen". The property "hmiTouchScreen" says whether a touch screen is
/// there.
class PrimarySurface : public QObject
{
    Q_OBJECT

public:
    /// Belongs to \a window.
    PrimarySurface(QWidget *window, bool touch);

    /// Gives the toolkit's primary screen these rectangles.
    static void set(const QRect &geometry, const QRect &available);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void announce();

    QWidget *m_window;
};

#endif // PRIMARYSURFACE_H
