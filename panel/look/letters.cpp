// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/letters.h"

#include "look/measures.h"
#include "look/namelabel.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QTableView>
#include <QToolButton>
#include <QVariant>

#include <algorithm>

namespace {

const int usual = 100;
const int step = 5;
// A table of many lines is judged by the first of them.
const int judgedRows = 100;
const int cellMargin = 4;

const char pixelsProperty[] = "letterPixels";
const char rowProperty[] = "letterRow";
const char columnsProperty[] = "letterColumns";

const char *const foreignClasses[] = {
    "WMMainWindow", "WFindDialog",   "WCopyDialog",    "WFileDialog",  "TListWidget",
    "ConnEditor",   "DataEditor",    "FileDialog",     "ImportManage", "MessageBox",
    "GCodeKeypad",  "NumericKeypad", "CharacterKeypad"};

bool showsText(const QWidget *widget)
{
    return qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget)
           || qobject_cast<const QAbstractItemView *>(widget)
           || qobject_cast<const QLineEdit *>(widget);
}

/// The container's own widgets, each behind the one that it is in. What has Letters of its own is
/// left to them.
QWidgetList ownWidgets(QWidget *container)
{
    QWidgetList all;
    for (QObject *child : container->children()) {
        QWidget *widget = qobject_cast<QWidget *>(child);
        const bool hasOwn =
            widget && widget->findChild<Letters *>(QString(), Qt::FindDirectChildrenOnly);
        if (widget && !hasOwn && !widget->isWindow() && !Letters::isForeign(widget))
            all += QWidgetList{widget} + ownWidgets(widget);
    }
    return all;
}

/// What is there for the first time is as large as it was made. All of them before one changes:
/// a table hands its letters on to its head.
void noteSizes(const QWidgetList &all)
{
    for (QWidget *widget : all) {
        if (!showsText(widget) || widget->property(pixelsProperty).isValid())
            continue;
        widget->setProperty(pixelsProperty, widget->font().pixelSize());
        const QTableView *table = qobject_cast<QTableView *>(widget);
        if (!table)
            continue;
        QVariantList columns;
        for (int i = 0; i < table->horizontalHeader()->count(); ++i)
            columns.append(table->columnWidth(i));
        widget->setProperty(columnsProperty, columns);
        widget->setProperty(rowProperty, table->verticalHeader()->defaultSectionSize());
    }
}

void scaleTable(QTableView *table, int percent)
{
    QHeaderView *head = table->horizontalHeader();
    table->verticalHeader()->setDefaultSectionSize(table->property(rowProperty).toInt() * percent
                                                   / usual);
    const QVariantList columns = table->property(columnsProperty).toList();
    for (int i = 0; i < columns.size() && i < head->count(); ++i) {
        if (head->sectionResizeMode(i) == QHeaderView::Fixed && !table->isColumnHidden(i))
            table->setColumnWidth(i, columns.at(i).toInt() * percent / usual);
    }
}

void apply(const QWidgetList &all, int percent)
{
    noteSizes(all);
    for (QWidget *widget : all) {
        const QVariant pixels = widget->property(pixelsProperty);
        if (!pixels.isValid() || pixels.toInt() <= 0)
            continue;
        QFont font = widget->font();
        font.setPixelSize(qRound(pixels.toInt() * percent / qreal(usual)));
        if (font != widget->font())
            widget->setFont(font);
        if (QTableView *table = qobject_cast<QTableView *>(widget))
            scaleTable(table, percent);
    }
}

/// A layout learns of a change in another's widget from an event; here it is wanted at once.
void forget(QLayoutItem *item)
{
    item->invalidate();
    const QLayout *layout = item->layout();
    for (int i = 0; layout && i < layout->count(); ++i)
        forget(layout->itemAt(i));
}

void layOut(const QWidgetList &all, QWidget *container)
{
    for (int i = all.size() - 1; i >= 0; --i) {
        if (QLayout *layout = all.at(i)->layout()) {
            forget(layout);
            layout->activate();
        }
    }
    forget(container->layout());
}

/// The same where what is around it has its size by now.
void settleInside(const QWidgetList &all)
{
    for (const QWidget *widget : all) {
        if (QLayout *layout = widget->layout())
            layout->setGeometry(widget->contentsRect());
    }
}

