// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/panelstyle.h"

#include "look/measures.h"
#include "look/stylebars.h"
#include "look/styleboxes.h"
#include "look/styledress.h"
#include "look/styleicons.h"
#include "look/stylekeys.h"
#include "look/styleshades.h"
#include "look/styletables.h"

#include <QDialogButtonBox>
#include <QListView>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleOption>
#include <QTabBar>
#include <QWidget>

namespace {

// 9 mm at 133 dpi: files are chosen to be deleted, too.
const int listRowHeight = 48;
const int indicatorSide = 24;
const int messageIconSide = 40;
const int splitterWidth = 3;
// A finger moves a list, too: on a screen of fine pixels its bar leaves room to the texts.
const int widestBar = 40;
// Beside the words of a menu: the mark, and the room around both.
const int besideMenuWords = 60;

void drawNothing(const QStyleOption &, QPainter *) {}

void drawLineBetween(const QStyleOption &option, QPainter *painter)
{
    const QPoint middle = option.rect.center();
    painter->setPen(StyleShades::edge(option));
    if (option.rect.height() > option.rect.width())
        painter->drawLine(middle.x(), option.rect.top(), middle.x(), option.rect.bottom());
    else
        painter->drawLine(option.rect.left(), middle.y(), option.rect.right(), middle.y());
}

void drawPaper(const QStyleOption &option, QPainter *painter)
{
    painter->fillRect(option.rect, option.palette.brush(QPalette::Window));
}

template<Qt::ArrowType direction>
void drawArrow(const QStyleOption &option, QPainter *painter)
{
    StyleShades::drawArrow(painter, option.rect, direction, StyleShades::sign(option));
}

void drawSortSign(const QStyleOption &option, QPainter *painter)
{
    if (const QStyleOptionHeader *head = qstyleoption_cast<const QStyleOptionHeader *>(&option))
        StyleTables::drawSortSign(*head, painter);
}

void drawFocus(const QStyleOption &option, QPainter *painter)
{
    if (option.state & QStyle::State_KeyboardFocusChange)
        StyleKeys::drawFocus(option.rect, painter);
}

void drawFocusFrame(const QStyleOption &option, QPainter *painter)
{
    StyleKeys::drawFocusFrame(option.rect, painter);
}

void drawMenuItem(const QStyleOption &option, QPainter *painter)
{
    if (const QStyleOptionMenuItem *item = qstyleoption_cast<const QStyleOptionMenuItem *>(&option))
        StyleTables::drawMenuItem(*item, painter);
}

void drawTab(const QStyleOption &option, QPainter *painter)
{
    if (const QStyleOptionTab *tab = qstyleoption_cast<const QStyleOptionTab *>(&option))
        StyleTables::drawTab(*tab, painter);
}

void drawProgress(const QStyleOption &option, QPainter *painter)
{
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(&option);
    if (bar)
        StyleBars::drawProgress(*bar, painter);
}

void drawProgressText(const QStyleOption &option, QPainter *painter)
{
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(&option);
    if (bar)
        StyleBars::drawProgressText(*bar, painter);
}

typedef void (*Drawing)(const QStyleOption &option, QPainter *painter);

template<typename Element>
struct Entry
{
    Element element;
    Drawing drawing;
};

const Entry<QStyle::PrimitiveElement> primitives[] = {
    {QStyle::PE_PanelButtonCommand, &StyleKeys::drawGround},
    {QStyle::PE_PanelButtonBevel, &StyleKeys::drawGround},
    {QStyle::PE_PanelButtonTool, &StyleKeys::drawGround},
    {QStyle::PE_FrameDefaultButton, &drawNothing},
    {QStyle::PE_FrameButtonBevel, &drawNothing},
    {QStyle::PE_FrameButtonTool, &drawNothing},
    {QStyle::PE_FrameFocusRect, &drawFocus},
    {QStyle::PE_IndicatorCheckBox, &StyleBoxes::drawTick},
    {QStyle::PE_IndicatorItemViewItemCheck, &StyleBoxes::drawTick},
    {QStyle::PE_IndicatorRadioButton, &StyleBoxes::drawRadio},
    {QStyle::PE_PanelLineEdit, &StyleBoxes::drawField},
    {QStyle::PE_FrameLineEdit, &StyleBoxes::drawFieldEdge},
    {QStyle::PE_Frame, &StyleBoxes::drawFrame},
    {QStyle::PE_FrameGroupBox, &StyleBoxes::drawFrame},
    {QStyle::PE_FrameTabWidget, &StyleBoxes::drawFrame},
    {QStyle::PE_FrameDockWidget, &StyleBoxes::drawFrame},
    {QStyle::PE_FrameMenu, &StyleBoxes::drawFrame},
    {QStyle::PE_FrameWindow, &StyleBoxes::drawFrame},
    {QStyle::PE_FrameStatusBarItem, &drawNothing},
    {QStyle::PE_FrameTabBarBase, &StyleTables::drawTabBase},
    {QStyle::PE_PanelMenu, &StyleTables::drawMenuGround},
    {QStyle::PE_PanelTipLabel, &StyleTables::drawMenuGround},
    {QStyle::PE_PanelScrollAreaCorner, &drawPaper},
    {QStyle::PE_PanelToolBar, &drawPaper},
    {QStyle::PE_IndicatorHeaderArrow, &drawSortSign},
    {QStyle::PE_IndicatorToolBarSeparator, &drawLineBetween},
    {QStyle::PE_IndicatorToolBarHandle, &drawNothing},
    {QStyle::PE_IndicatorArrowUp, &drawArrow<Qt::UpArrow>},
    {QStyle::PE_IndicatorArrowDown, &drawArrow<Qt::DownArrow>},
    {QStyle::PE_IndicatorArrowLeft, &drawArrow<Qt::LeftArrow>},
    {QStyle::PE_IndicatorArrowRight, &drawArrow<Qt::RightArrow>},
    {QStyle::PE_IndicatorSpinUp, &drawArrow<Qt::UpArrow>},
    {QStyle::PE_IndicatorSpinDown, &drawArrow<Qt::DownArrow>},
};

const Entry<QStyle::ControlElement> controls[] = {
    {QStyle::CE_FocusFrame, &drawFocusFrame},
    {QStyle::CE_HeaderSection, &StyleTables::drawHead},
    {QStyle::CE_HeaderEmptyArea, &StyleTables::drawEmptyHead},
    {QStyle::CE_TabBarTabShape, &drawTab},
    {QStyle::CE_MenuItem, &drawMenuItem},
    {QStyle::CE_MenuEmptyArea, &drawNothing},
    {QStyle::CE_ProgressBarGroove, &StyleBars::drawProgressGroove},
    {QStyle::CE_ProgressBarContents, &drawProgress},
    {QStyle::CE_ProgressBarLabel, &drawProgressText},
    {QStyle::CE_ToolBar, &drawPaper},
    {QStyle::CE_Splitter, &drawLineBetween},
    {QStyle::CE_SizeGrip, &drawNothing},
};

template<typename Element, std::size_t size>
Drawing drawingOf(const Entry<Element> (&entries)[size], Element wanted)
{
    for (const Entry<Element> &entry : entries) {
        if (entry.element == wanted)
            return entry.drawing;
    }
    return nullptr;
}

/// Whatever it sets is forgotten, as the toolkit's own drawings do.
void run(Drawing drawing, const QStyleOption *option, QPainter *painter)
{
    painter->save();
    drawing(*option, painter);
    painter->restore();
}

/// The library's cells of a list take the height of their row.
bool isCell(const QWidget *widget)
{
    return widget && widget->inherits("ComboLineEdit");
}

/// A list marks its current row always, and a finger needs no such mark.
bool isForKeyboardAlone(QStyle::PrimitiveElement element, const QWidget *widget)
{
    return element == QStyle::PE_FrameFocusRect && qobject_cast<const QAbstractItemView *>(widget)
           && !widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

QString withoutShortcut(const QString &text)
{
    static const QRegularExpression shortcut(QLatin1String("\\s*\\(&[^)]\\)"));
    return QString(text).remove(shortcut);
}

int barWidth()
{
    return qMin(widestBar, Measures::pixels(Measures::touchMm));
}

} // namespace

PanelStyle::PanelStyle() : QProxyStyle(QLatin1String("Fusion")) {}

int PanelStyle::focusWidth()
{
    return StyleKeys::focusWidth;
}

QSize PanelStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                   const QWidget *widget) const
{
    const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
    const int touch = Measures::touch();
    switch (type) {
    case CT_PushButton:
        return own.expandedTo(QSize(2 * touch, touch));
    case CT_MenuItem:
        return (size + QSize(besideMenuWords, 0)).expandedTo(QSize(own.width(), touch));
    case CT_CheckBox:
    case CT_RadioButton:
    case CT_ComboBox:
    case CT_TabBarTab:
    case CT_Slider:
        return own.expandedTo(QSize(0, touch));
    case CT_SpinBox:
        return (own + QSize(2 * touch, 0)).expandedTo(QSize(0, touch));
    case CT_ToolButton:
        return StyleDress::hasKeys(widget) ? StyleDress::sizeOfKey(size, widget) : own;
    case CT_LineEdit:
        return isCell(widget) ? own : own.expandedTo(QSize(0, touch));
    case CT_ItemViewItem:
        // A table sets the heights of its rows itself.
        if (qobject_cast<const QListView *>(widget))
            return own.expandedTo(QSize(0, qMax(listRowHeight, touch)));
        return own;
    default:
        return own;
    }
}

int PanelStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_SliderLength:
        return indicatorSide;
    case PM_ScrollBarExtent:
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return barWidth();
    case PM_MessageBoxIconSize:
        return messageIconSide;
    case PM_SplitterWidth:
        return splitterWidth;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_TabBarTabShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int PanelStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *answer) const
{
    switch (hint) {
    case SH_DialogButtonLayout:
        // On each desktop the same: what changes nothing on the left, the action on the right.
        return QDialogButtonBox::GnomeLayout;
    case SH_UnderlineShortcut:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_Widget_Animate:
    case SH_Widget_Animation_Duration:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}

void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    if (isForKeyboardAlone(element, widget))
        return;
    if (element == PE_Widget)
        return StyleDress::drawGround(*option, painter, widget);
    if (const Drawing drawing = drawingOf(primitives, element))
        return run(drawing, option, painter);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void PanelStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    if (const Drawing drawing = drawingOf(controls, element))
        return run(drawing, option, painter);
    const QStyleOptionButton *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (!button || element != CE_PushButtonLabel)
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionButton words(*button);
    words.palette = StyleKeys::wordsOn(*button);
    QProxyStyle::drawControl(element, &words, painter, widget);
}

void PanelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const
{
    const QStyleOptionSlider *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    const auto *tool = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    painter->save();
    if (control == CC_ScrollBar && slider)
        StyleBars::drawScrollBar(*slider, painter, proxy(), widget);
    else if (control == CC_Slider && slider)
        StyleBars::drawSlider(*slider, painter, proxy(), widget);
    else if (control == CC_ComboBox && combo)
        StyleBoxes::drawCombo(*combo, painter, proxy(), widget);
    else if (control == CC_SpinBox && spin)
        StyleBoxes::drawSpin(*spin, painter, proxy(), widget);
    else if (control == CC_ToolButton && tool && StyleDress::hasKeys(widget))
        StyleDress::drawKey(*tool, painter, proxy(), widget);
    else if (control == CC_ToolButton && tool)
        StyleKeys::drawToolKey(*tool, painter, proxy(), widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    painter->restore();
}

void PanelStyle::drawItemText(QPainter *painter, const QRect &rect, int flags,
                              const QPalette &palette, bool isEnabled, const QString &text,
                              QPalette::ColorRole role) const
{
    const bool hasShortcuts = flags & (Qt::TextShowMnemonic | Qt::TextHideMnemonic);
    QProxyStyle::drawItemText(painter, rect, flags, palette, isEnabled,
                              hasShortcuts ? withoutShortcut(text) : text, role);
}

/// The focus is seen along the edge of a button, and not between it and its word.
QRect PanelStyle::subElementRect(SubElement element, const QStyleOption *option,
                                 const QWidget *widget) const
{
    if (element == SE_PushButtonFocusRect)
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect PanelStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                 SubControl part, const QWidget *widget) const
{
    const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    if (control != CC_SpinBox || !spin)
        return QProxyStyle::subControlRect(control, option, part, widget);
    switch (part) {
    case SC_SpinBoxUp:
        return StyleBoxes::moreKey(*spin);
    case SC_SpinBoxDown:
        return StyleBoxes::fewerKey(*spin);
    case SC_SpinBoxEditField:
        return StyleBoxes::spinField(*spin);
    default:
        return spin->rect;
    }
}

QIcon PanelStyle::standardIcon(StandardPixmap which, const QStyleOption *option,
                               const QWidget *widget) const
{
    const QIcon own = StyleIcons::icon(which);
    return own.isNull() ? QProxyStyle::standardIcon(which, option, widget) : own;
}

QPixmap PanelStyle::standardPixmap(StandardPixmap which, const QStyleOption *option,
                                   const QWidget *widget) const
{
    const QIcon own = StyleIcons::icon(which);
    return own.isNull() ? QProxyStyle::standardPixmap(which, option, widget)
                        : own.pixmap(messageIconSide, messageIconSide);
}
