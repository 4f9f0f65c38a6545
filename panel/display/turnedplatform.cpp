// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// The toolkit's private headers use the keywords.
#undef QT_NO_KEYWORDS

#include "display/turnedplatform.h"

#include "display/platform.h"

#include <QCursor>
#include <QScreen>
#include <QWindow>

#include <QtFbSupport/private/qfbbackingstore_p.h>
#include <QtFbSupport/private/qfbcursor_p.h>
#include <QtFbSupport/private/qfbscreen_p.h>
#include <QtFbSupport/private/qfbwindow_p.h>
#include <private/qguiapplication_p.h>
#include <private/qhighdpiscaling_p.h>
#include <qpa/qwindowsysteminterface.h>

namespace {

/// The pointer is drawn by the desktop, with the shape that the window under it asks for.
class GlassCursor : public QPlatformCursor
{
public:
    explicit GlassCursor(QWindow *glass) : m_glass(glass) {}

    void changeCursor(QCursor *shape, QWindow *) override
    {
        m_glass->setCursor(shape ? *shape : QCursor(Qt::ArrowCursor));
    }

private:
    QWindow *m_glass;
};

bool displayIsOurs()
{
    return !Platform::isDesktop() && QGuiApplication::platformName() != QLatin1String("vnc");
}

} // namespace

class GlassDisplay : public QFbScreen
{
public:
    GlassDisplay(const QSize &surface, QWindow *glass, bool drawsPointer)
        : m_dpi(glass->screen()->handle()->logicalDpi()), m_glassCursor(glass)
    {
        const qreal scale = QHighDpiScaling::factor(static_cast<QScreen *>(nullptr));
        mGeometry = QRect(QPoint(0, 0), surface * scale);
        mDepth = 32;
        mFormat = QImage::Format_RGB32;
        mPhysicalSize = QSizeF(mGeometry.size()) / m_dpi.first * 25.4;
        if (drawsPointer) {
            m_ownCursor.reset(new QFbCursor(this));
            mCursor = m_ownCursor.get();
        }
        initializeCompositor();
    }

    const QImage &picture()
    {
        doRedraw();
        return mScreenImage;
    }

    QPlatformCursor *cursor() const override
    {
        return m_ownCursor ? static_cast<QPlatformCursor *>(m_ownCursor.get()) : &m_glassCursor;
    }
    QDpi logicalDpi() const override { return m_dpi; }
    Flags flags() const override { return DontForceFirstWindowToFullScreen; }

    std::function<void(const QRegion &)> redrawn;

protected:
    QRegion doRedraw() override
    {
        QRegion touched = QFbScreen::doRedraw();
        QRegion region;
        for (const QRect &rect : qAsConst(touched))
            region += QHighDpi::fromNativePixels(QRectF(rect), screen()).toAlignedRect();
        if (redrawn && !region.isEmpty())
            redrawn(region);
        return touched;
    }

private:
    const QDpi m_dpi;
    mutable GlassCursor m_glassCursor;
    std::unique_ptr<QFbCursor> m_ownCursor;
};

TurnedPlatform::TurnedPlatform(const QSize &surface, QWindow *glass)
    : m_native(QGuiApplicationPrivate::platform_integration)
    , m_glass(glass)
    , m_drawsPointer(displayIsOurs())
    , m_screen(new GlassDisplay(surface, glass, m_drawsPointer))
{
    // The glass stays where it is when the toolkit has another screen alone.
    m_glass->setScreen(QGuiApplication::primaryScreen());
    if (m_drawsPointer)
        m_glass->setCursor(Qt::BlankCursor);
    QGuiApplicationPrivate::platform_integration = this;
    QWindowSystemInterface::handleScreenAdded(m_screen, true);
    standBefore();
    QWindowSystemInterface::flushWindowSystemEvents(QEventLoop::ExcludeUserInputEvents);
    // A desktop's displays come and go.
    connect(qApp, &QGuiApplication::screenAdded, this, &TurnedPlatform::standBefore);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &TurnedPlatform::standBefore);
}