QSize wordsOf(const QAbstractButton *button)
{
    return button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
}

bool isCut(const QToolButton *button)
{
    QSize words = wordsOf(button);
    if (button->text().isEmpty() || button->toolButtonStyle() == Qt::ToolButtonIconOnly)
        return false;
    if (button->toolButtonStyle() == Qt::ToolButtonTextUnderIcon)
        words.rheight() += button->iconSize().height();
    const int frame = 2;
    return words.width() + frame > button->width() || words.height() + frame > button->height();
}

bool isCut(const QPushButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    QSize words = wordsOf(button);
    if (!button->icon().isNull())
        words.rwidth() += button->iconSize().width() + cellMargin;
    const QRect room =
        button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    return words.width() > room.width() || words.height() > room.height();
}

bool isCut(const QWidget *widget)
{
    if (widget->isHidden())
        return false;
    if (const QToolButton *button = qobject_cast<const QToolButton *>(widget))
        return isCut(button);
    if (const QPushButton *button = qobject_cast<const QPushButton *>(widget))
        return isCut(button);
    if (const NameLabel *name = qobject_cast<const NameLabel *>(widget))
        return !name->isWhole();
    const QLabel *label = qobject_cast<const QLabel *>(widget);
    const bool givesWay = !label || label->wordWrap() || label->inherits("ElidedLabel");
    return !givesWay
           && label->fontMetrics().horizontalAdvance(label->text()) > label->contentsRect().width();
}

bool hasRoomForCell(const QTableView *table, const QModelIndex &index)
{
    const QString text = index.data().toString();
    int width = table->columnWidth(index.column()) - 2 * cellMargin;
    if (!index.data(Qt::DecorationRole).isNull())
        width -= table->iconSize().width() + cellMargin;
    const QFontMetrics metrics = table->fontMetrics();
    if (metrics.horizontalAdvance(text) <= width)
        return true;
    if (!table->wordWrap())
        return false;
    const QRect needed =
        metrics.boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), Qt::TextWordWrap, text);
    return needed.width() <= width && needed.height() <= table->rowHeight(index.row());
}

/// How many texts of a table are cut.
int cutIn(const QTableView *table)
{
    const QAbstractItemModel *model = table->model();
    // Its sections have their sizes by now.
    table->horizontalHeader()->length();
    const QFontMetrics head = table->horizontalHeader()->fontMetrics();
    const bool hasHead = !table->horizontalHeader()->isHidden();
    int cut = 0;
    for (int column = 0; model && column < model->columnCount(); ++column) {
        if (table->isColumnHidden(column))
            continue;
        const QString title = model->headerData(column, Qt::Horizontal).toString();
        if (hasHead && head.horizontalAdvance(title) + 2 * cellMargin > table->columnWidth(column))
            ++cut;
        for (int row = 0; row < qMin(judgedRows, model->rowCount()); ++row)
            cut += hasRoomForCell(table, model->index(row, column)) ? 0 : 1;
    }
    return cut;
}

/// What the library lays out by itself is cut where its own room does not suffice.
bool isBeyond(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return widget->isVisible() && !widget->isWindow()
           && parent->objectName() != QLatin1String("qt_scrollarea_viewport")
           && !parent->rect().contains(widget->geometry());
}

/// How much of each widget is cut; not at all for one that isn't in it.
typedef QHash<const QWidget *, int> Cuts;

Cuts cutsIn(const QWidget *container, const QWidgetList &all)
{
    Cuts cuts;
    for (const QWidget *widget : container->findChildren<QWidget *>()) {
        if (isBeyond(widget))
            ++cuts[widget];
    }
    for (const QWidget *widget : all) {
        const QTableView *table = qobject_cast<const QTableView *>(widget);
        const int cut = table ? cutIn(table) : int(isCut(widget));
        if (cut > 0)
            cuts[widget] += cut;
    }
    return cuts;
}

bool isMore(const Cuts &cuts, const Cuts &before)
{
    for (auto cut = cuts.constBegin(); cut != cuts.constEnd(); ++cut) {
        if (cut.value() > before.value(cut.key()))
            return true;
    }
    return false;
}

