// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/rowwatcher.h"

#include "dataeditor.h"
#include "mjline.h"
#include "tlistwidget.h"

#include <QChildEvent>
#include <QMetaObject>
#include <QVariant>

namespace {

/// Where the list notes the index of a row whose widget it has given up while a keypad is open.
const char retiredIndex[] = "filarixRowIndex";
/// Kind and number, which such a widget does not know.
const int unknownToRetired = 2;

/// What a row widget shows, without kind and number.
QStringList shownBy(QObject *row)
{
    MJLine *line = qobject_cast<MJLine *>(row);
    DataEditor *table = line ? line->dataEditor() : qobject_cast<DataEditor *>(row);
    const bool isInstruction = line && table->isHidden();
    const QStringList content = isInstruction ? line->GetLineList() : table->getData();
    return content.mid(unknownToRetired - 1);
}

} // namespace

RowWatcher::RowWatcher(TListWidget *list, QObject *parent) : QObject(parent), m_list(list)
{
    list->installEventFilter(this);
    Q_FOREACH (QObject *child, list->children())
        listenTo(child);
}

bool RowWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded && watched == m_list) {
        // The child is still being made, and has no signal yet.
        if (m_new.isEmpty())
            QMetaObject::invokeMethod(this, "listenToNew", Qt::QueuedConnection);
        m_new.append(static_cast<QChildEvent *>(event)->child());
    }
    return QObject::eventFilter(watched, event);
}

void RowWatcher::listenToNew()
{
    const QList<QPointer<QObject>> children = m_new;
    m_new.clear();
    Q_FOREACH (const QPointer<QObject> &child, children)
        listenTo(child);
}

/// Once alone: a list that shows a child anew tells of it anew.
void RowWatcher::listenTo(QObject *row)
{
    if (qobject_cast<MJLine *>(row) || qobject_cast<DataEditor *>(row))
        connect(row, SIGNAL(sg_content_change(int)), SLOT(report(int)), Qt::UniqueConnection);
}

/// The list heard of the edit before this object, and has taken it.
void RowWatcher::report(int number)
{
    QObject *row = sender();
    if (!m_list)
        return;
    const QVariant retired = row->property(retiredIndex);
    const int index = retired.isValid() ? retired.toInt() : number;
    if (index < 0 || index >= m_list->count())
        return;
    const QStringList content = m_list->getContent(index);
    // Of a widget that it has given up, the list takes what still belongs to that row.
    if (retired.isValid() && content.mid(unknownToRetired) != shownBy(row))
        return;
    Q_EMIT rowEdited(index, content);
}
