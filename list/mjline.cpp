// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "mjline.h"

#include "compat.h"
#include "dataeditor.h"
#include "rowfield_p.h"
#include "rowformat_p.h"
#include "rowgeometry_p.h"
#include "rowstyle_p.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

namespace {

// Not through tr(), which takes them for Latin-1 on the panels; marked so that lupdate finds them.
//: Behind the name of the instruction. Keep the "(" in front: the name ends there.
const char *const closedSuffix = QT_TRANSLATE_NOOP_UTF8("MJLine", "(↓)");
//: Behind the name of the instruction. Keep the "(" in front: the name ends there.
const char *const openSuffix = QT_TRANSLATE_NOOP_UTF8("MJLine", "(↑)");
//: Closes an open row.
const char *const closeArrow = QT_TRANSLATE_NOOP_UTF8("MJLine", "↑");

QString suffix(bool expanded)
{
    return Compat::translateUtf8("MJLine", expanded ? openSuffix : closedSuffix);
}

/// A field's place in the table of types, and how many of it would fill the list's width and
/// height.
struct FieldPlace
{
    int index;
    float widthFactor;
    float heightFactor;
};

const FieldPlace numPlace = {0, 11.0f, 24.0f};
const FieldPlace insPlace = {2, 5.5f, 24.0f};
const FieldPlace jposPlace = {4, 5.5f, 24.0f};
const FieldPlace vPlace = {6, 5.5f, 24.0f};
const FieldPlace zPlace = {8, 5.5f, 24.0f};
const FieldPlace tPlace = {10, 5.5f, 24.0f};
const FieldPlace resPlace = {12, 5.5837564f, 24.0f};
const FieldPlace firstDetailPlace = {14, 5.5837564f, 24.0f}; // the others two further each
const FieldPlace collapsePlace = {31, 11.0f, 12.0f};
const FieldPlace detailAreaPlace = {33, 1.026f, 12.0f};

template<class Layout>
Layout *alignedLeft(Layout *layout)
{
    layout->setAlignment(Qt::AlignLeft);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

using namespace RowFormat;

// The index is the working-form position of the field's value, up to the last detail.
const MJLine::WidgetType MJLine::m_widgetType[widgetTypeCount] = {
    {RowField::PassiveLabel, RowStyle::cell}, // 0: number
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::ClickableLabel, RowStyle::cell}, // 2: instruction
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::ClickableLabel, RowStyle::cell}, // 4: Jpos
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::ClickableLabel, RowStyle::cell}, // 6: V
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 8: Z
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 10: T
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::TextField, RowStyle::cell}, // 12: free text
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 14: detail 0
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 16: detail 1
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 18: detail 2
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 20: detail 3
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 22: detail 4
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 24: detail 5
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 26: detail 6
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell}, // 28: detail 7
    {RowField::PassiveLabel, RowStyle::cell},
    {RowField::NumberField, RowStyle::cell},    // 30: detail 8
    {RowField::ClickableLabel, RowStyle::cell}, // 31: arrow that closes the row
    {RowField::Area, RowStyle::cell},
    {RowField::Area, RowStyle::cell}, // 33: detail area
};

MJLine::MJLine(QStringList &list, QSize size, QWidget *parent)
    : QWidget(parent)
    , m_size(size)
    , m_expanded(false)
    , m_numLabel(nullptr)
    , m_insLabel(nullptr)
    , m_jposLabel(nullptr)
    , m_vLabel(nullptr)
    , m_zEdit(nullptr)
    , m_tEdit(nullptr)
    , m_resEdit(nullptr)
    , m_details()
    , m_rowLayout(new QVBoxLayout)
    , m_collapseLabel(nullptr)
    , m_firstLine(nullptr)
    , m_detailArea(nullptr)
    , m_dataEditor(nullptr)
{
    m_rowLayout->setAlignment(Qt::AlignLeft);
    m_rowLayout->setSpacing(0);
    m_rowLayout->setContentsMargins(RowGeometry::sideMargin, 0, RowGeometry::sideMargin, 0);

    const bool isLong = list.size() > buildLimit;
    insertEmpty(list, buildLimit);
    const bool isTitle = isLong && list.at(workingNum) == QLatin1String(title);
    if (isTitle)
        list[workingNum].clear();
    QStringList content = list;
    if (isLong && !isTitle)
        content = QStringList() << list.at(Ins) << QString() << QLatin1String(other) << QString();
    fillUp(list);
    const bool showsEditor = isTitle || list.at(Ins) == QLatin1String(other);

    createFirstLine(list);
    readTail(list);
    if (showsEditor)
        m_firstLine->hide();
    m_rowLayout->addWidget(m_firstLine);
    createDetailArea();
    showSuffix();
    createDataEditor(isTitle, content, showsEditor);

    setStyleSheet(QLatin1String(RowStyle::plainRow));
    setFixedHeight(RowGeometry::rowHeight(m_size.height()));
    setLayout(m_rowLayout);
    connectFirstLine();
}