/// What decides whether there is room. The same for the same answer.
QString described(const QWidget *container)
{
    QStringList words{QString::number(Measures::textSize()), QString::number(container->width()),
                      QString::number(container->height())};
    for (const QWidget *widget : ownWidgets(const_cast<QWidget *>(container))) {
        if (!widget->isHidden())
            words.append(widget->property("text").toString());
    }
    return words.join(QLatin1Char('\n'));
}

QSize needed(const QWidget *container, int width)
{
    const QLayout *layout = container->layout();
    QSize size = layout->totalMinimumSize();
    if (layout->hasHeightForWidth())
        size.setHeight(qMax(size.height(), layout->minimumHeightForWidth(width)));
    return size;
}

bool isWithin(const QSize &size, const QSize &room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

/// Leaves the rest to the toolkit, which comes to the same places in its own time.
void leave(const QWidgetList &all, QWidget *container)
{
    for (const QWidget *widget : all) {
        if (QLayout *layout = widget->layout())
            forget(layout);
    }
    forget(container->layout());
}

/// The largest size that has room, and is applied. \a settle gives the container the size that it
/// will have with these letters.
template<typename Settle>
int growWithin(QWidget *container, const QSize &given, int higher, const Settle &settle)
{
    const QWidgetList all = ownWidgets(container);
    apply(all, usual);
    layOut(all, container);
    container->layout()->activate();
    settleInside(all);
    const QSize room =
        given.expandedTo(QSize(0, needed(container, given.width()).height() + higher));
    const Cuts before = cutsIn(container, all);
    for (int percent = Measures::textSize(); percent > usual; percent -= step) {
        apply(all, percent);
        layOut(all, container);
        if (!isWithin(needed(container, room.width()), room))
            continue;
        settle();
        container->layout()->activate();
        settleInside(all);
        if (!isMore(cutsIn(container, all), before))
            return percent;
    }
    apply(all, usual);
    layOut(all, container);
    container->layout()->activate();
    return usual;
}

} // namespace

Letters::Letters(QWidget *container, int higher)
    : QObject(container), m_container(container), m_higher(higher)
{
    container->installEventFilter(this);
}

bool Letters::isForeign(const QWidget *widget)
{
    return std::any_of(std::begin(foreignClasses), std::end(foreignClasses),
                       [widget](const char *name) { return widget->inherits(name); });
}

bool Letters::eventFilter(QObject *, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Show || type == QEvent::Resize || type == QEvent::LayoutRequest
        || type == Measures::textSizeChange())
        fit();
    // Its texts are others by the time that it is seen, and until then they ask for no more room
    // than at first.
    if (type == QEvent::LanguageChange && !m_container->isVisible())
        reset();
    return false;
}

void Letters::reset()
{
    if (m_percent == usual)
        return;
    m_percent = usual;
    m_fitted.clear();
    apply(ownWidgets(m_container), usual);
}

void Letters::fit()
{
    const bool isUsual = Measures::textSize() == usual && m_percent == usual;
    if (m_isFitting || isUsual || !m_container->layout() || !m_container->isVisible())
        return;
    // The layout asks again for each change of letters, and gets the same answer.
    const QString fitted = described(m_container);
    if (fitted == m_fitted)
        return;
    m_fitted = fitted;
    m_isFitting = true;
    m_percent = growWithin(m_container, m_container->size(), m_higher, [] {});
    leave(ownWidgets(m_container), m_container);
    m_isFitting = false;
}

void Letters::grow(QWidget *dialog, const QSize &room)
{
    if (Measures::textSize() == usual || isForeign(dialog) || !dialog->layout())
        return;
    const QSize most = room.boundedTo(dialog->maximumSize());
    const QSize before = dialog->size();
    growWithin(dialog, most, 0, [dialog, most, before] {
        const QLayout *layout = dialog->layout();
        QSize wanted = before.expandedTo(layout->totalMinimumSize());
        if (layout->hasHeightForWidth())
            wanted.setHeight(qMax(wanted.height(), layout->totalHeightForWidth(wanted.width())));
        dialog->resize(wanted.boundedTo(most));
    });
}
