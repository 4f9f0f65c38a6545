// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef GLASSINPUT_H
#define GLASSINPUT_H

#include <QPointer>
#include <QWindow>

#include <qpa/qwindowsysteminterface_p.h>

class PanelGlass;
class TurnedPlatform;

/// Turns back what the platform reports of the glass, before the toolkit looks at it.
///
/// A report is about the surface then and names no window. The toolkit looks for the window under
/// the point, or for the one with the focus. Installed from construction to destruction.
class GlassInput : public QWindowSystemEventHandler
{
public:
    GlassInput(const PanelGlass *glass, const TurnedPlatform *platform);
    ~GlassInput() override;

    /// The one that is closed by closing the glass.
    void setMainWindow(QWindow *window) { m_main = window; }

    bool sendEvent(QWindowSystemInterfacePrivate::WindowSystemEvent *event) override;

private:
    typedef QWindowSystemInterfacePrivate Reports;

    bool isAboutGlass(const Reports::UserEvent *event) const;
    template<typename Event>
    void turnPointer(Event *event) const;
    void turnTouch(Reports::TouchEvent *event) const;
    void activateAt(const QPointF &point) const;
    void moveOver(const QPointF &point);
    void leave();

    const PanelGlass *m_glass;
    const TurnedPlatform *m_platform;
    QPointer<QWindow> m_main;
    QPointer<QWindow> m_under;
};

#endif // GLASSINPUT_H
