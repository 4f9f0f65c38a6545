// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/pickerstrip.h"

#include "base/hostcompat.h"
#include "filarixpanel.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/hmideviceinfo.h>

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QToolButton>
#include <QVariant>

#include <cmath>

namespace {

// 9 mm at 133 dpi, the screen of most panels.
const int leastKey = 48;
// What a glove needs, where the screen says by a property how fine it is.
const double gloveMm = 9;
const double mmPerInch = 25.4;
const double fewestDotsPerInch = 50;
const double mostDotsPerInch = 360;
// So many keys have room side by side, however fine the screen is.
const int keysOnAWidth = 7;
const int wideKey = 84;
const int narrowKey = 76;
const int titlePixels = 16;
const int textPixels = 13;
const int margin = 2;
const int gap = 4;
const int leastFilter = 72;
const int mostFilter = 200;
/// Of less width, title and keys stand one above the other.
const int oneRowFrom = 440;
const int orders = 4;

const QRgb ground = 0xff17202b;
const QRgb dangerGround = 0xffb92525;
const QRgb keyGround = 0xff2b3a4a;
const QRgb faint = 0xff8b9aab;
// Two strokes that meet, twice: a page, not a line.
const int arrowSize = 24;
const double arrowRise = 7;
const int arrowSide = 5;
const double arrowPen = 2.2;

/// The side of a key on a strip of \a width pixels.
int sideOfKey(int width)
{
    const double dotsPerInch = qApp->property("hmiDotsPerInch").toDouble();
    if (!(dotsPerInch >= fewestDotsPerInch && dotsPerInch <= mostDotsPerInch))
        return leastKey;
    const int glove = int(std::ceil(gloveMm / mmPerInch * dotsPerInch));
    return qMax(leastKey, qMin(glove, width / keysOnAWidth));
}

QFont sized(QFont font, int pixels, bool isBold)
{
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

QString titleOf(WindowDialogs::Picker picker)
{
    if (picker == WindowDialogs::SavePicker)
        return PickerStrip::tr("Save the program as");
    return picker == WindowDialogs::RemovePicker ? PickerStrip::tr("Remove a program")
                                                 : PickerStrip::tr("Open a program");
}

QString nameOf(int order)
{
    switch (order) {
    case PickerTable::ByName:
        return PickerStrip::tr("Name");
    case PickerTable::ByDate:
        return PickerStrip::tr("Date");
    case PickerTable::BySize:
        return PickerStrip::tr("Size");
    default:
        return PickerStrip::tr("Last used");
    }
}

QPixmap arrowOf(bool isUp, const QColor &colour)
{
    QPixmap pixmap(arrowSize, arrowSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, arrowPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const double rise = isUp ? -arrowRise / 2 : arrowRise / 2;
    for (int i = -1; i <= 1; i += 2) {
        const double middle = arrowSize / 2.0 + i * arrowRise / 2;
        painter.drawPolyline(QPolygonF() << QPointF(arrowSide, middle - rise)
                                         << QPointF(arrowSize / 2.0, middle + rise)
                                         << QPointF(arrowSize - arrowSide, middle - rise));
    }
    return pixmap;
}

QIcon arrowIcon(bool isUp)
{
    QIcon icon(arrowOf(isUp, Qt::white));
    icon.addPixmap(arrowOf(isUp, QColor(faint)), QIcon::Disabled);
    return icon;
}

QLabel *makeLabel(const char *name, const QFont &font)
{
    QLabel *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    label->setWordWrap(true);
    return label;
}

} // namespace

PickerStrip::PickerStrip(WindowDialogs::Picker picker, QWidget *parent)
    : QWidget(parent)
    , m_title(makeLabel("pickerTitle", sized(font(), titlePixels, true)))
    , m_count(makeLabel("pickerCount", sized(font(), textPixels, false)))
    , m_filter(new QLineEdit)
    , m_rows(new QBoxLayout(QBoxLayout::LeftToRight))
{
    setObjectName(QLatin1String("pickerStrip"));
    setProperty("danger", picker == WindowDialogs::RemovePicker);
    setAttribute(Qt::WA_StyledBackground);
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window,
                     QColor(picker == WindowDialogs::RemovePicker ? dangerGround : ground));
    colours.setColor(QPalette::WindowText, Qt::white);
    colours.setColor(QPalette::Button, QColor(keyGround));
    colours.setColor(QPalette::ButtonText, Qt::white);
    colours.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(faint));
    setPalette(colours);
    setFont(sized(font(), textPixels, true));

    m_title->setText(titleOf(picker));
    QVBoxLayout *titles = new QVBoxLayout;
    titles->setSpacing(0);
    titles->addStretch(1);
    titles->addWidget(m_title);
    titles->addWidget(m_count);
    titles->addStretch(1);

    QHBoxLayout *keys = new QHBoxLayout;
    keys->setSpacing(gap);
    for (int order = 0; order < orders; ++order) {
        QToolButton *key = makeKey(nameOf(order), "pickerOrder", SLOT(takeOrder()));
        key->setProperty("order", order);
        key->setCheckable(true);
        m_orderKeys.append(key);
        keys->addWidget(key);
    }
    m_nextOrder = makeKey(QString(), "pickerNextOrder", SLOT(takeNextOrder()));
    keys->addWidget(m_nextOrder);
    m_allKey = makeKey(tr("Show all"), "pickerAll", SLOT(clearFilter()));
    keys->addWidget(m_allKey);
    m_filter->setObjectName(QLatin1String("pickerFilter"));
    m_filter->setMinimumWidth(leastFilter);
    m_filter->setMaximumWidth(mostFilter);
    m_filter->setPlaceholderText(tr("Find"));
    m_filter->setAccessibleName(tr("Part of a name"));
    m_filter->setProperty("hmiName", m_filter->accessibleName());
    m_filter->installEventFilter(this);
    connect(m_filter, SIGNAL(textChanged(QString)), SLOT(takeFilter()));
    keys->addWidget(m_filter, 1);
    m_up = makeArrow(true, tr("Page up"), SLOT(pageUp()));
    keys->addWidget(m_up);
    m_down = makeArrow(false, tr("Page down"), SLOT(pageDown()));
    keys->addWidget(m_down);

