// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "label.h"
#include "rowfield_p.h"

#include <QDoubleValidator>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace {

/// A cell says that it paints all of its rectangle, so that nothing behind it is painted for it.
///
/// The toolkit takes that back when it polishes a cell whose style sheet has round corners, a
/// margin, or a colour that lets something through. By the meta-object, and to whoever asks for the
/// class, a cell is what it is made from.
template<class Base>
class OpaqueCell : public Base
{
public:
    explicit OpaqueCell(QWidget *parent) : Base(parent) {}

protected:
    bool event(QEvent *event) override
    {
        // The first one finds the cell in its row, with all style sheets that it inherits.
        if (event->type() == QEvent::Polish)
            this->setAttribute(Qt::WA_OpaquePaintEvent);
        return Base::event(event);
    }

    void paintEvent(QPaintEvent *event) override
    {
        // The toolkit would have painted the background of such a widget before.
        if (this->testAttribute(Qt::WA_OpaquePaintEvent)
            && this->testAttribute(Qt::WA_StyledBackground))
            paintBackground();
        Base::paintEvent(event);
    }

private:
    void paintBackground()
    {
        QStyleOption option;
        option.initFrom(this);
        QPainter painter(this);
        this->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    }
};

/// Lays out cells of fixed width, side by side and as high as the line. No text changes that, so a
/// line need not be laid out anew for one.
class LineLayout : public QHBoxLayout
{
public:
    void setHeld(bool held) { m_isHeld = held; }

    void invalidate() override
    {
        if (!m_isHeld)
            QHBoxLayout::invalidate();
    }

private:
    bool m_isHeld = false;
};

LineLayout *lineOf(const QWidget *cell)
{
    const QWidget *parent = cell->parentWidget();
    return parent ? dynamic_cast<LineLayout *>(parent->layout()) : nullptr;
}

bool isPlain(QChar c)
{
    return c.unicode() >= ' ' && c.unicode() <= '~' && c.unicode() != '<';
}

/// Whether a label wants the same height for both texts. Neither is empty then, and line breaks,
/// tags and characters that may come from another font are the same.
bool areOfOneHeight(const QString &one, const QString &other)
{
    if (one.isEmpty() || other.isEmpty())
        return false;
    const QChar *a = one.constBegin();
    const QChar *b = other.constBegin();
    for (;; ++a, ++b) {
        a = std::find_if_not(a, one.constEnd(), isPlain);
        b = std::find_if_not(b, other.constEnd(), isPlain);
        if (a == one.constEnd() || b == other.constEnd())
            return a == one.constEnd() && b == other.constEnd();
        if (*a != *b)
            return false;
    }
}

void setLabelText(QLabel *label, const QString &text)
{
    LineLayout *const line = areOfOneHeight(label->text(), text) ? lineOf(label) : nullptr;
    if (!line) {
        label->setText(text);
        return;
    }
    line->setHeld(true);
    label->setText(text);
    line->setHeld(false);
}

/// By name, which holds for a host's classes too that derive from these. A Label is a QLabel.
QLabel *asLabel(QWidget *field)
{
    return static_cast<QLabel *>(field->qt_metacast("QLabel"));
}

ComboLineEdit *asEdit(QWidget *field)
{
    return static_cast<ComboLineEdit *>(field->qt_metacast("ComboLineEdit"));
}

ComboLineEdit *createEdit(QWidget *parent, bool numeric)
{
    ComboLineEdit *edit = new OpaqueCell<ComboLineEdit>(parent);
    edit->setNumeric(numeric);
    if (numeric)
        edit->setValidator(new QDoubleValidator(edit));
    return edit;
}

QWidget *createBare(QWidget *parent, int type)
{
    switch (type) {
    case RowField::ClickableLabel:
        return new OpaqueCell<Label>(parent);
    case RowField::PassiveLabel:
        return new OpaqueCell<QLabel>(parent);
    case RowField::NumberField:
    case RowField::TextField:
        return createEdit(parent, type == RowField::NumberField);
    default:
        return new QWidget(parent);
    }
}

} // namespace

QWidget *RowField::create(QWidget *parent, int type, const QString &text, int width,
                          const QString &styleSheet)
{
    QWidget *field = createBare(parent, type);
    if (!text.isEmpty())
        setText(field, text);
    field->setFixedWidth(width);
    field->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    field->setStyleSheet(styleSheet);
    field->setAttribute(Qt::WA_LayoutUsesWidgetRect, true);
    return field;
}

QHBoxLayout *RowField::createLine()
{
    return new LineLayout;
}

void RowField::setText(QWidget *field, const QString &text)
{
    if (!field)
        return;
    if (QLabel *label = asLabel(field))
        setLabelText(label, text);
    else if (ComboLineEdit *edit = asEdit(field))
        edit->setText(text);
}

QString RowField::text(QWidget *field)
{
    if (!field)
        return QString();
    if (const QLabel *label = asLabel(field))
        return label->text();
    if (const ComboLineEdit *edit = asEdit(field))
        return edit->text();
    return QString();
}
