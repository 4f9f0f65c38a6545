// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TOOLKITSPY_H
#define TOOLKITSPY_H

#include <QImage>
#include <QList>
#include <QPointer>
#include <QProxyStyle>
#include <QRect>

#include <memory>

class QWidget;

/// Stands between a style of the panel and the toolkit's style below it, and notes what the latter
/// is asked to draw, with a picture of that alone.
///
/// The toolkit's style draws a control in parts, and asks the panel's for each part. These parts
/// are not in the picture.
///
///     ToolkitSpy *spy = new ToolkitSpy(style); // the style's own from now on
///     spy->start();
///     const QPixmap with = window->grab();
///     const QList<ToolkitSpy::Drawn> drawn = spy->stop();
///     spy->leaveOut(true);
///     const QPixmap without = window->grab();
class ToolkitSpy : public QProxyStyle
{
    Q_OBJECT

public:
    struct Drawn
    {
        QString what;
        QPointer<const QWidget> widget;
        /// On the device that was painted.
        QPoint at;
        /// Transparent where nothing was drawn; null for the line below a letter.
        QImage image;
    };

    explicit ToolkitSpy(QProxyStyle *outer);

    void start();
    QList<Drawn> stop();
    /// From now on what would be noted is not drawn; letters are.
    void leaveOut(bool on) { m_leavesOut = on; }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text, QPalette::ColorRole role) const override;

private:
    template<typename Draw>
    void note(const QString &what, const QStyleOption *option, QPainter *painter,
              const QWidget *widget, const Draw &draw) const;

    /// Draws what the toolkit's style draws itself, without the parts that it asks for.
    const std::unique_ptr<QProxyStyle> m_alone;
    bool m_isRecording = false;
    bool m_leavesOut = false;
    mutable QList<Drawn> m_drawn;
};

#endif // TOOLKITSPY_H
