// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TURNEDPLATFORM_H
#define TURNEDPLATFORM_H

#include <QObject>
#include <QRegion>

#include <functional>

#include <qpa/qplatformintegration.h>
#include <qpa/qplatformnativeinterface.h>

class GlassDisplay;

/// The platform of the windows behind a PanelGlass.
///
/// TurnedPlatform stands before the platform that the program runs on, from construction to
/// destruction. The class makes all windows but the glass, on a screen that is the toolkit's
/// primary one meanwhile. That screen is the toolkit's own compositor, which stacks, activates and
/// paints windows into one picture. The glass, and what is not about windows, stays with the
/// platform behind.
class TurnedPlatform : public QObject, public QPlatformIntegration
{
    Q_OBJECT

public:
    /// The screen has the size \a surface and lies at 0,0.
    TurnedPlatform(const QSize &surface, QWindow *glass);
    ~TurnedPlatform() override;

    QRect surface() const;
    /// Up to date; upright.
    const QImage &picture() const;
    /// Called with what changed on the surface since the last call.
    void onRedraw(const std::function<void(const QRegion &)> &redrawn);
    /// The topmost window that can be active, or nullptr.
    QWindow *topWindow() const;
    /// Whether the pointer has to be in the picture, as the display is this program's alone.
    bool drawsPointer() const { return m_drawsPointer; }

    bool hasCapability(Capability capability) const override;
    QPlatformWindow *createPlatformWindow(QWindow *window) const override;
    QPlatformBackingStore *createPlatformBackingStore(QWindow *window) const override;
    Qt::WindowState defaultWindowState(Qt::WindowFlags flags) const override;
    QPlatformNativeInterface *nativeInterface() const override;

    QPlatformPixmap *createPlatformPixmap(QPlatformPixmap::PixelType type) const override;
    QAbstractEventDispatcher *createEventDispatcher() const override;
    QPlatformFontDatabase *fontDatabase() const override;
    QPlatformClipboard *clipboard() const override;
    QPlatformInputContext *inputContext() const override;
    QPlatformAccessibility *accessibility() const override;
    QPlatformServices *services() const override;
    QVariant styleHint(StyleHint hint) const override;
    Qt::KeyboardModifiers queryKeyboardModifiers() const override;
    QList<int> possibleKeys(const QKeyEvent *event) const override;
    QStringList themeNames() const override;
    QPlatformTheme *createPlatformTheme(const QString &name) const override;
    void sync() override;
    void beep() const override;

private:
    void standBefore();

    QPlatformIntegration *const m_native;
    QWindow *const m_glass;
    const bool m_drawsPointer;
    GlassDisplay *const m_screen;
    mutable QPlatformNativeInterface m_noNativeInterface;
};

#endif // TURNEDPLATFORM_H
