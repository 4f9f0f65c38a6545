// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "toolkitspy.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace {

/// Asked for a part, draws none; measures as the panel's style does.
class NoParts : public QProxyStyle
{
public:
    explicit NoParts(const QStyle *outer) : QProxyStyle(QLatin1String("Fusion")), m_outer(outer) {}

    void drawPrimitive(PrimitiveElement, const QStyleOption *, QPainter *,
                       const QWidget *) const override
    {}
    void drawControl(ControlElement, const QStyleOption *, QPainter *,
                     const QWidget *) const override
    {}
    void drawComplexControl(ComplexControl, const QStyleOptionComplex *, QPainter *,
                            const QWidget *) const override
    {}
    void drawItemText(QPainter *, const QRect &, int, const QPalette &, bool, const QString &,
                      QPalette::ColorRole) const override
    {}
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override
    {
        return m_outer->subElementRect(element, option, widget);
    }
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override
    {
        return m_outer->subControlRect(control, option, part, widget);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return m_outer->pixelMetric(metric, option, widget);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override
    {
        return m_outer->styleHint(hint, option, widget, answer);
    }

private:
    const QStyle *m_outer;
};

const struct
{
    QStyle::PrimitiveElement element;
    const char *name;
} primitives[] = {
    {QStyle::PE_Frame, "frame"},
    {QStyle::PE_FrameFocusRect, "focus rectangle"},
    {QStyle::PE_FrameGroupBox, "frame of a group"},
    {QStyle::PE_FrameLineEdit, "frame of a field"},
    {QStyle::PE_FrameMenu, "frame of a menu"},
    {QStyle::PE_FrameTabWidget, "frame of tabs"},
    {QStyle::PE_IndicatorArrowDown, "arrow"},
    {QStyle::PE_IndicatorArrowLeft, "arrow"},
    {QStyle::PE_IndicatorArrowRight, "arrow"},
    {QStyle::PE_IndicatorArrowUp, "arrow"},
    {QStyle::PE_IndicatorCheckBox, "check box"},
    {QStyle::PE_IndicatorHeaderArrow, "arrow of a header"},
    {QStyle::PE_IndicatorItemViewItemCheck, "check box of an item"},
    {QStyle::PE_IndicatorRadioButton, "radio button"},
    {QStyle::PE_PanelButtonCommand, "button bevel"},
    {QStyle::PE_PanelButtonTool, "tool button bevel"},
    {QStyle::PE_PanelItemViewItem, "ground of an item"},
    {QStyle::PE_PanelLineEdit, "field"},
};

const struct
{
    QStyle::ControlElement element;
    const char *name; ///< nullptr for letters, which look the same in all styles.
} controls[] = {
    {QStyle::CE_CheckBoxLabel, nullptr},
    {QStyle::CE_ComboBoxLabel, nullptr},
    {QStyle::CE_HeaderLabel, nullptr},
    {QStyle::CE_ItemViewItem, nullptr},
    {QStyle::CE_ProgressBarLabel, nullptr},
    {QStyle::CE_PushButtonLabel, nullptr},
    {QStyle::CE_RadioButtonLabel, nullptr},
    {QStyle::CE_TabBarTabLabel, nullptr},
    {QStyle::CE_ToolButtonLabel, nullptr},
    {QStyle::CE_FocusFrame, "focus frame"},
    {QStyle::CE_HeaderEmptyArea, "header"},
    {QStyle::CE_HeaderSection, "header"},
    {QStyle::CE_MenuItem, "menu item"},
    {QStyle::CE_ProgressBarContents, "progress bar"},
    {QStyle::CE_ProgressBarGroove, "progress bar"},
    {QStyle::CE_PushButtonBevel, "button bevel"},
    {QStyle::CE_ScrollBarAddLine, "scroll bar"},
    {QStyle::CE_ScrollBarAddPage, "scroll bar"},
    {QStyle::CE_ScrollBarSlider, "scroll bar"},
    {QStyle::CE_ScrollBarSubLine, "scroll bar"},
    {QStyle::CE_ScrollBarSubPage, "scroll bar"},
    {QStyle::CE_ShapedFrame, "frame"},
    {QStyle::CE_Splitter, "splitter"},
    {QStyle::CE_TabBarTabShape, "tab"},
};

const struct
{
    QStyle::ComplexControl control;
    const char *name;
} complexes[] = {
    {QStyle::CC_ComboBox, "combo box"},   {QStyle::CC_GroupBox, "group box"},
    {QStyle::CC_ScrollBar, "scroll bar"}, {QStyle::CC_Slider, "slider"},
    {QStyle::CC_SpinBox, "spin box"},     {QStyle::CC_ToolButton, "tool button"},
};

QString nameOf(QStyle::PrimitiveElement element)
{
    for (const auto &known : primitives) {
        if (known.element == element)
            return QLatin1String(known.name);
    }
    return QString::fromLatin1("primitive %1").arg(element);
}

/// Null for letters.
QString nameOf(QStyle::ControlElement element)
{
    for (const auto &known : controls) {
        if (known.element == element)
            return QLatin1String(known.name);
    }
    return QString::fromLatin1("control %1").arg(element);
}

QString nameOf(QStyle::ComplexControl control)
{
    for (const auto &known : complexes) {
        if (known.control == control)
            return QLatin1String(known.name);
    }
    return QString::fromLatin1("complex control %1").arg(control);
}

bool hasLineBelow(const QString &text, int flags)
{
    QString rest = text;
    rest.remove(QLatin1String("&&"));
    return (flags & Qt::TextShowMnemonic) && !(flags & Qt::TextHideMnemonic)
           && rest.contains(QLatin1Char('&'));
}

} // namespace

