// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "label.h"
#include "rowfield_p.h"

#include <QDoubleValidator>

namespace {

// By name, which holds for a host's classes too that derive from these. A Label is a QLabel.
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
    ComboLineEdit *edit = new ComboLineEdit(parent);
    edit->setNumeric(numeric);
    if (numeric)
        edit->setValidator(new QDoubleValidator(edit));
    return edit;
}

QWidget *createBare(QWidget *parent, int type)
{
    switch (type) {
    case RowField::ClickableLabel:
        return new Label(parent);
    case RowField::PassiveLabel:
        return new QLabel(parent);
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

void RowField::setText(QWidget *field, const QString &text)
{
    if (!field)
        return;
    if (QLabel *label = asLabel(field))
        label->setText(text);
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
