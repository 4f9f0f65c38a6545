// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/movementlimits.h"

#include "dataeditor.h"
#include "filarixrows.h"
#include "guards/rowwatcher.h"
#include "mjline.h"
#include "screens/machinedata.h"
#include "screens/taughtdetails.h"
#include "tlistwidget.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QVariant>

namespace {

using namespace FilarixRows;

// The fields of an instruction's widget in their order: those of its first line, and those that
// show when it is open. A free text follows these.
const int lineFields[] = {ZValue, TValue};
const int lineFieldCount = 2;

QList<int> positions()
{
    QList<int> all{ZValue, TValue};
    for (int pair = 0; pair < detailCount; ++pair)
        all.append(detailValue(pair));
    return all;
}

/// Where what a field shows stands in its movement; 0 for a field of no movement.
int positionOf(const QLineEdit *field)
{
    const QList<QLineEdit *> line =
        field->parentWidget()->findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    const int place = line.indexOf(const_cast<QLineEdit *>(field));
    if (line.size() == lineFieldCount)
        return lineFields[place];
    if (line.size() <= detailCount)
        return 0;
    return place < detailCount ? detailValue(place) : Res;
}

MJLine *lineOf(QWidget *widget)
{
    while (widget && !qobject_cast<MJLine *>(widget))
        widget = widget->parentWidget();
    return qobject_cast<MJLine *>(widget);
}

/// The row that a widget shows. One that shows a text has the number there alone.
int rowOf(MJLine *line)
{
    DataEditor *text = line->dataEditor();
    return (text->isHidden() ? line->getNum() : text->getData().value(0)).toInt();
}

/// What is wrong with the number at \a position; empty if it may be.
QString fault(const QStringList &row, int number, int position)
{
    const ValueRule rule = MovementLimits::ruleAt(position);
    const QString &value = row.at(position);
    if (rule.refusal(value).isEmpty())
        return QString();
    return MovementLimits::tr("Instruction %1: %2 is %3. It must be %4.")
        .arg(number)
        .arg(row.at(position - 1), ValueRule::shortened(value), rule.limits());
}

bool isMovement(const QStringList &row)
{
    return isInstruction(row.value(Kind)) && row.size() >= HostLength;
}

/// What a field is called: "Instruction 5, Zone Z". Its neighbours say something else.
QString nameOf(const QLineEdit *field, int number, const QStringList &row)
{
    const int position = positionOf(field);
    QString name = MovementLimits::tr("text");
    if (position == Res)
        name = MovementLimits::tr("remark");
    else if (position > 0 && isMovement(row))
        name = TaughtDetails::nameOfNumber(row, position);
    return MovementLimits::tr("Instruction %1, %2").arg(number).arg(name);
}

} // namespace

MovementLimits::MovementLimits(TListWidget *list, QObject *parent) : QObject(parent), m_list(list)
{
    connect(new RowWatcher(list, this), &RowWatcher::rowEdited, this, &MovementLimits::judge);
    qApp->installEventFilter(this);
}

ValueRule MovementLimits::ruleAt(int position)
{
    if (position == ZValue)
        return MachineData::zoneRule();
    if (position == TValue)
        return MachineData::toolRule();
    const int pair = (position - detailValue(0)) / 2;
    return pair < jposDetails ? MachineData::pointRule(pair)
                              : MachineData::speedRule(pair - jposDetails);
}

MovementLimits::Fault MovementLimits::firstFault(const QList<QStringList> &rows)
{
    const QList<int> numbers = positions();
    // Most numbers of a long program are those of the movement before.
    QStringList before;
    for (int i = 0; i < rows.size(); ++i) {
        const QStringList &row = rows.at(i);
        if (!isMovement(row))
            continue;
        for (int position : numbers) {
            if (!before.isEmpty() && before.at(position) == row.at(position))
                continue;
            const QString text = fault(row, i + 1, position);
            if (!text.isEmpty())
                return {i, text};
        }
        before = row;
    }
    return {-1, QString()};
}