ToolkitSpy::ToolkitSpy(QProxyStyle *outer)
    : QProxyStyle(QLatin1String("Fusion")), m_alone(new NoParts(outer))
{
    outer->setBaseStyle(this);
}

void ToolkitSpy::start()
{
    m_drawn.clear();
    m_isRecording = true;
}

QList<ToolkitSpy::Drawn> ToolkitSpy::stop()
{
    m_isRecording = false;
    const QList<Drawn> drawn = m_drawn;
    m_drawn.clear();
    return drawn;
}

template<typename Draw>
void ToolkitSpy::note(const QString &what, const QStyleOption *option, QPainter *painter,
                      const QWidget *widget, const Draw &draw) const
{
    if (!m_isRecording || !option || option->rect.isEmpty() || what.isEmpty())
        return;
    Drawn drawn;
    drawn.what = what;
    drawn.widget = widget;
    drawn.at = painter->deviceTransform().map(option->rect.topLeft());
    drawn.image = QImage(option->rect.size(), QImage::Format_ARGB32_Premultiplied);
    drawn.image.fill(Qt::transparent);
    QPainter probe(&drawn.image);
    probe.translate(-option->rect.topLeft());
    draw(m_alone->baseStyle(), &probe);
    m_drawn.append(drawn);
}

void ToolkitSpy::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    note(nameOf(element), option, painter, widget, [&](const QStyle *style, QPainter *probe) {
        style->drawPrimitive(element, option, probe, widget);
    });
    if (!m_leavesOut)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ToolkitSpy::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    const QString name = nameOf(element);
    // A frame asks the style of its widget for its part, and would have it drawn.
    const QWidget *asking = element == CE_ShapedFrame ? nullptr : widget;
    note(name, option, painter, widget, [&](const QStyle *style, QPainter *probe) {
        style->drawControl(element, option, probe, asking);
    });
    if (!m_leavesOut || name.isEmpty())
        QProxyStyle::drawControl(element, option, painter, widget);
}

void ToolkitSpy::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const
{
    note(nameOf(control), option, painter, widget, [&](const QStyle *style, QPainter *probe) {
        style->drawComplexControl(control, option, probe, widget);
    });
    if (!m_leavesOut)
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void ToolkitSpy::drawItemText(QPainter *painter, const QRect &rect, int flags,
                              const QPalette &palette, bool enabled, const QString &text,
                              QPalette::ColorRole role) const
{
    if (m_isRecording && hasLineBelow(text, flags)) {
        Drawn drawn;
        drawn.what = QString::fromLatin1("line below a letter of \"%1\"").arg(text);
        drawn.at = painter->deviceTransform().map(rect.topLeft());
        m_drawn.append(drawn);
    }
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
}