MJLine::~MJLine() = default;

void MJLine::createFirstLine(const QStringList &row)
{
    const auto create = [this](const FieldPlace &place, const QString &text) {
        return createWidget(place.index, text, place.widthFactor, place.heightFactor);
    };
    m_numLabel = create(numPlace, row.at(workingNum));
    m_insLabel = create(insPlace, row.at(Ins) + suffix(false));
    m_jposLabel = create(jposPlace, pairText(row.at(JposKey), row.at(JposIndex)));
    m_vLabel = create(vPlace, pairText(row.at(VKey), row.at(VIndex)));
    m_zEdit = create(zPlace, pairText(row.at(ZKey), row.at(ZValue)));
    m_tEdit = create(tPlace, pairText(row.at(TKey), row.at(TValue)));

    m_firstLine = new QWidget(this);
    m_firstLine->setFixedHeight(RowGeometry::lineHeight(m_size.height()));
    QHBoxLayout *layout = alignedLeft(RowField::createLine());
    layout->addWidget(m_numLabel);
    layout->addWidget(m_insLabel);
    layout->addWidget(m_jposLabel);
    layout->addWidget(m_vLabel);
    layout->addWidget(m_zEdit);
    layout->addWidget(m_tEdit);
    m_firstLine->setLayout(layout);
}

/// Free text and details of a row in working form.
void MJLine::readTail(const QStringList &row)
{
    m_resText = row.at(Res);
    m_resText.replace(QLatin1Char('_'), QLatin1Char(' '));
    m_detailList = row.mid(FirstDetail, 2 * detailCount);
}

void MJLine::createDetailArea()
{
    m_detailArea = createWidget(detailAreaPlace.index, QString(), detailAreaPlace.widthFactor,
                                detailAreaPlace.heightFactor);
    m_detailArea->setFixedHeight(RowGeometry::detailHeight(m_size.height()));
    m_detailArea->setContentsMargins(0, 0, 0, 0);
    m_detailArea->hide();
    m_rowLayout->addWidget(m_detailArea);
}

void MJLine::createDataEditor(bool isTitle, QStringList &content, bool isShown)
{
    // In no layout: it lies over the first line, at the row's upper left corner.
    m_dataEditor = new DataEditor(isTitle, content, m_size, this, false);
    m_dataEditor->setFixedWidth(RowGeometry::editorWidth(m_size.width()));
    m_dataEditor->setFixedHeight(RowGeometry::lineHeight(m_size.height()));
    connect(m_dataEditor, SIGNAL(clicked(int)), this, SIGNAL(clicked(int)));
    connect(m_dataEditor, SIGNAL(sg_content_change(int)), this, SIGNAL(sg_content_change(int)));
    // Explicitly, so that isHidden() is right before the row is first shown.
    m_dataEditor->setVisible(isShown);
}

void MJLine::connectFirstLine()
{
    connect(m_insLabel, SIGNAL(clicked()), this, SLOT(on_press_down()));
    connect(m_jposLabel, SIGNAL(clicked()), this, SLOT(on_jpos_update()));
    connect(m_vLabel, SIGNAL(clicked()), this, SLOT(on_v_update()));
    connect(m_zEdit, SIGNAL(clicked()), this, SLOT(on_z_update()));
    connect(m_zEdit, SIGNAL(changed(QString)), this, SLOT(on_vars1_change(QString)));
    connect(m_tEdit, SIGNAL(clicked()), this, SLOT(on_t_update()));
    connect(m_tEdit, SIGNAL(changed(QString)), this, SLOT(on_vars1_change(QString)));
}

