// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELGLASS_H
#define PANELGLASS_H

#include <QPointer>
#include <QRasterWindow>
#include <QTransform>

#include <memory>

class GlassInput;
class QWidget;
class TurnedPlatform;

/// A display that is mounted turned, with all that the program shows upright on it.
///
/// The program's windows, the library's dialogs, message boxes, keypads and popups are windows of
/// the toolkit, and no window can be turned. So as long as the glass stands they are no windows of
/// the platform. These windows live on a display of their own (TurnedPlatform), which paints them
/// into one picture. The glass is the one window that the platform knows, and shows that picture
/// turned.
///
/// Mouse, touch and keys that reach the glass are turned back and go the toolkit's usual way from
/// there. So modal dialogs, popups and the focus work as ever.
///
///     PanelGlass glass(QSize(480, 800), 90); // before the first widget
///     PanelWindow panel(QSize(480, 800));
///     glass.present(&panel);                 // a window of 800 by 480
///
/// The glass goes after the last widget that was shown on it. There can be one glass at a time.
class PanelGlass : public QRasterWindow
{
    Q_OBJECT

public:
    /// \a surface is what the program and its operator see, in pixels, at 0,0. The glass shows it
    /// turned clockwise by \a degrees: 0, 90, 180 or 270.
    PanelGlass(const QSize &surface, int degrees);
    ~PanelGlass() override;

    /// Shows \a main and the glass, which takes its title; to close the glass is to close \a main.
    void present(QWidget *main);

    /// The pixels of the glass, turned as the glass shows them.
    QImage picture() const;
    /// The middles of pixels, turned back and forth. A point beside the surface, as there is when
    /// the mouse is dragged off the glass, is taken for the nearest one on it.
    QPointF toSurface(const QPointF &onGlass) const;
    QPointF toGlass(const QPointF &onSurface) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize turnedSize() const;

    const QSize m_surface;
    const QTransform m_turn;
    const std::unique_ptr<TurnedPlatform> m_platform;
    const std::unique_ptr<GlassInput> m_input;
};

#endif // PANELGLASS_H