    m_rows->setContentsMargins(gap, margin, gap, margin);
    m_rows->setSpacing(gap);
    m_rows->addLayout(titles, 1);
    m_rows->addLayout(keys, 1);
    setLayout(m_rows);
    sizeKeys(leastKey);
    choose(PickerTable::LastUsed);
}

QToolButton *PickerStrip::makeKey(const QString &text, const char *name, const char *slot)
{
    QToolButton *key = new QToolButton(this);
    key->setObjectName(QLatin1String(name));
    key->setText(text);
    key->setFocusPolicy(Qt::StrongFocus);
    connect(key, SIGNAL(clicked()), this, slot);
    return key;
}

QToolButton *PickerStrip::makeArrow(bool isUp, const QString &name, const char *slot)
{
    QToolButton *key = makeKey(QString(), "pickerPage", slot);
    key->setIcon(arrowIcon(isUp));
    key->setIconSize(QSize(arrowSize, arrowSize));
    key->setAccessibleName(name);
    key->setAutoRepeat(true);
    return key;
}

void PickerStrip::sizeKeys(int side)
{
    Q_FOREACH (QToolButton *key, m_orderKeys)
        key->setFixedSize(qMax(wideKey, side), side);
    m_nextOrder->setFixedSize(qMax(narrowKey, side), side);
    m_allKey->setFixedSize(qMax(narrowKey, side), side);
    m_filter->setFixedHeight(side);
    m_up->setFixedSize(side, side);
    m_down->setFixedSize(side, side);
}

void PickerStrip::fit(int width)
{
    m_isWide = width >= FilarixPanel::wideFrom;
    sizeKeys(sideOfKey(width));
    m_rows->setDirection(width < oneRowFrom ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    // The keys have their widths; what is left is the title's.
    m_rows->setStretch(1, width < oneRowFrom ? 1 : 0);
    m_filter->setMaximumWidth(width < oneRowFrom ? QWIDGETSIZE_MAX
                              : m_isWide         ? mostFilter
                                                 : leastFilter);
    showKeys();
    // The dialog asks for the height before the event that would tell the layout.
    m_rows->activate();
}

void PickerStrip::showKeys()
{
    Q_FOREACH (QToolButton *key, m_orderKeys)
        key->setVisible(m_isWide);
    const bool isFiltered = !filter().isEmpty();
    m_allKey->setVisible(isFiltered && !m_isWide);
    m_nextOrder->setVisible(!isFiltered && !m_isWide);
}

void PickerStrip::setCount(int shown, int all)
{
    if (m_isReadOnly)
        return;
    if (shown < all)
        m_count->setText(tr("%1 of %2 programs").arg(shown).arg(all));
    else
        m_count->setText(tr("Programs: %1").arg(all));
}

void PickerStrip::setReadOnly()
{
    m_isReadOnly = true;
    m_count->setText(tr("The folder is read-only."));
}

void PickerStrip::setPaging(bool hasAbove, bool hasBelow)
{
    m_up->setEnabled(hasAbove);
    m_down->setEnabled(hasBelow);
}

QString PickerStrip::filter() const
{
    return m_filter->text();
}

void PickerStrip::look(const QString &text)
{
    m_filter->setFocus();
    m_filter->setText(text);
}

void PickerStrip::clearFilter()
{
    m_filter->clear();
}

void PickerStrip::choose(PickerTable::Order order)
{
    m_order = order;
    Q_FOREACH (QToolButton *key, m_orderKeys)
        key->setChecked(key->property("order").toInt() == order);
    m_nextOrder->setText(nameOf(order));
    m_nextOrder->setAccessibleName(tr("Order: %1").arg(nameOf(order)));
    Q_EMIT orderChosen();
}

void PickerStrip::takeOrder()
{
    choose(PickerTable::Order(sender()->property("order").toInt()));
}

void PickerStrip::takeNextOrder()
{
    choose(PickerTable::Order((m_order + 1) % orders));
}

void PickerStrip::takeFilter()
{
    showKeys();
    Q_EMIT filterChanged();
}

bool PickerStrip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        // The dialog would take it for its OK.
        Q_EMIT listWanted();
        return true;
    }
    // On the release: on the press the field would still hold the mouse while the keypad is open.
    if (event->type() != QEvent::MouseButtonRelease || !HMIDeviceInfo::isTouchScreen())
        return false;
    const QPointer<QObject> field(watched);
    enterFilter();
    return field.isNull();
}

/// The keypad, too, begins with what the list is filtered by.
void PickerStrip::enterFilter()
{
    CharacterKeypad *keypad = CharacterKeypad::instance();
    if (!keypad)
        return;
    keypad->setObject(m_filter);
    keypad->setValidator(nullptr);
    keypad->setText(m_filter->text());
    keypad->setShowType(0);
    keypad->exec();
}