QWidget *MJLine::createWidget(int index, QString text, float widthFactor, float)
{
    const bool isKnown = index >= 0 && index < widgetTypeCount;
    const WidgetType &entry = m_widgetType[isKnown ? index : detailAreaPlace.index];
    return RowField::create(this, entry.type, text,
                            RowGeometry::cellWidth(m_size.width(), widthFactor),
                            QLatin1String(entry.styleSheet));
}

void MJLine::createLine2()
{
    if (m_resEdit)
        return;
    for (int k = 0; k < detailCount; ++k)
        m_details[k] = createWidget(firstDetailPlace.index + 2 * k, detailText(k),
                                    firstDetailPlace.widthFactor, firstDetailPlace.heightFactor);
    m_resEdit =
        createWidget(resPlace.index, m_resText, resPlace.widthFactor, resPlace.heightFactor);
    m_collapseLabel = createWidget(collapsePlace.index, Compat::translateUtf8("MJLine", closeArrow),
                                   collapsePlace.widthFactor, collapsePlace.heightFactor);

    QHBoxLayout *upper = alignedLeft(new QHBoxLayout);
    for (int k = 0; k < 5; ++k)
        upper->addWidget(m_details[k]);
    QHBoxLayout *lower = alignedLeft(new QHBoxLayout);
    for (int k = 5; k < detailCount; ++k)
        lower->addWidget(m_details[k]);
    lower->addWidget(m_resEdit);
    QVBoxLayout *lines = alignedLeft(new QVBoxLayout);
    lines->addLayout(upper);
    lines->addLayout(lower);
    QHBoxLayout *outer = alignedLeft(new QHBoxLayout);
    outer->addWidget(m_collapseLabel);
    outer->addLayout(lines);

    connect(m_collapseLabel, SIGNAL(clicked()), this, SLOT(on_press_up()));
    connect(m_resEdit, SIGNAL(clicked()), this, SLOT(on_res_update()));
    connect(m_resEdit, SIGNAL(changed(QString)), this, SLOT(on_vars1_change(QString)));
    for (int k = 0; k < detailCount; ++k) {
        connect(m_details[k], SIGNAL(clicked()), this, SLOT(on_lineEdit_clicked()));
        // Detail 8 belongs to the V group, yet an edit of detail 8 empties the Jpos index. Hosts
        // see the V index survive, and count on that.
        const bool emptiesV = k == 6 || k == 7;
        connect(m_details[k], SIGNAL(changed(QString)), this,
                emptiesV ? SLOT(on_v_change(QString)) : SLOT(on_jpos_change(QString)));
    }
    m_detailArea->setLayout(outer);
}

void MJLine::on_expand()
{
    const int height = m_size.height();
    if (m_expanded) {
        m_expanded = false;
        setFixedHeight(RowGeometry::rowHeight(height));
        showSuffix();
        m_detailArea->hide();
    } else {
        createLine2();
        m_expanded = true;
        setFixedHeight(RowGeometry::openRowHeight(height));
        showSuffix();
        setText(m_resEdit, m_resText);
        m_detailArea->show();
    }
}

bool MJLine::isExpanded() const
{
    return m_expanded;
}

void MJLine::showSuffix()
{
    setText(m_insLabel, getIns() + suffix(m_expanded));
}

void MJLine::setText(QWidget *field, QString text)
{
    RowField::setText(field, text);
}

QString MJLine::getText(QWidget *field)
{
    return RowField::text(field);
}

void MJLine::setNum(QString text)
{
    setText(m_numLabel, text);
}

QString MJLine::getNum()
{
    return getText(m_numLabel);
}

QString MJLine::getIns()
{
    return partBefore(getText(m_insLabel), '(');
}

int MJLine::number()
{
    return getNum().toInt();
}

QStringList MJLine::groupValues(int firstPair, int pairs) const
{
    QStringList values;
    for (int k = firstPair; k < firstPair + pairs; ++k)
        values << m_detailList.at(2 * k + 1);
    return values;
}

QStringList MJLine::getV()
{
    return groupValues(jposDetails, vDetails);
}

QStringList MJLine::getJpos()
{
    return groupValues(0, jposDetails);
}

void MJLine::setGroup(const QStringList &values, int firstPair, int pairs, QWidget *label)
{
    if (values.size() < pairs)
        return;
    for (int i = 0; i < pairs; ++i)
        setDetail(firstPair + i, values.at(i));
    if (values.size() == pairs + 1)
        setText(label, pairText(partBefore(getText(label), ':'), values.at(pairs)));
}

