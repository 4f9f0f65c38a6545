// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "targets.h"

#include "look/pagekeys.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextBlock>

namespace {

// Over the number of a row, which opens nothing.
const int numberX = 14;

/// Whether a touch at \a point reaches \a widget or a part of it.
bool isInView(const QWidget *widget, const QPoint &point)
{
    const QWidget *reached = QApplication::widgetAt(widget->mapToGlobal(point));
    return reached && (reached == widget || widget->isAncestorOf(reached));
}

template<class Widget>
Widget *visibleIn(const QWidget *place)
{
    const QList<Widget *> all = place->findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->isVisible())
            return widget;
    }
    return nullptr;
}

QList<QAbstractButton *> keysIn(const QWidget *place)
{
    QList<QAbstractButton *> keys;
    const QList<QAbstractButton *> all = place->findChildren<QAbstractButton *>();
    for (QAbstractButton *key : all) {
        if (key->isVisible() && key->isEnabled() && isInView(key, key->rect().center()))
            keys.append(key);
    }
    return keys;
}

QString nameOf(const QWidget *widget)
{
    const QAbstractButton *key = qobject_cast<const QAbstractButton *>(widget);
    const QString name =
        key && key->accessibleName().isEmpty() ? key->text() : widget->accessibleName();
    return name.isEmpty() ? QString(widget->metaObject()->className()) : name;
}

/// At \a point of \a touched.
Touch touchOf(QWidget *shown, QWidget *touched, const QPoint &point,
              const std::function<bool()> &isAnswered)
{
    Touch touch;
    touch.shown = shown;
    touch.point = touched->mapTo(shown->window(), point);
    touch.isAnswered = isAnswered;
    const QPointer<QWidget> there(touched);
    touch.isReachable = [there, point] {
        return there && there->isVisible() && there->isEnabled() && isInView(there, point);
    };
    touch.name = nameOf(touched);
    return touch;
}

Touch tapOf(QWidget *shown, QWidget *touched, const QPoint &point,
            const std::function<bool()> &isAnswered)
{
    Touch touch = touchOf(shown, touched, point, isAnswered);
    touch.isTap = true;
    return touch;
}

/// What turns pages, and how far it is from its first one.
struct Paged
{
    QWidget *shown;
    std::function<int()> place;
};

Paged pagedIn(const QWidget *place)
{
    if (TListWidget *list = visibleIn<TListWidget>(place))
        return {list, [list] { return -list->getListPos(0); }};
    QAbstractScrollArea *area = visibleIn<WGCodeEditer>(place);
    if (!area)
        area = visibleIn<QTableWidget>(place);
    return {area->viewport(), [area] { return area->verticalScrollBar()->value(); }};
}

} // namespace

QWidget *Targets::place() const
{
    QWidget *dialog = QApplication::activeModalWidget();
    return dialog ? dialog : m_window.data();
}

Touch Targets::key()
{
    const QList<QAbstractButton *> keys = keysIn(place());
    if (keys.isEmpty())
        return Touch();
    QAbstractButton *key = keys.at(upTo(keys.size()));
    return touchOf(key, key, key->rect().center(), [key] { return key->isDown(); });
}

Touch Targets::row()
{
    if (TListWidget *list = visibleIn<TListWidget>(place()))
        return rowOf(list);
    return rowOf(visibleIn<QTableWidget>(place()));
}

Touch Targets::rowOf(TListWidget *list)
{
    QList<int> others;
    // The first may be the title.
    for (int row = 1; row < list->count(); ++row) {
        const QWidget *widget = list->itemAt(list->getListPos(row));
        if (row != list->getCurIndex() && widget && widget->isVisible()
            && isInView(widget, QPoint(numberX, widget->height() / 2)))
            others.append(row);
    }
    if (others.isEmpty())
        return Touch();
    const int row = others.at(upTo(others.size()));
    QWidget *widget = list->itemAt(list->getListPos(row));
    return tapOf(list, widget, QPoint(numberX, widget->height() / 2),
                 [list, row] { return list->getCurIndex() == row; });
}

Touch Targets::rowOf(QTableWidget *table)
{
    QWidget *viewport = table->viewport();
    QList<QTableWidgetItem *> others;
    for (int row = 0; row < table->rowCount(); ++row) {
        QTableWidgetItem *item = table->item(row, 0);
        if (item && !item->isSelected()
            && viewport->rect().contains(table->visualItemRect(item).center()))
            others.append(item);
    }
    if (others.isEmpty())
        return Touch();
    const QTableWidgetItem *item = others.at(upTo(others.size()));
    const int row = item->row();
    return tapOf(viewport, viewport, table->visualItemRect(item).center(),
                 [table, row] { return table->item(row, 0)->isSelected(); });
}

Touch Targets::line()
{
    WGCodeEditer *editor = visibleIn<WGCodeEditer>(place());
    QWidget *viewport = editor->viewport();
    const int height = editor->cursorRect().height();
    QList<QPoint> others;
    for (int y = height; y < viewport->height() - height; y += height) {
        const QPoint point(viewport->width() / 2, y);
        if (editor->cursorForPosition(point).block() != editor->textCursor().block()
            && isInView(viewport, point))
            others.append(point);
    }
    if (others.isEmpty())
        return Touch();
    const QPoint point = others.at(upTo(others.size()));
    const QTextBlock wanted = editor->cursorForPosition(point).block();
    return tapOf(viewport, viewport, point,
                 [editor, wanted] { return editor->textCursor().block() == wanted; });
}

/// To and fro: at the last page a key may be on that leads nowhere.
Touch Targets::page()
{
    const Paged paged = pagedIn(place());
    const int before = paged.place();
    const QString wanted = before == 0 ? PageKeys::forthName() : PageKeys::backName();
    const QList<QAbstractButton *> keys = keysIn(place());
    for (QAbstractButton *key : keys) {
        if (nameOf(key) == wanted)
            return tapOf(paged.shown, key, key->rect().center(),
                         [paged, before] { return paged.place() != before; });
    }
    return Touch();
}