TurnedPlatform::~TurnedPlatform()
{
    disconnect(qApp, nullptr, this, nullptr);
    QGuiApplicationPrivate::platform_integration = m_native;
    QWindowSystemInterface::handleScreenRemoved(m_screen);
    Q_FOREACH (QScreen *screen, QGuiApplication::screens()) {
        QWindowSystemInterface::handleScreenGeometryChange(
            screen, screen->handle()->deviceIndependentGeometry(),
            QHighDpi::fromNativePixels(screen->handle()->availableGeometry(), screen));
    }
    QWindowSystemInterface::flushWindowSystemEvents(QEventLoop::ExcludeUserInputEvents);
}

/// The surface is the primary screen, and the platform's own screens are nowhere. On one of them
/// the toolkit would put a popup whose corner lies beside the surface.
void TurnedPlatform::standBefore()
{
    if (QGuiApplication::primaryScreen() != m_screen->screen())
        QWindowSystemInterface::handlePrimaryScreenChanged(m_screen);
    Q_FOREACH (QScreen *screen, QGuiApplication::screens()) {
        if (screen != m_screen->screen())
            QWindowSystemInterface::handleScreenGeometryChange(screen, QRect(), QRect());
    }
}

QRect TurnedPlatform::surface() const
{
    return m_screen->screen()->geometry();
}

const QImage &TurnedPlatform::picture() const
{
    return m_screen->picture();
}

void TurnedPlatform::onRedraw(const std::function<void(const QRegion &)> &redrawn)
{
    m_screen->redrawn = redrawn;
}

QWindow *TurnedPlatform::topWindow() const
{
    return m_screen->topWindow();
}

bool TurnedPlatform::hasCapability(Capability capability) const
{
    switch (capability) {
    case MultipleWindows:
    case NonFullScreenWindows:
        return true;
    case WindowManagement:
    case OpenGL:
    case RasterGLSurface:
    case ForeignWindows:
    case NativeWidgets:
        return false;
    default:
        return m_native->hasCapability(capability);
    }
}

QPlatformWindow *TurnedPlatform::createPlatformWindow(QWindow *window) const
{
    if (window == m_glass)
        return m_native->createPlatformWindow(window);
    // The window may have been on the platform's screen before.
    window->setScreen(m_screen->screen());
    return new QFbWindow(window);
}

QPlatformBackingStore *TurnedPlatform::createPlatformBackingStore(QWindow *window) const
{
    if (window == m_glass)
        return m_native->createPlatformBackingStore(window);
    return new QFbBackingStore(window);
}

Qt::WindowState TurnedPlatform::defaultWindowState(Qt::WindowFlags) const
{
    return Qt::WindowNoState;
}

/// The native one takes any window for one of its own.
QPlatformNativeInterface *TurnedPlatform::nativeInterface() const
{
    return &m_noNativeInterface;
}

QPlatformPixmap *TurnedPlatform::createPlatformPixmap(QPlatformPixmap::PixelType type) const
{
    return m_native->createPlatformPixmap(type);
}

QAbstractEventDispatcher *TurnedPlatform::createEventDispatcher() const
{
    return m_native->createEventDispatcher();
}

QPlatformFontDatabase *TurnedPlatform::fontDatabase() const
{
    return m_native->fontDatabase();
}

QPlatformClipboard *TurnedPlatform::clipboard() const
{
    return m_native->clipboard();
}

QPlatformInputContext *TurnedPlatform::inputContext() const
{
    return m_native->inputContext();
}

QPlatformAccessibility *TurnedPlatform::accessibility() const
{
    return m_native->accessibility();
}

QPlatformServices *TurnedPlatform::services() const
{
    return m_native->services();
}

QVariant TurnedPlatform::styleHint(StyleHint hint) const
{
    return m_native->styleHint(hint);
}

Qt::KeyboardModifiers TurnedPlatform::queryKeyboardModifiers() const
{
    return m_native->queryKeyboardModifiers();
}

QList<int> TurnedPlatform::possibleKeys(const QKeyEvent *event) const
{
    return m_native->possibleKeys(event);
}

QStringList TurnedPlatform::themeNames() const
{
    return m_native->themeNames();
}

QPlatformTheme *TurnedPlatform::createPlatformTheme(const QString &name) const
{
    return m_native->createPlatformTheme(name);
}

void TurnedPlatform::sync()
{
    m_native->sync();
}

void TurnedPlatform::beep() const
{
    m_native->beep();
}