void MJLine::setV(QStringList &list)
{
    setGroup(list, jposDetails, vDetails, m_vLabel);
}

void MJLine::setJpos(QStringList &list)
{
    setGroup(list, 0, jposDetails, m_jposLabel);
}

QString MJLine::detailText(int pair) const
{
    return pairText(m_detailList.at(2 * pair), m_detailList.at(2 * pair + 1));
}

void MJLine::setDetail(int pair, const QString &value)
{
    m_detailList[2 * pair + 1] = value;
    if (m_details[pair])
        setText(m_details[pair], detailText(pair));
}

void MJLine::setLineList(QStringList &list)
{
    insertEmpty(list, refillLimit);
    fillUp(list);
    setText(m_numLabel, list.at(workingNum));
    setText(m_insLabel, list.at(Ins) + suffix(m_expanded));
    setText(m_jposLabel, pairText(list.at(JposKey), list.at(JposIndex)));
    setText(m_vLabel, pairText(list.at(VKey), list.at(VIndex)));
    setText(m_zEdit, pairText(list.at(ZKey), list.at(ZValue)));
    setText(m_tEdit, pairText(list.at(TKey), list.at(TValue)));
    readTail(list);

    // Flipped back at once: the row stays open or closed, and takes its height, suffix and free
    // text anew.
    m_expanded = !m_expanded;
    on_expand();

    if (m_resEdit) {
        QStringList jpos = getJpos();
        setJpos(jpos);
        QStringList v = getV();
        setV(v);
    }
}

QStringList MJLine::GetLineList()
{
    const QLatin1Char colon(':');
    m_resText.replace(QLatin1Char(' '), QLatin1Char('_'));
    QStringList row;
    row << getNum() << getIns();
    row << getText(m_jposLabel).split(colon) << getText(m_vLabel).split(colon);
    row << getText(m_zEdit).split(colon) << getText(m_tEdit).split(colon);
    row << QLatin1String(attLiteral) << m_resText << m_detailList;
    return row;
}

QWidget *MJLine::firstLine() const
{
    return m_firstLine;
}

DataEditor *MJLine::dataEditor() const
{
    return m_dataEditor;
}

void MJLine::on_press_down()
{
    // The receiver lays the list out anew, and a host may take the row away meanwhile.
    const QPointer<MJLine> self(this);
    on_expand();
    Q_EMIT sizeChanged(m_expanded);
    if (self)
        Q_EMIT clicked(number());
}

void MJLine::on_press_up()
{
    on_press_down();
}

void MJLine::on_jpos_update()
{
    Q_EMIT sg_jpos_update(number());
}

void MJLine::on_v_update()
{
    Q_EMIT sg_v_update(number());
}

/// The editor reports its own taps: with it in view the row stays silent.
void MJLine::reportTap()
{
    if (m_dataEditor->isHidden())
        Q_EMIT clicked(number());
}

void MJLine::on_z_update()
{
    reportTap();
}

void MJLine::on_t_update()
{
    reportTap();
}

void MJLine::on_res_update()
{
    reportTap();
}

void MJLine::on_lineEdit_clicked()
{
    reportTap();
}

void MJLine::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    reportTap();
}

void MJLine::takeDetail(QObject *field, const QString &text)
{
    for (int k = 0; k < detailCount; ++k) {
        if (!field || m_details[k] != field)
            continue;
        m_detailList[2 * k + 1] = partAfter(text, ':');
        setText(m_details[k], text);
    }
}

void MJLine::dropIndex(QWidget *label)
{
    setText(label, pairText(partBefore(getText(label), ':'), QString()));
}

void MJLine::on_jpos_change(const QString &newText)
{
    takeDetail(sender(), newText);
    dropIndex(m_jposLabel);
    Q_EMIT sg_content_change(number());
}

void MJLine::on_v_change(const QString &newText)
{
    takeDetail(sender(), newText);
    dropIndex(m_vLabel);
    Q_EMIT sg_content_change(number());
}

void MJLine::on_vars1_change(const QString &text)
{
    QObject *field = sender();
    if (field && (field == m_zEdit || field == m_tEdit || field == m_resEdit))
        setText(static_cast<QWidget *>(field), text);
    if (field && field == m_resEdit)
        m_resText = getText(m_resEdit);
    Q_EMIT sg_content_change(number());
}