bool MovementLimits::eventFilter(QObject *watched, QEvent *event)
{
    // The list fills a row with another one without a word. It is painted then.
    if (event->type() == QEvent::Paint) {
        MJLine *line = qobject_cast<MJLine *>(watched);
        if (line && line->parent() == m_list)
            nameFields(line);
    }
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    QLineEdit *field = qobject_cast<QLineEdit *>(watched);
    if (field && m_list->isAncestorOf(field))
        prepare(field);
    return false;
}

void MovementLimits::nameFields(MJLine *line) const
{
    const int row = rowOf(line);
    const QStringList content = m_list->getContent(row);
    const QList<QLineEdit *> fields = line->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        const QString name = nameOf(field, row, content);
        if (field->accessibleName() != name)
            field->setAccessibleName(name);
    }
}

void MovementLimits::prepare(QLineEdit *field)
{
    MJLine *line = lineOf(field);
    if (!line)
        return;
    const int row = rowOf(line);
    m_before = m_list->getContent(row);
    const QRect own(field->mapToGlobal(QPoint()), field->size());
    field->setProperty("hmiEditedRect", m_place.isEmpty() ? own : m_place);
    const QString name = nameOf(field, row, m_before);
    const int position = positionOf(field);
    if (position == 0 || position == Res || !isMovement(m_before))
        field->setProperty("hmiName", name);
    else
        ruleAt(position).prepare(field, name);
}

void MovementLimits::open(int row, int position, const QRect &place)
{
    MJLine *line = qobject_cast<MJLine *>(m_list->itemAt(m_list->getListPos(row)));
    QLineEdit *field = line ? fieldAt(line, position) : nullptr;
    if (!field)
        return;
    m_place = place;
    const QPointF middle = QRectF(field->rect()).center();
    QMouseEvent press(QEvent::MouseButtonPress, middle, middle, place.center(), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier, Qt::MouseEventSynthesizedByApplication);
    const QPointer<MovementLimits> self(this);
    QApplication::sendEvent(field, &press);
    if (self)
        m_place = QRect();
}

/// The fields of a closed row are made when it is opened for the first time, and its remark gets
/// its text only then.
QLineEdit *MovementLimits::fieldAt(MJLine *line, int position) const
{
    if (!line->dataEditor()->isHidden())
        return line->dataEditor()->findChild<QLineEdit *>();
    line->createLine2();
    const QList<QLineEdit *> fields = line->findChildren<QLineEdit *>();
    const auto field = std::find_if(fields.begin(), fields.end(), [position](const QLineEdit *one) {
        return positionOf(one) == position;
    });
    if (field == fields.end())
        return nullptr;
    if (position == Res && !line->isExpanded()) {
        QString remark = m_list->getContent(rowOf(line)).value(Res);
        line->setText(*field, remark.replace(QLatin1Char('_'), QLatin1Char(' ')));
    }
    return *field;
}

void MovementLimits::judge(int row, const QStringList &content)
{
    const QString text = takeBack(row, content);
    if (!text.isEmpty())
        Q_EMIT refused(text);
    Q_EMIT judged(text.isEmpty());
}

/// Why a number went back to what it was; empty when none did.
QString MovementLimits::takeBack(int row, const QStringList &content)
{
    if (!isMovement(content) || !isMovement(m_before) || content.at(Num) != m_before.at(Num))
        return QString();
    QStringList kept = content;
    QString text;
    const QList<int> numbers = positions();
    for (int position : numbers) {
        // What stood there before is none of the operator's doing.
        if (content.at(position) == m_before.at(position))
            continue;
        const QString wrong = fault(content, row, position);
        if (wrong.isEmpty())
            continue;
        text = wrong;
        kept[position] = m_before.at(position);
    }
    if (!text.isEmpty())
        m_list->setContent(row, kept);
    return text;
}
